#pragma once

#include <QDialog>
#include <QTextBrowser>

#include "app/FileDialogs.h"
#include "app/Files.h"

namespace tavrene::ui {

/// The dialog `frmCounts`: a page of counts to read, print, or save as PDF or PNG.
class CountsDialog final : public QDialog {
  public:
    struct Context {
        app::Files& files;
        app::FileDialogs& dialogs;
        std::string startFolder;  ///< Where the file dialogs open; ends in a separator.
    };

    /// `html` is the page. The references must outlive the dialog.
    CountsDialog(const std::string& html, Context context, QWidget* parent);

  private:
    QWidget* Buttons();
    void Print();
    void SavePdf();
    void SavePng();
    void Write(const std::string& path, const QByteArray& content);

    Context context_;
    QTextBrowser* page_;
};

}  // namespace tavrene::ui
