#include "ui/exporting/ExportDialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/base/PaneParts.h"
#include "ui/base/QtText.h"

namespace tavrene::ui {
namespace {

using results::Separator;

QRadioButton* Radio(const char* name, const QString& text) {
    auto* const button = new QRadioButton(text);
    button->setObjectName(name);
    return button;
}

QCheckBox* Check(const char* name, const QString& text, const QString& toolTip) {
    auto* const box = new QCheckBox(text);
    box->setObjectName(name);
    box->setToolTip(toolTip);
    return box;
}

}  // namespace

ExportDialog::ExportDialog(const commands::ExportChoice& choice, const app::WorkingFolders& folders,
                           QWidget* parent)
    : QDialog(parent),
      waiting_(Radio("optWaiting", Tr("ExportDialog", "Forms that &wait for a decision (ProcessOut)"))),
      accepted_(Radio("optAccepted", Tr("ExportDialog", "&Accepted forms (ProcessFinal)"))),
      workbook_(Radio("optWorkbook", Tr("ExportDialog", "Work&book (.xlsx), one sheet a profile"))),
      csv_(Radio("optCsv", Tr("ExportDialog", "CSV &files, one a profile"))),
      separator_(new QComboBox),
      mark_(Check("chkByteOrderMark", Tr("ExportDialog", "Byte &order mark"),
                  Tr("ExportDialog",
                     "Some spreadsheets show accents right only in files that begin with this mark"))),
      groups_(Check(
          "chkGroups", Tr("ExportDialog", "One column a &group of boxes"),
          Tr("ExportDialog",
             "Boxes with the same first words, or as set in the profile: the names of the checked ones"))) {
    setObjectName("frmExport");
    setWindowTitle(Tr("ExportDialog", "Export Results"));
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(12);
    layout->addWidget(SourceFrame(folders));
    layout->addWidget(FormatFrame());
    layout->addWidget(Buttons());
    layout->setSizeConstraint(QLayout::SetFixedSize);
    Show(choice);
    // A button box makes its first button the default one when it comes to its dialog.
    findChild<QPushButton*>("cmdExport")->setDefault(true);
}

QWidget* ExportDialog::SourceFrame(const app::WorkingFolders& folders) {
    auto* const frame = new QGroupBox(Tr("ExportDialog", "Which forms"));
    auto* const layout = new QVBoxLayout(frame);
    SetPlainToolTip(*waiting_, ToQt(folders.ProcessOut));
    SetPlainToolTip(*accepted_, ToQt(folders.ProcessFinal));
    layout->addWidget(waiting_);
    layout->addWidget(accepted_);
    return frame;
}

QWidget* ExportDialog::FormatFrame() {
    separator_->setObjectName("cboSeparator");
    separator_->addItem(Tr("ExportDialog", "Comma"), static_cast<int>(Separator::Comma));
    separator_->addItem(Tr("ExportDialog", "Semicolon"), static_cast<int>(Separator::Semicolon));
    separator_->addItem(Tr("ExportDialog", "Tab"), static_cast<int>(Separator::Tab));
    auto* const frame = new QGroupBox(Tr("ExportDialog", "As what"));
    auto* const layout = new QVBoxLayout(frame);
    layout->addWidget(workbook_);
    layout->addWidget(csv_);
    auto* const details = new QFormLayout;
    details->setContentsMargins(28, 0, 0, 0);
    details->addRow(Tr("ExportDialog", "&Separator:"), separator_);
    details->addRow(mark_);
    layout->addLayout(details);
    layout->addWidget(groups_);
    const auto offerDetails = [this] {
        separator_->setEnabled(csv_->isChecked());
        mark_->setEnabled(csv_->isChecked());
    };
    connect(csv_, &QRadioButton::toggled, this, offerDetails);
    offerDetails();
    return frame;
}

QWidget* ExportDialog::Buttons() {
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    QPushButton* const write =
        buttons->addButton(Tr("ExportDialog", "&Export..."), QDialogButtonBox::AcceptRole);
    write->setObjectName("cmdExport");
    QPushButton* const counts =
        buttons->addButton(Tr("ExportDialog", "&Counts..."), QDialogButtonBox::ActionRole);
    counts->setObjectName("cmdCounts");
    counts->setToolTip(Tr("ExportDialog", "How often each box is checked, to be printed or saved"));
    counts->setAutoDefault(false);
    buttons->button(QDialogButtonBox::Cancel)->setAutoDefault(false);
    connect(write, &QPushButton::clicked, this, [this] { done(kExport); });
    connect(counts, &QPushButton::clicked, this, [this] { done(kCounts); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    return buttons;
}

void ExportDialog::Show(const commands::ExportChoice& choice) {
    (choice.accepted ? accepted_ : waiting_)->setChecked(true);
    (choice.workbook ? workbook_ : csv_)->setChecked(true);
    separator_->setCurrentIndex(separator_->findData(static_cast<int>(choice.csv.separator)));
    mark_->setChecked(choice.csv.byteOrderMark);
    groups_->setChecked(choice.perGroup);
}

commands::ExportChoice ExportDialog::Choice() const {
    return {accepted_->isChecked(),
            workbook_->isChecked(),
            {static_cast<Separator>(separator_->currentData().toInt()), mark_->isChecked()},
            groups_->isChecked()};
}

}  // namespace tavrene::ui
