#pragma once

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QWidget>

namespace tavrene::ui {

/// Drive list (`Drive1`) and folder list (`Dir1`). The folder list shows the current folder with the folders
/// above it and in it; a double click or Enter makes a row the current folder.
class FolderChooser final : public QWidget {
  public:
    FolderChooser();

    /// Full path of the current folder, without a trailing separator (but for a root).
    QString CurrentFolder() const { return current_; }

    /// Moves to a folder and sets the drive list to its drive. One that is not there is the current folder
    /// nevertheless; the list then shows the nearest existing one above it.
    void GoTo(const QString& folder);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void FillDrives();
    void FillFolders(const QString& shown);
    void AddRow(const QString& text, const QString& path, int depth);

    QString current_;
    QComboBox* drives_;
    QListWidget* folders_;
    QLabel* path_;
};

}  // namespace tavrene::ui
