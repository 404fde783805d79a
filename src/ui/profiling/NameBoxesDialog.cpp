#include "ui/profiling/NameBoxesDialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <map>
#include <stdexcept>
#include <utility>

#include "profiles/BoxSelection.h"
#include "profiles/NameCleaning.h"
#include "profiles/PrintedNames.h"
#include "ui/base/QtText.h"
#include "ui/base/Shown.h"
#include "ui/profiling/PrintReader.h"

namespace tavrene::ui {
namespace {

constexpr int kPatternPage = 0;
constexpr int kListPage = 1;
constexpr std::size_t kMostTroubles = 3;

// The first and the last names tell how the others are made.
QString Outcome(const std::vector<profiles::NewName>& names) {
    if (names.empty())
        return Tr("NameBoxesDialog", "No name changes.");
    const QString first = ToQt(names.front().name);
    const QString last = ToQt(names.back().name);
    return names.size() == 1
               ? Tr("NameBoxesDialog", "One box: %1").arg(first)
               : Tr("NameBoxesDialog", "%1 boxes: %2 ... %3").arg(QString::number(names.size()), first, last);
}

}  // namespace

NameBoxesDialog::NameBoxesDialog(const std::vector<profiles::OmrBox>& boxes, std::vector<int> numbers,
                                 QString image, Preview preview, QWidget* parent)
    : QDialog(parent),
      boxes_(boxes),
      numbers_(std::move(numbers)),
      image_(std::move(image)),
      preview_(std::move(preview)),
      ways_(new QTabWidget(this)),
      sorts_(new QCheckBox(Tr("NameBoxesDialog", "S&ort the list in this order"), this)),
      outcome_(new QLabel(this)) {
    setObjectName("frmNameBoxes");
    setWindowTitle(Tr("NameBoxesDialog", "Name Boxes"));
    Build();
    Update();
}

QLineEdit* NameBoxesDialog::Field(const char* name, const QString& label, const QString& text) {
    auto* const field = new QLineEdit(text, this);
    field->setObjectName(name);
    field->setAccessibleName(label);
    connect(field, &QLineEdit::textChanged, this, [this] { Update(); });
    return field;
}

QWidget* NameBoxesDialog::PatternPage() {
    auto* const page = new QWidget;
    auto* const form = new QFormLayout(page);
    pattern_ = Field("txtPattern", Tr("NameBoxesDialog", "Pattern"), "Q{row} {column}");
    pattern_->setToolTip(Tr("NameBoxesDialog",
                            "{row} and {column}: where the box stands; {n:02}: its number, with two digits;\n"
                            "{column:A}: a letter; {block}: the block of columns; {name}: the name it has"));
    rows_ = Field("txtRows", Tr("NameBoxesDialog", "Names of the rows"));
    rows_->setPlaceholderText("1, 2, 3 ...");
    columns_ = Field("txtColumns", Tr("NameBoxesDialog", "Names of the columns"));
    columns_->setPlaceholderText(Tr("NameBoxesDialog", "often, rarely, never"));
    first_ = new QSpinBox;
    first_->setObjectName("numFirst");
    first_->setAccessibleName(Tr("NameBoxesDialog", "Counted from"));
    first_->setRange(0, 9999);
    first_->setValue(1);
    connect(first_, &QSpinBox::valueChanged, this, [this] { Update(); });
    form->addRow(Tr("NameBoxesDialog", "&Pattern"), pattern_);
    form->addRow(Tr("NameBoxesDialog", "&Counted from"), first_);
    form->addRow(Tr("NameBoxesDialog", "Names of the &rows"), rows_);
    form->addRow(Tr("NameBoxesDialog", "Names of the co&lumns"), columns_);
    return page;
}

QWidget* NameBoxesDialog::ListPage() {
    lines_ = new QPlainTextEdit;
    lines_->setObjectName("txtNames");
    lines_->setAccessibleName(Tr("NameBoxesDialog", "Names, one a line"));
    lines_->setPlaceholderText(Tr("NameBoxesDialog", "One name a line, as a column of a table is pasted"));
    lines_->setTabChangesFocus(true);
    connect(lines_, &QPlainTextEdit::textChanged, this, [this] { Update(); });
    auto* const suggest = new QPushButton(Tr("NameBoxesDialog", "Su&ggest From Print"));
    suggest->setObjectName("cmdSuggest");
    suggest->setAutoDefault(false);
    const QString whyNot = WhyNoPrintIsRead();
    suggest->setEnabled(whyNot.isEmpty());
    suggest->setToolTip(
        whyNot.isEmpty()
            ? Tr("NameBoxesDialog", "Fills the list with the words that are printed beside the boxes")
            : whyNot);
    connect(suggest, &QPushButton::clicked, this, [this] { SuggestFromPrint(); });
    auto* const page = new QWidget;
    auto* const column = new QVBoxLayout(page);
    column->addWidget(lines_, 1);
    column->addWidget(suggest, 0, Qt::AlignLeft);
    return page;
}

QWidget* NameBoxesDialog::ReplacePage() {
    auto* const page = new QWidget;
    auto* const form = new QFormLayout(page);
    find_ = Field("txtFind", Tr("NameBoxesDialog", "Find"));
    replace_ = Field("txtReplace", Tr("NameBoxesDialog", "Replace with"));
    form->addRow(Tr("NameBoxesDialog", "&Find"), find_);
    form->addRow(Tr("NameBoxesDialog", "Replace &with"), replace_);
    return page;
}

QLayout* NameBoxesDialog::OrderRow() {
    auto* const across = new QRadioButton(Tr("NameBoxesDialog", "Row &by row"));
    across->setObjectName("optAcross");
    across->setChecked(true);
    down_ = new QRadioButton(Tr("NameBoxesDialog", "Column by colu&mn"));
    down_->setObjectName("optDown");
    connect(down_, &QRadioButton::toggled, this, [this] { Update(); });
    sorts_->setObjectName("chkSort");
    sorts_->setToolTip(Tr("NameBoxesDialog",
                          "The list, and so the results, has the boxes as they are counted here:\n"
                          "one block of columns after the other"));
    auto* const ways = new QHBoxLayout;
    ways->addWidget(across);
    ways->addWidget(down_);
    ways->addStretch(1);
    ways->addWidget(sorts_);
    return ways;
}

void NameBoxesDialog::Build() {
    ways_->setObjectName("tabWays");
    ways_->addTab(PatternPage(), Tr("NameBoxesDialog", "P&attern"));
    ways_->addTab(ListPage(), Tr("NameBoxesDialog", "Li&st"));
    ways_->addTab(ReplacePage(), Tr("NameBoxesDialog", "F&ind and Replace"));
    connect(ways_, &QTabWidget::currentChanged, this, [this] { Update(); });
    outcome_->setObjectName("lblOutcome");
    outcome_->setWordWrap(true);
    outcome_->setMinimumHeight(4 * fontMetrics().height());
    outcome_->setAlignment(Qt::AlignTop);
    outcome_->setTextFormat(Qt::PlainText);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    rename_ = buttons->addButton(Tr("NameBoxesDialog", "&Name Them"), QDialogButtonBox::AcceptRole);
    rename_->setObjectName("cmdOK");
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const layout = new QVBoxLayout(this);
    const bool isAll = numbers_.size() == profiles::KeptNumbers(boxes_).size();
    layout->addWidget(new QLabel(
        (isAll ? Tr("NameBoxesDialog", "All %1 boxes") : Tr("NameBoxesDialog", "The %1 selected boxes"))
            .arg(numbers_.size())));
    layout->addWidget(ways_);
    layout->addLayout(OrderRow());
    layout->addWidget(outcome_);
    layout->addWidget(buttons);
    // Only a button that is in its dialog can be the one that Enter means.
    buttons->button(QDialogButtonBox::Cancel)->setAutoDefault(false);
    rename_->setDefault(true);
    pattern_->setFocus();
    pattern_->selectAll();
}

std::vector<profiles::BoxCell> NameBoxesDialog::Cells() const {
    const auto order = down_->isChecked() ? profiles::CellOrder::Down : profiles::CellOrder::Across;
    return profiles::CellsOf(boxes_, numbers_, order);
}

std::vector<int> NameBoxesDialog::Order() const {
    std::vector<int> numbers;
    if (sorts_->isChecked())
        for (const profiles::BoxCell& cell : Cells())
            numbers.push_back(cell.number);
    return numbers;
}

// One line a box; boxes beside which nothing was read keep their names.
void NameBoxesDialog::SuggestFromPrint() {
    const ReadPrint read = ReadPrintOf(image_, *this);
    if (read.table.empty()) {
        if (!read.failure.isEmpty())
            outcome_->setText(read.failure);
        return;
    }
    const std::vector<profiles::BoxCell> cells = Cells();
    const std::vector<profiles::PrintedWord> words = profiles::WordsOfTable(read.table);
    std::map<int, QString> names;
    for (const profiles::NewName& name : profiles::NamesFromPrint(boxes_, cells, words))
        names[name.number] = ToQt(name.name);
    if (names.empty()) {
        outcome_->setText(Tr("NameBoxesDialog", "No print was found beside the boxes."));
        return;
    }
    QStringList lines;
    for (const profiles::BoxCell& cell : cells)
        lines += names[cell.number];
    lines_->setPlainText(lines.join('\n'));
}

std::vector<profiles::NewName> NameBoxesDialog::Asked() const {
    const std::vector<profiles::BoxCell> cells = Cells();
    const auto words = [](const QLineEdit* field) { return profiles::WordsOf(FromQt(field->text())); };
    switch (ways_->currentIndex()) {
        case kPatternPage:
            return profiles::NamesByPattern(
                boxes_, cells, {FromQt(pattern_->text()), words(rows_), words(columns_), first_->value()});
        case kListPage:
            // A single line is a name, whatever commas it has.
            return profiles::NamesOfLines(cells, profiles::WordsOf(FromQt(lines_->toPlainText() + '\n')));
        default:
            return profiles::NamesReplaced(boxes_, cells, FromQt(find_->text()), FromQt(replace_->text()));
    }
}

// Of the lists, as they come out of tables. What is typed into a pattern is told as a fault.
bool NameBoxesDialog::LosesCharacters() const {
    const QString listed = ways_->currentIndex() == kListPage      ? lines_->toPlainText()
                           : ways_->currentIndex() == kPatternPage ? rows_->text() + columns_->text()
                                                                   : QString();
    return FromQt(listed).find_first_of(profiles::kForbiddenInNames) != std::string::npos;
}

void NameBoxesDialog::Update() {
    if (rename_ == nullptr)
        return;
    try {
        names_ = Asked();
    } catch (const std::invalid_argument& misspelt) {
        names_.clear();
        outcome_->setText(Shown(misspelt.what()));
        rename_->setEnabled(false);
        preview_({}, {});
        return;
    }
    const profiles::NameTroubles troubles = profiles::TroublesOf(boxes_, names_);
    QString text = Outcome(names_);
    for (std::size_t k = 0; k < std::min(kMostTroubles, troubles.texts.size()); ++k)
        text += '\n' + Shown(troubles.texts[k]);
    if (troubles.texts.size() > kMostTroubles)
        text += '\n' + Tr("NameBoxesDialog", "... and %1 more.").arg(troubles.texts.size() - kMostTroubles);
    if (LosesCharacters())
        text +=
            '\n' + Tr("NameBoxesDialog", "Double quotes, < and & are left out: no profile can hold them.");
    outcome_->setText(text);
    rename_->setEnabled(!names_.empty() && !troubles.mayNotBe);
    preview_(names_, troubles.numbers);
}

}  // namespace tavrene::ui
