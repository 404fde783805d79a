#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QRadioButton>

#include "ui/commands/ExportCommand.h"

namespace tavrene::ui {

/// The dialog `frmExport`: which forms to export, and as what.
class ExportDialog final : public QDialog {
  public:
    /// What `exec` gives beside `Rejected`.
    enum Wish { kExport = QDialog::Accepted, kCounts = 2 };

    /// Shows `choice`; the paths in `folders` tell which folders are meant.
    ExportDialog(const commands::ExportChoice& choice, const app::WorkingFolders& folders, QWidget* parent);

    /// What the controls show now.
    commands::ExportChoice Choice() const;

  private:
    QWidget* SourceFrame(const app::WorkingFolders& folders);
    QWidget* FormatFrame();
    QWidget* Buttons();
    void Show(const commands::ExportChoice& choice);

    QRadioButton* waiting_;
    QRadioButton* accepted_;
    QRadioButton* workbook_;
    QRadioButton* csv_;
    QComboBox* separator_;
    QCheckBox* mark_;
    QCheckBox* groups_;
};

}  // namespace tavrene::ui
