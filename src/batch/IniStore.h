#pragma once

#include <map>
#include <string>

#include "app/Files.h"
#include "app/SettingsStore.h"

namespace tavrene::batch {

/// The settings file of the window, read and written as the window's toolkit does it: groups in brackets, one
/// "name=text" a line, UTF-8, special characters escaped. Only the one file is used, whatever the
/// application. What cannot be written is in force all the same, until the program ends.
class IniStore final : public app::SettingsStore {
  public:
    /// `files` must outlive this.
    IniStore(app::Files& files, std::string path);

    /// A value of section `Common` that is in force whatever the file says, and is not written.
    void Hold(const std::string& name, const std::string& text);

    std::string ReadSettingValue(std::string_view application, std::string_view section,
                                 std::string_view name) const override;
    bool WriteSettingValue(std::string_view application, std::string_view section, std::string_view name,
                           std::string_view text) override;

  private:
    app::Files& files_;
    std::string path_;
    std::map<std::string, std::string> inForce_;  // by section and name
};

/// Where the window has its settings.
std::string UsualSettingsFile();

}  // namespace tavrene::batch
