#include "ui/settings/TrySamples.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <exception>

#include "profiles/SampleForms.h"
#include "ui/base/BusyCursor.h"
#include "ui/base/QtText.h"
#include "ui/base/Shown.h"

namespace tavrene::ui {
namespace {

constexpr const char* kOwnFolder = "Tavrene Samples";

bool HoldsSamples(const QDir& folder) {
    return folder.exists("profiles") && folder.exists("blanks") && folder.exists("scans");
}

}  // namespace

QString SamplesFolder() {
    // A build lies in a few folders below its sources.
    constexpr int kMostSteps = 5;
    QDir folder(QCoreApplication::applicationDirPath());
    const QDir installed(folder.filePath("../share/tavrene-checkboxes/samples"));
    if (HoldsSamples(installed))
        return installed.canonicalPath();
    for (int step = 0; step < kMostSteps && folder.cdUp(); ++step)
        if (HoldsSamples(QDir(folder.filePath("samples"))))
            return folder.filePath("samples");
    return {};
}

QString TrySamples(QWidget* parent, app::Files& files) {
    const QString picked = QFileDialog::getExistingDirectory(
        parent, Tr("TrySamples", "Folder for the Samples"), QDir::homePath(),
        QFileDialog::ShowDirsOnly | QFileDialog::DontUseNativeDialog);
    if (picked.isEmpty())
        return {};
    const BusyCursor busy;
    QString folder = QDir(picked).isEmpty() ? picked : QDir(picked).filePath(kOwnFolder);
    try {
        if (!files.FolderExists(FromQt(folder)))
            files.CreateFolder(FromQt(folder));
        profiles::CopySampleForms(files, FromQt(SamplesFolder()), FromQt(folder));
        return folder;
    } catch (const std::exception& failure) {
        const UsualCursor usual;
        QMessageBox::warning(parent, Tr("TrySamples", "Try with Samples"),
                             Shown(failure.what()) + '\n' + Tr("TrySamples", "Choose another folder."));
        return {};
    }
}

}  // namespace tavrene::ui
