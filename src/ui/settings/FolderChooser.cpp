#include "ui/settings/FolderChooser.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
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

FolderChooser::FolderChooser()
    : drives_(new QComboBox), folders_(new QListWidget), path_(new QLineEdit), missing_(new QLabel) {
    drives_->setObjectName("Drive1");
    drives_->setAccessibleName(Tr("FolderChooser", "Drive"));
    folders_->setObjectName("Dir1");
    folders_->setAccessibleName(Tr("FolderChooser", "Working folder"));
    folders_->setIconSize({16, 16});
    path_->setObjectName("txtFolder");
    path_->setAccessibleName(Tr("FolderChooser", "Path of the working folder"));
    missing_->setObjectName("lblFolder");
    missing_->setWordWrap(true);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(path_);
    layout->addWidget(missing_);
    layout->addWidget(drives_);
    layout->addWidget(folders_, 1);
    layout->addLayout(Buttons());
    FillDrives();
    GoTo(QDir::currentPath());
    connect(drives_, &QComboBox::activated, this, [this] { GoTo(drives_->currentData().toString()); });
    connect(folders_, &QListWidget::itemActivated, this,
            [this](const QListWidgetItem* row) { GoTo(row->data(Qt::UserRole).toString()); });
    connect(folders_, &QListWidget::itemClicked, this,
            [this](const QListWidgetItem* row) { Choose(row->data(Qt::UserRole).toString()); });
    connect(path_, &QLineEdit::textEdited, this, [this](const QString& text) {
        const QString path = QDir::fromNativeSeparators(text);
        current_ = QDir::cleanPath(
            QDir(path.startsWith("~/") ? QDir::homePath() + path.mid(1) : path).absolutePath());
    });
    connect(path_, &QLineEdit::editingFinished, this, [this] { GoTo(current_); });
    folders_->installEventFilter(this);
    path_->installEventFilter(this);
}

QLayout* FolderChooser::Buttons() {
    auto* const browse = new QPushButton(Tr("FolderChooser", "&Browse..."));
    browse->setObjectName("cmdBrowse");
    auto* const make = new QPushButton(Tr("FolderChooser", "&New Folder..."));
    make->setObjectName("cmdNewFolder");
    auto* const row = new QHBoxLayout;
    for (QPushButton* const button : {browse, make}) {
        button->setAutoDefault(false);
        row->addWidget(button);
    }
    row->addStretch();
    connect(browse, &QPushButton::clicked, this, &FolderChooser::Browse);
    connect(make, &QPushButton::clicked, this, &FolderChooser::MakeFolder);
    return row;
}

void FolderChooser::Browse() {
    const QString chosen =
        QFileDialog::getExistingDirectory(this, Tr("FolderChooser", "Working Folder"), current_,
                                          QFileDialog::ShowDirsOnly | QFileDialog::DontUseNativeDialog);
    if (!chosen.isEmpty())
        GoTo(chosen);
}

void FolderChooser::MakeFolder() {
    const QString name =
        QInputDialog::getText(this, Tr("FolderChooser", "New Folder"),
                              Tr("FolderChooser", "Name of the new folder in\n%1:").arg(current_))
            .trimmed();
    if (name.isEmpty())
        return;
    if (QDir(current_).mkdir(name))
        GoTo(QDir(current_).filePath(name));
    else
        QMessageBox::warning(
            this, Tr("FolderChooser", "New Folder"),
            Tr("FolderChooser", "The folder %1 cannot be made in %2. Choose another name or another place.")
                .arg(name, current_));
}

// The list opens a folder on Enter but passes the key on, as the line does, which would press the dialog's
// default button as well.
bool FolderChooser::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter)
        return QWidget::eventFilter(watched, event);
    if (watched == path_)
        GoTo(current_);
    else if (const QListWidgetItem* const row = folders_->currentItem())
        GoTo(row->data(Qt::UserRole).toString());
    return true;
}

// The rows stay where they are, or a double click would hit another one.
void FolderChooser::Choose(const QString& folder) {
    current_ = folder;
    path_->setText(QDir::toNativeSeparators(current_));
    missing_->setVisible(false);
}

void FolderChooser::GoTo(const QString& folder) {
    const QString whole = QDir::cleanPath(QDir(folder).absolutePath());
    const QString shown = NearestExisting(whole);
    Choose(whole);
    FillFolders(shown);
    missing_->setText(
        Tr("FolderChooser", "This folder is not there. Choose another one, or make it with New Folder."));
    missing_->setVisible(shown != current_);
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
