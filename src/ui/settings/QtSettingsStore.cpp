#include "ui/settings/QtSettingsStore.h"

#include <QSettings>
#include <utility>

#include "ui/base/QtText.h"

namespace tavrene::ui {
namespace {

QString KeyOf(std::string_view section, std::string_view name) {
    return ToQt(section) + '/' + ToQt(name);
}

}  // namespace

QtSettingsStore::QtSettingsStore(QString configFolder) : configFolder_(std::move(configFolder)) {}

QString QtSettingsStore::FileOf(std::string_view application) const {
    return configFolder_ + '/' + ToQt(application) + "/settings.ini";
}

std::string QtSettingsStore::ReadSettingValue(std::string_view application, std::string_view section,
                                              std::string_view name) const {
    const QSettings file(FileOf(application), QSettings::IniFormat);
    // An unquoted comma in a file edited by hand makes a list of the text.
    return FromQt(file.value(KeyOf(section, name)).toStringList().join(", "));
}

bool QtSettingsStore::WriteSettingValue(std::string_view application, std::string_view section,
                                        std::string_view name, std::string_view text) {
    QSettings file(FileOf(application), QSettings::IniFormat);
    file.setValue(KeyOf(section, name), ToQt(text));
    file.sync();
    return file.status() == QSettings::NoError;
}

}  // namespace tavrene::ui
