#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QWidget>

namespace tavrene::ui {

/// Drive list (`Drive1`) and folder list (`Dir1`), and the current folder as a text that can be typed. The
/// folder list shows the folder that it was moved to with the folders above it and in it. A click makes a row
/// the current folder; a double click or Enter moves there as well.
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
    QLayout* Buttons();
    void Choose(const QString& folder);
    void Browse();
    void MakeFolder();
    void FillFolders(const QString& shown);
    void AddRow(const QString& text, const QString& path, int depth);

    QString current_;
    QComboBox* drives_;
    QListWidget* folders_;
    QLineEdit* path_;
    QLabel* missing_;  ///< Says that the current folder is not there.
};

}  // namespace tavrene::ui
