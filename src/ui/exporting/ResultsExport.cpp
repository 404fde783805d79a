#include "ui/exporting/ResultsExport.h"

#include <QProgressDialog>
#include <memory>

#include "ui/base/QtText.h"
#include "ui/base/Shown.h"
#include "ui/commands/CountsPage.h"
#include "ui/commands/Places.h"
#include "ui/exporting/CountsDialog.h"
#include "ui/exporting/ExportDialog.h"

namespace tavrene::ui {
namespace {

constexpr std::string_view kExportFolder = "ExportFolder";

// The dialog takes the screen's events itself while it is modal; what it lets through is its own button.
results::Progress ProgressBox(QWidget& window, const std::string& work) {
    const auto box =
        std::make_shared<QProgressDialog>(Shown(work), Tr("ResultsExport", "Cancel"), 0, 0, &window);
    box->setObjectName("ExportProgress");
    box->setWindowTitle(Tr("ResultsExport", "Export Results"));
    box->setWindowModality(Qt::ApplicationModal);
    box->setMinimumDuration(400);
    return [box](std::size_t done, std::size_t total) {
        // Every form would cost more than reading it.
        constexpr std::size_t kStep = 16;
        if (done == 0)
            box->setMaximum(static_cast<int>(total));
        if (done % kStep == 0)
            box->setValue(static_cast<int>(done));
        return !box->wasCanceled();
    };
}

}  // namespace

void ResultsExport::Run() {
    ExportDialog dialog(choice_, folders_, &window_);
    const int wish = dialog.exec();
    if (wish == QDialog::Rejected)
        return;
    choice_ = dialog.Choice();
    const auto found = commands::ReadForExport(Job(), choice_, folders_);
    if (!found)
        return;
    if (wish == ExportDialog::kCounts)
        ShowCounts(*found);
    else
        Export(*found);
}

commands::ExportContext ResultsExport::Job() {
    return {context_.files, context_.person, context_.dialogs,
            [this](const std::string& work) { return ProgressBox(window_, work); }};
}

std::string ResultsExport::StartFolder() const {
    std::string folder = app::ReadWindow(context_.store, kExportFolder);
    return !folder.empty() && context_.files.FolderExists(folder)
               ? folder
               : commands::WorkingFolderInUse(folders_) + "/";
}

void ResultsExport::Export(const results::Results& found) {
    if (const auto folder = commands::WriteExport(Job(), choice_, found, folders_.Profiles, StartFolder()))
        app::WriteWindow(context_.store, kExportFolder, *folder);
}

void ResultsExport::ShowCounts(const results::Results& found) {
    CountsDialog(commands::CountsPage(found.Tables, commands::SourceOf(choice_, folders_)),
                 {context_.files, context_.dialogs, StartFolder()}, &window_)
        .exec();
}

}  // namespace tavrene::ui
