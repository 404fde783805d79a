#include "tour/Filling.h"

#include <QDir>
#include <QStandardPaths>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "app/Files.h"
#include "app/Settings.h"
#include "profiles/SampleForms.h"
#include "ui/base/QtText.h"
#include "ui/settings/QtSettingsStore.h"

namespace tavrene::tour {
namespace {

namespace fs = std::filesystem;

// Tells a folder that was filled here from one in which somebody works.
constexpr const char* kMark = "filled-from-samples";

void RemoveEarlierFilling(const fs::path& folder) {
    const fs::path mark = folder / kMark;
    if (fs::exists(folder) && !fs::is_empty(folder) && !fs::exists(mark))
        throw std::runtime_error("The folder " + app::FromPath(folder) +
                                 " is not empty and was not filled from the samples; it is left alone.");
    fs::remove_all(folder);
    fs::create_directories(folder);
    std::ofstream(mark) << "This folder is emptied whenever it is filled from the samples again.\n";
}

}  // namespace

void FillWorkingFolder(const std::string& samplesFolder, const std::string& workingFolder) {
    RemoveEarlierFilling(app::ToPath(workingFolder));
    app::DiskFiles files;
    profiles::CopySampleForms(files, samplesFolder, workingFolder);
}

void WriteSettings(const std::string& workingFolder) {
    if (qEnvironmentVariableIsEmpty("XDG_CONFIG_HOME"))
        throw std::runtime_error(
            "Set XDG_CONFIG_HOME to a folder for the settings, so that your own are not touched.");
    const QString config = QStandardPaths::writableLocation(QStandardPaths::ConfigLocation);
    QDir().mkpath(config);
    ui::QtSettingsStore store(config);
    app::WriteCommon(store, "WorkDir", workingFolder);
    app::WriteCommonNumber(store, "BoxMinWidth", app::kDefaultBoxMinWidth);
    app::WriteCommonNumber(store, "BoxMaxWidth", app::kDefaultBoxMaxWidth);
    app::WriteCommonNumber(store, "BoxMinHeight", app::kDefaultBoxMinHeight);
    app::WriteCommonNumber(store, "BoxMaxHeight", app::kDefaultBoxMaxHeight);
    app::WriteCommonNumber(store, "FillThreshold", app::kDefaultFillThreshold);
    app::WriteCommonFlag(store, "ProcessSingle", false);
    app::WriteCommonFlag(store, "DisplayDuringProcess", true);
}

}  // namespace tavrene::tour
