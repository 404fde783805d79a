#include "ui/profiling/TestProfileDialog.h"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QShortcut>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>
#include <variant>

#include "app/Reason.h"
#include "ui/base/BusyCursor.h"
#include "ui/base/FitToScreen.h"
#include "ui/base/QtText.h"
#include "ui/base/Shown.h"

namespace tavrene::ui {
namespace {

using imaging::RectStyle;
using recognition::MarkReading;

// Zeros at all empty boxes would cover what is printed beside them.
constexpr double kLeastShown = 0.5;

QString ScanFilter() {
    return Tr("TestProfileDialog", "Scans") + " (*.tif *.jpg *.png *.gif *.pcx *.bmp);;" +
           Tr("TestProfileDialog", "All files") + " (*)";
}

template <typename Control>
Control* Named(Control* control, const char* name, const QString& accessible) {
    control->setObjectName(name);
    control->setAccessibleName(accessible);
    return control;
}

QLabel* Sentence(const char* name) {
    auto* const label = new QLabel;
    label->setObjectName(name);
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    label->setMinimumHeight(2 * label->fontMetrics().lineSpacing());
    label->setAlignment(Qt::AlignTop);
    return label;
}

RectStyle StyleOf(bool isRead, bool isTicked) {
    if (!isRead)
        return RectStyle::Skipped;
    return isTicked ? RectStyle::Checked : RectStyle::Unchecked;
}

}  // namespace

std::vector<std::string> ScansIn(const app::Files& files, const std::string& folder) {
    std::vector<std::string> scans;
    if (files.FolderExists(folder))
        for (const std::string& name : files.List(folder, "*"))
            if (imaging::FormatOfExtension(name))
                scans.push_back(folder + name);
    return scans;
}

TestProfileDialog::TestProfileDialog(TrialContext context, QWidget* parent)
    : QDialog(parent),
      context_(std::move(context)),
      scans_(Named(new QListWidget, "lvwScans", Tr("TestProfileDialog", "Scans"))),
      page_(Named(new ImageView(context_.files, this), "TestPage",
                  Tr("TestProfileDialog", "Scan with the boxes of the profile"))),
      boxes_(Named(new BoxListView(this), "TestBoxes", Tr("TestProfileDialog", "Check boxes of the scan"))),
      plain_(Named(new QRadioButton(Tr("TestProfileDialog", "Plai&n reading")), "optPlain",
                   Tr("TestProfileDialog", "Plain reading"))),
      exact_(Named(new QRadioButton(Tr("TestProfileDialog", "Precise &Alignment")), "optPrecise",
                   Tr("TestProfileDialog", "Precise Alignment"))),
      threshold_(Named(new QSlider(Qt::Horizontal), "sldThreshold",
                       Tr("TestProfileDialog", "Fill threshold in percent"))),
      percent_(new QLabel),
      verdict_(Sentence("lblVerdict")),
      counts_(Sentence("lblCounts")),
      use_(new QPushButton) {
    setObjectName("frmTestProfile");
    setWindowTitle(
        Tr("TestProfileDialog", "Test Profile %1").arg(ToQt(context_.profiles[context_.tried].Name)));
    Build();
    AddScans(context_.scans);
    if (scans_->count() == 0)
        ShowNothing(Tr("TestProfileDialog", "There are no scans in %1. Choose some with Other Scans.")
                        .arg(ToQt(context_.folder)));
}

void TestProfileDialog::Build() {
    auto* const middle = new QSplitter(this);
    middle->setChildrenCollapsible(false);
    middle->addWidget(ScanColumn());
    middle->addWidget(page_);
    middle->addWidget(boxes_);
    middle->setStretchFactor(1, 1);
    middle->setSizes({190, 700, 270});
    auto* const column = new QVBoxLayout(this);
    column->addWidget(verdict_);
    column->addWidget(middle, 1);
    column->addWidget(Controls());
    page_->SetNames([this](int number) { return boxes_->NameOf(number); });
    page_->KeepFit(ZoomFit::Page);
    boxes_->SetListener({[this](int number, profiles::Pick) { page_->Emphasise(number); }, {}});
    connect(scans_, &QListWidget::currentRowChanged, this, [this] { ShowScan(); });
    for (QRadioButton* const way : {plain_, exact_})
        connect(way, &QRadioButton::clicked, this, [this] { ReadScan(); });
    connect(threshold_, &QSlider::valueChanged, this, [this] { ShowMarks(); });
    for (const auto& [key, by] : {std::pair(Qt::Key_PageDown, 1), std::pair(Qt::Key_PageUp, -1)})
        connect(new QShortcut(key, this), &QShortcut::activated, this, [this, by = by] { Step(by); });
    ResizeWithinScreen(*this, {1200, 780});
    scans_->setFocus();
}

QWidget* TestProfileDialog::ScanColumn() {
    auto* const pane = new QWidget;
    auto* const column = new QVBoxLayout(pane);
    column->setContentsMargins(0, 0, 0, 0);
    scans_->setTextElideMode(Qt::ElideMiddle);
    column->addWidget(scans_, 1);
    auto* const other = Named(new QPushButton(Tr("TestProfileDialog", "&Other Scans...")), "cmdOtherScans",
                              Tr("TestProfileDialog", "Other scans"));
    other->setAutoDefault(false);
    connect(other, &QPushButton::clicked, this, [this] { ChooseScans(); });
    column->addWidget(other);
    column->addWidget(new QLabel(Tr("TestProfileDialog", "PgUp, PgDown: other scans")));
    return pane;
}

QWidget* TestProfileDialog::Controls() {
    auto* const pane = new QWidget;
    auto* const column = new QVBoxLayout(pane);
    column->setContentsMargins(0, 0, 0, 0);
    auto* const row = new QHBoxLayout;
    (context_.way == recognition::TrialWay::Plain ? plain_ : exact_)->setChecked(true);
    threshold_->setRange(1, 100);
    threshold_->setValue(context_.threshold);
    percent_->setMinimumWidth(percent_->fontMetrics().horizontalAdvance("100 %"));
    auto* const caption = new QLabel(Tr("TestProfileDialog", "Fill &threshold"));
    caption->setBuddy(threshold_);
    row->addWidget(plain_);
    row->addWidget(exact_);
    row->addSpacing(16);
    row->addWidget(caption);
    row->addWidget(threshold_, 1);
    row->addWidget(percent_);
    use_->setObjectName("cmdUseThreshold");
    use_->setAutoDefault(false);
    connect(use_, &QPushButton::clicked, this, [this] {
        context_.threshold = threshold_->value();
        context_.useThreshold(context_.threshold);
        ShowMarks();
    });
    row->addWidget(use_);
    auto* const close = Named(new QPushButton(Tr("TestProfileDialog", "Close")), "cmdClose",
                              Tr("TestProfileDialog", "Close"));
    close->setAutoDefault(false);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    auto* const foot = new QHBoxLayout;
    foot->addWidget(counts_, 1);
    foot->addWidget(close, 0, Qt::AlignBottom);
    column->addLayout(row);
    column->addLayout(foot);
    return pane;
}

void TestProfileDialog::AddScans(const std::vector<std::string>& paths) {
    if (paths.empty())
        return;
    const QSignalBlocker quiet(scans_);
    scans_->clear();
    for (const std::string& path : paths) {
        auto* const scan = new QListWidgetItem(ToQt(app::FileName(path)), scans_);
        scan->setData(Qt::UserRole, ToQt(path));
        scan->setToolTip(ToolTipOf(ToQt(path)));
    }
    scans_->setCurrentRow(0);
    ShowScan();
}

void TestProfileDialog::ChooseScans() {
    const QStringList chosen = QFileDialog::getOpenFileNames(this, Tr("TestProfileDialog", "Scans"),
                                                             ToQt(context_.folder), ScanFilter());
    std::vector<std::string> paths;
    for (const QString& path : chosen)
        paths.push_back(FromQt(path));
    AddScans(paths);
}

void TestProfileDialog::Step(int by) {
    scans_->setCurrentRow(std::clamp(scans_->currentRow() + by, 0, std::max(0, scans_->count() - 1)));
}

void TestProfileDialog::ShowNothing(const QString& why) {
    scan_.reset();
    trial_ = {};
    page_->Clear();
    page_->SetHint(why);
    boxes_->ClearRows(profiles::BoxColumns::NameValInk);
    verdict_->setText(why);
    ShowMarks();
}

void TestProfileDialog::ShowScan() {
    const QListWidgetItem* const chosen = scans_->currentItem();
    if (chosen == nullptr)
        return;
    const BusyCursor busy;
    const QString name = chosen->text();
    const std::string failure = app::FailureOf([&] {
        auto read = imaging::ReadPage(context_.files, FromQt(chosen->data(Qt::UserRole).toString()));
        if (const auto* const error = std::get_if<imaging::PageError>(&read))
            ShowNothing(name + ": " + Shown(imaging::ReasonOf(*error)));
        else
            scan_ = std::get<imaging::Page>(std::move(read));
    });
    if (!failure.empty())
        ShowNothing(name + ": " + Shown(failure));
    else if (scan_)
        ReadScan();
}

void TestProfileDialog::ReadScan() {
    if (!scan_)
        return;
    const BusyCursor busy;
    const auto way = plain_->isChecked() ? recognition::TrialWay::Plain : recognition::TrialWay::Precise;
    const std::string failure = app::FailureOf([&] {
        trial_ = recognition::TryProfile(*scan_, context_.profiles, context_.tried, way, context_.precise);
    });
    if (!failure.empty()) {
        ShowNothing(Shown(failure));
        return;
    }
    page_->ClearRects();
    page_->ShowPicture(scan_->bitmap);
    page_->TurnPage(trial_.turned);
    boxes_->ClearRows(profiles::BoxColumns::NameValInk);
    verdict_->setText(Shown(trial_.verdict));
    ShowMarks();
}

// At once, without reading the scan again: the ink stays the same.
void TestProfileDialog::ShowMarks() {
    const int threshold = threshold_->value();
    percent_->setText(QString::number(threshold) + " %");
    use_->setText(Tr("TestProfileDialog", "Let Runs &Use %1 %").arg(threshold));
    use_->setEnabled(threshold != context_.threshold);
    use_->setToolTip(Tr("TestProfileDialog", "Runs use %1 % now").arg(context_.threshold));
    std::map<int, BoxLabel> labels;
    int number = 0;
    for (const MarkReading& mark : trial_.marks) {
        ++number;
        const bool isTicked = mark.fill >= threshold;
        const QString ink = QString::number(mark.fill, 'f', 1) + '%';
        page_->PutRect(number, mark.rect, StyleOf(trial_.isRead, isTicked));
        boxes_->PutRow(number, {mark.Name, trial_.isRead ? (isTicked ? "1" : "0") : "", FromQt(ink)});
        if (mark.fill >= kLeastShown)
            labels[number] = {QString::number(mark.fill, 'f', 0) + '%'};
    }
    page_->Boxes().ShowLabels(std::move(labels));
    counts_->setText(trial_.isRead ? Shown(recognition::CountsOf(trial_.marks, threshold)) : QString());
}

}  // namespace tavrene::ui
