#include "ui/shell/QtFileDialogs.h"

#include <QAbstractItemView>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <algorithm>
#include <utility>

#include "ui/base/BusyCursor.h"
#include "ui/base/FitToScreen.h"
#include "ui/base/QtText.h"
#include "ui/base/Shown.h"
#include "ui/page/PageImage.h"

namespace tavrene::ui {
namespace {

// "Text|*.A;*.B" as the dialog takes it: the text for the person, then its patterns in brackets, which the
// dialog hides.
QString NameFilter(const std::string& filter) {
    const QStringList parts = ToQt(filter).split('|');
    return Shown(FromQt(parts.front())) + " (" + parts.back().split(';').join(' ') + ")";
}

// The last extension that a filter names, with its dot.
QString ExtensionOf(const std::string& filter) {
    return ToQt(filter).section('*', -1);
}

// A file is the same one however its name is typed, so one that is there keeps its spelling.
QString SpelledOnDisk(const QFileInfo& file) {
    const QStringList names = file.dir().entryList(QDir::Files);
    const auto same = [&file](const QString& name) {
        return name.compare(file.fileName(), Qt::CaseInsensitive) == 0;
    };
    const auto found = std::find_if(names.begin(), names.end(), same);
    return names.contains(file.fileName()) || found == names.end() ? file.fileName() : *found;
}

// As a path is pasted that another program has put in quotes.
QString WithoutQuotesAround(const QString& typed) {
    const bool isQuoted =
        typed.size() > 2 && typed.startsWith('"') && typed.endsWith('"') && typed.count('"') == 2;
    return isQuoted ? typed.mid(1, typed.size() - 2) : typed;
}

constexpr int kWidth = 760;
constexpr int kHeight = 460;
constexpr int kPictureWidth = 260;

class FileDialog final : public QFileDialog {
  public:
    FileDialog(QWidget& window, const app::FileQuestion& question)
        : QFileDialog(&window, Shown(question.title), ToQt(question.startFolder)) {
        setObjectName("FileDialog");
        setOption(QFileDialog::DontUseNativeDialog);
        setOption(QFileDialog::HideNameFilterDetails);
        setNameFilter(NameFilter(question.filter));
        selectFile(ToQt(question.fileName));
        ResizeWithinScreen(*this, {kWidth, kHeight});
    }

    /// Files to be written get this extension, and the spelling of one that is there. That comes before the
    /// dialog looks whether the file is there already.
    void SetExtension(const QString& extension) { extension_ = extension; }

    /// Takes no file that is there, and stays open.
    void TakeOnlyNew() {
        takesOnlyNew_ = true;
        setOption(QFileDialog::DontConfirmOverwrite);
    }

    /// Shows the picture of the file that is highlighted beside the list.
    void ShowPictures(const app::Files& files) {
        auto* const picture = new QLabel(Tr("FileDialog", "No picture"), this);
        picture->setObjectName("Picture");
        picture->setAccessibleName(Tr("FileDialog", "Picture of the highlighted file"));
        picture->setAlignment(Qt::AlignCenter);
        picture->setFrameShape(QFrame::StyledPanel);
        picture->setFixedWidth(kPictureWidth);
        auto* const grid = dynamic_cast<QGridLayout*>(layout());
        grid->addWidget(picture, 1, grid->columnCount(), grid->rowCount() - 1, 1);
        ResizeWithinScreen(*this, {kWidth + kPictureWidth, kHeight});
        connect(this, &QFileDialog::currentChanged, picture, [picture, &files](const QString& path) {
            const QImage image = QFileInfo(path).isFile() ? ReadPageImage(files, FromQt(path)) : QImage();
            if (image.isNull()) {
                picture->setText(Tr("FileDialog", "No picture"));
                return;
            }
            const qreal scale = picture->devicePixelRatioF();
            const QSize room = (picture->contentsRect().size() - QSize(8, 8)) * scale;
            // A picture of two colours would be scaled to two colours.
            QPixmap page =
                QPixmap::fromImage(image.convertToFormat(QImage::Format_RGB32)
                                       .scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation));
            page.setDevicePixelRatio(scale);
            picture->setPixmap(page);
        });
    }

    std::optional<std::string> Ask() {
        const UsualCursor usual;
        if (exec() != QDialog::Accepted)
            return std::nullopt;
        return FromQt(named_.isEmpty() ? selectedFiles().front() : named_);
    }

    void accept() override {
        auto* const nameEdit = findChild<QLineEdit*>("fileNameEdit");
        const QString typed = WithoutQuotesAround(nameEdit->text());
        nameEdit->setText(typed);
        if (typed.contains('"')) {
            AcceptName(typed);
            return;
        }
        const QStringList files = FilesOf(typed);
        if (!extension_.isEmpty() && !files.isEmpty() && !QFileInfo(files.front()).isDir()) {
            if (IsHidden(files.front()))
                return;
            nameEdit->setText(Completed(typed, files.front()));
            if (IsTaken(directory().absoluteFilePath(nameEdit->text())))
                return;
        }
        QFileDialog::accept();
    }

  private:
    // The file of a name that is proposed may be selected in the list, which counts for more than what is
    // typed.
    QStringList FilesOf(const QString& typed) {
        QStringList files = selectedFiles();
        const QFileInfo first(files.value(0));
        if (extension_.isEmpty() || first.isDir() || first.fileName() == typed)
            return files;
        findChild<QAbstractItemView*>("listView")->clearSelection();
        return selectedFiles();
    }

    // The dialog itself would take each piece between two quotes for a file.
    void AcceptName(const QString& typed) {
        const QString path = directory().absoluteFilePath(typed);
        const QString named =
            extension_.isEmpty() ? path : directory().absoluteFilePath(Completed(typed, path));
        const QString name = QFileInfo(named).fileName();
        const bool isThere = QFileInfo::exists(named);
        if (extension_.isEmpty() && !isThere) {
            QMessageBox::warning(this, windowTitle(), Tr("FileDialog", "%1\nFile not found.").arg(name));
            return;
        }
        if (!extension_.isEmpty() && (IsHidden(named) || IsTaken(named) || (isThere && !MayReplace(name))))
            return;
        named_ = named;
        // The file dialog's own would take the name apart again.
        QDialog::accept();  // NOLINT(bugprone-parent-virtual-call)
    }

    bool MayReplace(const QString& name) {
        return QMessageBox::warning(
                   this, windowTitle(),
                   Tr("FileDialog", "%1 already exists.\nDo you want to replace it?").arg(name),
                   QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
    }

    bool IsTaken(const QString& path) {
        if (!takesOnlyNew_ || !QFileInfo::exists(path))
            return false;
        QMessageBox::warning(
            this, windowTitle(),
            Tr("FileDialog", "%1 is there already.\nChoose another name.").arg(QFileInfo(path).fileName()));
        auto* const nameEdit = findChild<QLineEdit*>("fileNameEdit");
        nameEdit->setFocus();
        nameEdit->selectAll();
        return true;
    }

    // No list of the program shows such a file.
    bool IsHidden(const QString& path) {
        const bool isHidden = QFileInfo(path).fileName().startsWith('.');
        if (isHidden)
            QMessageBox::warning(
                this, windowTitle(),
                Tr("FileDialog", "A file whose name begins with a dot is hidden. Choose another name."));
        return isHidden;
    }

    // What was typed for `path`.
    QString Completed(QString typed, const QString& path) const {
        const QString end = path.endsWith(extension_, Qt::CaseInsensitive) ? QString() : extension_;
        const QFileInfo file(path + end);
        typed += end;
        return typed.endsWith(file.fileName()) ? typed.chopped(file.fileName().size()) + SpelledOnDisk(file)
                                               : typed;
    }

    QString extension_;
    bool takesOnlyNew_ = false;
    QString named_;  ///< The file whose name the dialog itself would not take.
};

}  // namespace

std::optional<std::string> QtFileDialogs::AskSaveFile(const app::FileQuestion& question) {
    FileDialog dialog(window_, question);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.SetExtension(ExtensionOf(question.filter));
    if (question.isForNew)
        dialog.TakeOnlyNew();
    return dialog.Ask();
}

std::optional<std::string> QtFileDialogs::AskOpenFile(const app::FileQuestion& question) {
    FileDialog dialog(window_, question);
    dialog.setFileMode(QFileDialog::ExistingFile);
    // To choose a scan must not be a way to delete or rename one.
    dialog.setOption(QFileDialog::ReadOnly);
    dialog.ShowPictures(files_);
    return dialog.Ask();
}

std::optional<std::string> QtFileDialogs::AskFolder(const std::string& title,
                                                    const std::string& startFolder) {
    FileDialog dialog(window_, {title, startFolder, {}, "Folders|*"});
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    const std::optional<std::string> folder = dialog.Ask();
    return folder && !folder->ends_with('/') ? *folder + '/' : folder;
}

}  // namespace tavrene::ui
