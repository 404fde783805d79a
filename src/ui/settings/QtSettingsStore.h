#pragma once

#include <QString>
#include <map>

#include "app/SettingsStore.h"

namespace tavrene::ui {

/// The settings of an application in the file `settings.ini` of the folder named after it, under a
/// configuration folder. What cannot be written there is in force all the same, until the program ends.
class QtSettingsStore final : public app::SettingsStore {
  public:
    /// `configFolder` is the person's configuration folder, without a trailing separator.
    explicit QtSettingsStore(QString configFolder);

    std::string ReadSettingValue(std::string_view application, std::string_view section,
                                 std::string_view name) const override;
    bool WriteSettingValue(std::string_view application, std::string_view section, std::string_view name,
                           std::string_view text) override;

  private:
    QString FileOf(std::string_view application) const;

    QString configFolder_;
    std::map<QString, QString> unwritten_;  // by file and key
};

}  // namespace tavrene::ui
