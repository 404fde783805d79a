#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tavrene::app {

inline constexpr std::string_view kApplicationName = "Tavrene CheckBoxes";
inline constexpr std::string_view kCommonSection = "Common";
/// What the window remembers about itself, toggles of its menus included.
inline constexpr std::string_view kWindowSection = "Window";

/// A store of named text values. Every value is text, whatever it means.
class SettingsStore {
  public:
    virtual ~SettingsStore() = default;

    /// The stored text; empty when the section, the value or the store is missing or cannot be read.
    virtual std::string ReadSettingValue(std::string_view application, std::string_view section,
                                         std::string_view name) const = 0;

    /// Stores the text; false when it cannot be written.
    virtual bool WriteSettingValue(std::string_view application, std::string_view section,
                                   std::string_view name, std::string_view text) = 0;
};

/// A value of section `Common` as text.
std::string ReadCommonText(const SettingsStore& store, std::string_view name);

/// A value of section `Common` as a number: its leading decimal number rounded to 16 bits (halves to even,
/// held at the nearest value that fits); 0 where there is none.
std::int16_t ReadCommonNumber(const SettingsStore& store, std::string_view name);

/// The same of a number that must not be 0. The default takes the place of a 0 in the store at once, so that
/// after the first run the store holds every number explicitly.
std::int16_t ReadOrDefault(SettingsStore& store, std::string_view name, std::int16_t fallback);

/// A flag of section `Common`: on exactly when its text reads as the number 1.
bool ReadCommonFlag(const SettingsStore& store, std::string_view name);

/// Writes a value of section `Common`. A store that cannot be written is not reported: the value holds for
/// this run.
void WriteCommon(SettingsStore& store, std::string_view name, std::string_view text);
void WriteCommonNumber(SettingsStore& store, std::string_view name, std::int16_t value);
void WriteCommonFlag(SettingsStore& store, std::string_view name, bool on);

/// The same of section `Window`. A flag is "1" or "0"; whatever else is stored means `fallback`.
std::string ReadWindow(const SettingsStore& store, std::string_view name);
bool ReadWindowFlag(const SettingsStore& store, std::string_view name, bool fallback);
void WriteWindow(SettingsStore& store, std::string_view name, std::string_view text);
void WriteWindowFlag(SettingsStore& store, std::string_view name, bool on);

}  // namespace tavrene::app
