#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "OneFile.h"
#include "app/Startup.h"
#include "ui/settings/QtSettingsStore.h"

namespace {

using tavrene::app::Settings;

Settings SettingsAtStart(const QString& folder) {
    tavrene::ui::QtSettingsStore store(folder);
    tavrene::fuzz::OneFile files({});
    Settings settings;
    tavrene::app::RunStartup(settings, {store, files, [] { return true; }, [](Settings&) {}, [] {}});
    return settings;
}

}  // namespace

/// A settings file of foreign bytes gives some settings, and the same ones at the next start.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const QTemporaryDir folder;
    const QString application = folder.path() + "/Tavrene CheckBoxes";
    QDir().mkpath(application);
    QFile file(application + "/settings.ini");
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return 0;
    file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size));
    file.close();
    const Settings first = SettingsAtStart(folder.path());
    const Settings second = SettingsAtStart(folder.path());
    if (first.WorkDir != second.WorkDir || first.FillThreshold != second.FillThreshold ||
        first.BoxMaxWidth != second.BoxMaxWidth || first.ProcessSingle != second.ProcessSingle)
        std::abort();
    return 0;
}
