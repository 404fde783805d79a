#include "ui/settings/QtSettingsStore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStringList>
#include <utility>

#include "ui/base/QtText.h"

namespace tavrene::ui {
namespace {

QString KeyOf(std::string_view section, std::string_view name) {
    return ToQt(section) + '/' + ToQt(name);
}

// The text of a value as it stands in the file: the library takes one with a comma, written by hand without
// quotes, for a list, and the blanks around the comma are lost.
QString TextByHand(const QString& path, const QString& key) {
    QFile file(path);
    const QString heading = '[' + key.section('/', 0, 0) + ']';
    const QString name = key.section('/', 1);
    bool isInside = false;
    if (!file.open(QIODevice::ReadOnly))
        return {};
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n')) {
        const qsizetype equals = line.indexOf('=');
        if (line.startsWith('['))
            isInside = line.trimmed() == heading;
        else if (isInside && equals >= 0 && line.left(equals).trimmed() == name)
            return line.mid(equals + 1).trimmed();
    }
    return {};
}

bool IsList(const QVariant& value) {
    return value.typeId() == QMetaType::QStringList;
}

// The library writes all values back with each one that changes, and a list in a way of its own.
void KeepTextsByHand(QSettings& file, const QString& path) {
    for (const QString& key : file.allKeys()) {
        if (IsList(file.value(key)))
            file.setValue(key, TextByHand(path, key));
    }
}

// A lock beside the file is a leftover: one instance of the program runs, and it is writing only now. The
// library would wait for its holder, even for one that died on another machine, for ever.
bool RemoveLeftoverLock(const QString& path) {
    const QString lock = path + ".lock";
    return !QFileInfo::exists(lock) || QFile::remove(lock) || QDir().rmdir(lock);
}

}  // namespace

QtSettingsStore::QtSettingsStore(QString configFolder) : configFolder_(std::move(configFolder)) {}

QString QtSettingsStore::FileOf(std::string_view application) const {
    return configFolder_ + '/' + ToQt(application) + "/settings.ini";
}

std::string QtSettingsStore::ReadSettingValue(std::string_view application, std::string_view section,
                                              std::string_view name) const {
    const QString path = FileOf(application);
    const auto unwritten = unwritten_.find(path + KeyOf(section, name));
    if (unwritten != unwritten_.end())
        return FromQt(unwritten->second);
    const QVariant value = QSettings(path, QSettings::IniFormat).value(KeyOf(section, name));
    return FromQt(IsList(value) ? TextByHand(path, KeyOf(section, name)) : value.toString());
}

bool QtSettingsStore::WriteSettingValue(std::string_view application, std::string_view section,
                                        std::string_view name, std::string_view text) {
    const QString path = FileOf(application);
    const QString key = KeyOf(section, name);
    if (RemoveLeftoverLock(path)) {
        QSettings file(path, QSettings::IniFormat);
        KeepTextsByHand(file, path);
        file.setValue(key, ToQt(text));
        file.sync();
        if (file.status() == QSettings::NoError) {
            unwritten_.erase(path + key);
            return true;
        }
    }
    unwritten_[path + key] = ToQt(text);
    return false;
}

}  // namespace tavrene::ui
