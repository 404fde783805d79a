#include "ui/shell/ScanIntake.h"

#include <QBuffer>
#include <QClipboard>
#include <QDateTime>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QProgressDialog>
#include <QTemporaryDir>
#include <QTimer>
#include <QUrl>
#include <memory>
#include <utility>

#include "ui/base/BusyCursor.h"
#include "ui/base/QtText.h"
#include "ui/commands/ScansIn.h"
#include "ui/profiling/CopyCommands.h"

namespace tavrene::ui {
namespace {

using commands::Command;

constexpr std::string_view kFolder = "ScansFolder";

std::vector<std::string> PathsIn(const QMimeData* data) {
    std::vector<std::string> paths;
    if (data != nullptr)
        for (const QUrl& url : data->urls())
            if (url.isLocalFile())
                paths.push_back(FromQt(url.toLocalFile()));
    return paths;
}

// A name by which the person knows it again in the lists.
QString NameOfPicture() {
    return "pasted-" + QDateTime::currentDateTime().toString("yyyyMMdd-HHmmss") + ".png";
}

// As a page without a resolution, which is matched pixel by pixel: what the toolkit would write is that of
// the screen.
QByteArray PngOf(const QImage& picture) {
    constexpr int kChunk = 21;
    constexpr int kBeforeName = 4;
    QByteArray png;
    QBuffer buffer(&png);
    picture.save(&buffer, "PNG");
    const qsizetype name = png.indexOf("pHYs");
    if (name > kBeforeName && name < png.indexOf("IDAT"))
        png.remove(name - kBeforeName, kChunk);
    return png;
}

// The dialog takes the screen's events itself while it is modal; what it lets through is its own button.
intake::Watch ProgressBox(QWidget& window) {
    const auto box = std::make_shared<QProgressDialog>(QString(), Tr("ScanIntake", "Cancel"), 0, 0, &window);
    box->setObjectName("BringInProgress");
    box->setWindowTitle(Tr("ScanIntake", "Bring In Scans"));
    box->setWindowModality(Qt::ApplicationModal);
    box->setMinimumDuration(400);
    return [box](const intake::Progress& progress) {
        // No less than this, or the box would close over the last page of a file.
        box->setMaximum(progress.pages + 1);
        box->setLabelText(Tr("ScanIntake", "%1\nFile %2 of %3, page %4 of %5")
                              .arg(ToQt(app::FileName(progress.path)))
                              .arg(progress.filesDone + 1)
                              .arg(progress.files)
                              .arg(progress.pagesDone + 1)
                              .arg(progress.pages));
        box->setValue(progress.pagesDone);
        return !box->wasCanceled();
    };
}

}  // namespace

ScanIntake::ScanIntake(QWidget& window, const IntakeContext& context)
    : QObject(&window), window_(window), context_(context) {
    window.setAcceptDrops(true);
    window.installEventFilter(this);
    context_.gate.SetHandler(Command::BringIn, [this] { Choose(); });
    context_.gate.SetHandler(Command::BringInFolder, [this] { ChooseFolder(); });
    context_.gate.SetHandler(Command::PasteScans, [this] {
        // One key for whatever was copied last.
        if (CopyCommands::AreBoxesOnClipboard() && context_.gate.Offers(Command::PasteBoxes))
            context_.gate.Run(Command::PasteBoxes);
        else
            Paste(QGuiApplication::clipboard()->mimeData());
    });
}

bool ScanIntake::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::DragEnter && event->type() != QEvent::Drop)
        return QObject::eventFilter(watched, event);
    auto& drag = static_cast<QDropEvent&>(*event);
    std::vector<std::string> paths = PathsIn(drag.mimeData());
    // The files stay where they are, whatever the other program would like best.
    drag.setDropAction(Qt::CopyAction);
    drag.setAccepted(!paths.empty() && commands::ActsIn(Command::PasteScans, context_.gate.CurrentMode()));
    // A question that opened at once would hold up the program from which they are dragged.
    if (event->type() == QEvent::Drop && drag.isAccepted())
        QTimer::singleShot(0, this, [this, dropped = std::move(paths)] { TakeWhenIdle(dropped); });
    return true;
}

void ScanIntake::TakeWhenIdle(const std::vector<std::string>& paths) {
    constexpr int kLater = 200;  // milliseconds
    if (context_.gate.IsBusy())
        QTimer::singleShot(kLater, this, [this, paths] { TakeWhenIdle(paths); });
    else
        context_.gate.Take(Command::PasteScans, [&] { CopyIn(paths); });
}

// What file managers copy may carry a small picture beside the files.
void ScanIntake::Paste(const QMimeData* clipboard) {
    const std::vector<std::string> paths = PathsIn(clipboard);
    const bool isPicture = paths.empty() && clipboard != nullptr;
    const auto picture = isPicture ? qvariant_cast<QImage>(clipboard->imageData()) : QImage();
    if (picture.isNull()) {
        CopyIn(paths);
        return;
    }
    const QTemporaryDir folder;
    QFile file(folder.filePath(NameOfPicture()));
    const QByteArray png = PngOf(picture);
    if (!file.open(QIODevice::WriteOnly) || file.write(png) != png.size() || !file.flush())
        throw app::FileError("Cannot write " + FromQt(file.fileName()));
    CopyIn({FromQt(file.fileName())});
}

std::string ScanIntake::WhyNothingIsPasted() const {
    if (!CopyCommands::AreBoxesOnClipboard())
        return "The clipboard holds no files. Copy scans or folders in a file manager first.";
    // The clipboard may outlive the program that knew them.
    return context_.gate.CurrentMode() == commands::Mode::Profile
               ? "These boxes were copied before the program was started. Copy them once more."
               : "The clipboard holds boxes. Open a profile to add them to it.";
}

void ScanIntake::CopyIn(const std::vector<std::string>& paths) {
    const BusyCursor busy;
    if (paths.empty())
        context_.person.SetPanel(app::Panel::Message, WhyNothingIsPasted());
    else
        TakeIn(paths);
}

void ScanIntake::TakeIn(const std::vector<std::string>& paths) {
    const commands::CopiedIn copied =
        commands::CopyScansIn(paths, context_.files, context_.person, context_.state.folders);
    std::vector<intake::Source> sources;
    for (const std::string& path : copied.filesOfPages)
        sources.push_back({path});
    if (!sources.empty())
        BringIn(sources, copied.told);
}

void ScanIntake::Choose() {
    Take(QFileDialog::getOpenFileNames(
        &window_, Tr("ScanIntake", "Bring In Scans"), StartFolder(),
        Tr("ScanIntake", "Scans") +
            " (*.pdf *.tif *.tiff *.jpg *.jpeg *.png *.gif *.pcx *.bmp *.jp2 *.j2k *.j2c *.webp);;" +
            Tr("ScanIntake", "All Files") + " (*)",
        nullptr, QFileDialog::HideNameFilterDetails));
}

void ScanIntake::ChooseFolder() {
    const QString chosen =
        QFileDialog::getExistingDirectory(&window_, Tr("ScanIntake", "Bring In a Folder"), StartFolder());
    Take(chosen.isEmpty() ? QStringList() : QStringList(chosen));
}

// Beside what was chosen the next is likely to lie.
void ScanIntake::Take(const QStringList& chosen) {
    std::vector<std::string> paths;
    for (const QString& path : chosen)
        paths.push_back(FromQt(path));
    if (paths.empty())
        return;
    app::WriteWindow(context_.store, kFolder, FromQt(QFileInfo(chosen.front()).path()));
    CopyIn(paths);
}

// Where files were chosen last, or else where people keep theirs: not in the working folder, whose pages are
// in already.
QString ScanIntake::StartFolder() const {
    const QString last = ToQt(app::ReadWindow(context_.store, kFolder));
    return !last.isEmpty() && QFileInfo(last).isDir() ? last : QDir::homePath();
}

void ScanIntake::BringInFurtherPages(recognition::ProcessRun& run) {
    const auto sources = commands::FurtherPagesOf(run.Summary(), context_.files, context_.state.folders);
    for (const std::string& path : BringIn(sources))
        run.ForgetFurtherPages(app::FileName(path));
}

std::vector<std::string> ScanIntake::BringIn(const std::vector<intake::Source>& sources,
                                             const std::string& told) {
    const BusyCursor busy;
    commands::PagesBroughtIn in = commands::BringPagesIn(sources, context_.files, context_.person,
                                                         context_.state.folders, ProgressBox(window_));
    context_.person.SetPanel(app::Panel::Message, told.empty() ? in.told : told + " " + in.told);
    return std::move(in.paths);
}

}  // namespace tavrene::ui
