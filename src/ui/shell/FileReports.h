#pragma once

#include <QDialog>
#include <QPlainTextEdit>

namespace tavrene::ui {

/// The one box beside the window that tells of files that could not be used. It does not stop the work: while
/// it is open further messages are added to it as lines; once closed, the next message opens it anew.
class FileReports final : public QDialog {
  public:
    explicit FileReports(QWidget* window);

    void Add(const QString& fileName, const QString& text);

  private:
    void OpenBesideWindow();

    QPlainTextEdit* lines_;
};

}  // namespace tavrene::ui
