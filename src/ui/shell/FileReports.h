#pragma once

#include <QDialog>
#include <QPlainTextEdit>

namespace tavrene::ui {

/// The one box over the page that tells of files that could not be used. It does not stop the work: while it
/// is open further messages are added to it as lines; once closed, the next message opens it anew.
class FileReports final : public QDialog {
  public:
    /// The box opens within `page`, so that it covers neither a list nor a bar.
    FileReports(QWidget* window, const QWidget& page);

    void Add(const QString& fileName, const QString& text);

  private:
    void OpenOverPage();

    const QWidget& page_;
    QPlainTextEdit* lines_;
};

}  // namespace tavrene::ui
