#include "ui/settings/FolderChooser.h"

#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QStorageInfo>
#include <QStyle>
#include <QVBoxLayout>

#include "ui/base/QtText.h"

namespace tavrene::ui {
namespace {

constexpr int kIndent = 3;

// Mounted file systems that can hold folders of a person; what the system mounts for itself is left out.
QStringList Drives() {
    QStringList drives = {QDir::rootPath()};
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        const QString root = volume.rootPath();
        const bool real = volume.isRoot() || volume.device().startsWith("/dev/");
        if (volume.isReady() && real && QFileInfo(root).isDir() && !drives.contains(root))
            drives.append(root);
    }
    return drives;
}

QString NearestExisting(QString path) {
    while (!QFileInfo(path).isDir() && path != QFileInfo(path).path())
        path = QFileInfo(path).path();
    return path;
}

// From the root down to `folder` itself.
QStringList Lineage(const QString& folder) {
    QStringList lineage = {folder};
    while (QFileInfo(lineage.front()).path() != lineage.front())
        lineage.prepend(QFileInfo(lineage.front()).path());
    return lineage;
}

bool LiesOn(const QString& folder, const QString& drive) {
    return folder == drive || folder.startsWith(drive.endsWith('/') ? drive : drive + '/');
}

}  // namespace

FolderChooser::FolderChooser() : drives_(new QComboBox), folders_(new QListWidget), path_(new QLabel) {
    drives_->setObjectName("Drive1");
    drives_->setAccessibleName("Drive");
    folders_->setObjectName("Dir1");
    folders_->setAccessibleName("Working folder");
    folders_->setIconSize({16, 16});
    path_->setObjectName("lblFolder");
    path_->setTextFormat(Qt::PlainText);
    path_->setWordWrap(true);
    QFont bold = path_->font();
    bold.setBold(true);
    path_->setFont(bold);
    path_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(drives_);
    layout->addWidget(folders_, 1);
    layout->addWidget(path_);
    FillDrives();
    GoTo(QDir::currentPath());
    connect(drives_, &QComboBox::activated, this, [this] { GoTo(drives_->currentData().toString()); });
    connect(folders_, &QListWidget::itemActivated, this,
            [this](const QListWidgetItem* row) { GoTo(row->data(Qt::UserRole).toString()); });
    folders_->installEventFilter(this);
}

// The list opens a folder on Enter but passes the key on, which would press the dialog's default button as
// well.
bool FolderChooser::eventFilter(QObject* watched, QEvent* event) {
    if (watched == folders_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            if (const QListWidgetItem* const row = folders_->currentItem())
                GoTo(row->data(Qt::UserRole).toString());
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void FolderChooser::GoTo(const QString& folder) {
    current_ = QDir::cleanPath(QDir(folder).absolutePath());
    const QString shown = NearestExisting(current_);
    FillFolders(shown);
    path_->setText(
        QDir::toNativeSeparators(current_) +
        (shown == current_ ? QString() : "\nis not there. Choose another folder or bring it back."));
    int best = 0;
    for (int i = 1; i < drives_->count(); ++i) {
        const QString drive = drives_->itemData(i).toString();
        if (LiesOn(current_, drive) && drive.size() > drives_->itemData(best).toString().size())
            best = i;
    }
    drives_->setCurrentIndex(best);
}

void FolderChooser::FillDrives() {
    const QStringList drives = Drives();
    for (const QString& drive : drives)
        drives_->addItem(style()->standardIcon(QStyle::SP_DriveHDIcon), QDir::toNativeSeparators(drive),
                         drive);
}

void FolderChooser::FillFolders(const QString& shown) {
    folders_->clear();
    const QStringList lineage = Lineage(shown);
    for (int depth = 0; depth < lineage.size(); ++depth) {
        const QString name = QFileInfo(lineage[depth]).fileName();
        AddRow(name.isEmpty() ? lineage[depth] : name, lineage[depth], depth);
    }
    QListWidgetItem* const here = folders_->item(folders_->count() - 1);
    const QStringList children =
        QDir(shown).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
    for (const QString& child : children)
        AddRow(child, QDir(shown).filePath(child), static_cast<int>(lineage.size()));
    folders_->setCurrentItem(here);
    folders_->scrollToItem(here, QAbstractItemView::PositionAtCenter);
}

void FolderChooser::AddRow(const QString& text, const QString& path, int depth) {
    const bool open = LiesOn(current_, path);
    auto* const row =
        new QListWidgetItem(QString(static_cast<qsizetype>(depth) * kIndent, ' ') + text, folders_);
    row->setIcon(style()->standardIcon(open ? QStyle::SP_DirOpenIcon : QStyle::SP_DirIcon));
    row->setData(Qt::UserRole, path);
    row->setToolTip(ToolTipOf(QDir::toNativeSeparators(path)));
}

}  // namespace tavrene::ui
