#include "app/SettingsStore.h"

#include "app/Numeric.h"

namespace tavrene::app {

std::string ReadCommonText(const SettingsStore& store, std::string_view name) {
    return store.ReadSettingValue(kApplicationName, kCommonSection, name);
}

std::int16_t ReadCommonNumber(const SettingsStore& store, std::string_view name) {
    return RoundToInt16(LeadingNumber(ReadCommonText(store, name)));
}

std::int16_t ReadOrDefault(SettingsStore& store, std::string_view name, std::int16_t fallback) {
    const std::int16_t stored = ReadCommonNumber(store, name);
    if (stored != 0)
        return stored;
    WriteCommonNumber(store, name, fallback);
    return fallback;
}

bool ReadCommonFlag(const SettingsStore& store, std::string_view name) {
    return LeadingNumber(ReadCommonText(store, name)) == 1.0;
}

void WriteCommon(SettingsStore& store, std::string_view name, std::string_view text) {
    store.WriteSettingValue(kApplicationName, kCommonSection, name, text);
}

void WriteCommonNumber(SettingsStore& store, std::string_view name, std::int16_t value) {
    WriteCommon(store, name, std::to_string(value));
}

void WriteCommonFlag(SettingsStore& store, std::string_view name, bool on) {
    WriteCommon(store, name, on ? "1" : "0");
}

std::string ReadWindow(const SettingsStore& store, std::string_view name) {
    return store.ReadSettingValue(kApplicationName, kWindowSection, name);
}

bool ReadWindowFlag(const SettingsStore& store, std::string_view name, bool fallback) {
    const std::string text = ReadWindow(store, name);
    return text == "1" || (fallback && text != "0");
}

void WriteWindow(SettingsStore& store, std::string_view name, std::string_view text) {
    store.WriteSettingValue(kApplicationName, kWindowSection, name, text);
}

void WriteWindowFlag(SettingsStore& store, std::string_view name, bool on) {
    WriteWindow(store, name, on ? "1" : "0");
}

}  // namespace tavrene::app
