#include "ui/reviewing/SheetDialog.h"

#include <QAction>
#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QScrollBar>
#include <QShowEvent>
#include <QVBoxLayout>

#include "app/Counted.h"
#include "review/ClearForms.h"
#include "ui/base/BusyCursor.h"
#include "ui/base/FitToScreen.h"
#include "ui/base/QtText.h"
#include "ui/base/Shown.h"

namespace tavrene::ui {

using app::Counted;

SheetDialog::SheetDialog(review::DoubtSheet& sheet, app::Operator& person, QWidget* parent)
    : QDialog(parent),
      sheet_(sheet),
      person_(person),
      crops_(sheet),
      parts_({new SheetModel(crops_, this), new SheetModel(crops_, this)}),
      subject_(new PopupChoice(this)),
      tabs_(new QTabBar(this)),
      view_(new SheetView(this)),
      about_(new QLabel(this)),
      progress_(new QLabel(this)),
      confirm_(new QPushButton(Tr("SheetDialog", "&Confirm Screen"), this)) {
    setObjectName("frmSheet");
    setWindowTitle(Tr("SheetDialog", "Sheet of Doubts"));
    LayOut();
    view_->SetListener({[this](int row) { Open(row); }, [this] { Update(); }});
    connect(view_->verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { Update(); });
    connect(subject_, &QComboBox::currentIndexChanged, this, [this] { ChangeSubject(); });
    connect(subject_, &QComboBox::activated, view_, [this] { view_->setFocus(); });
    connect(tabs_, &QTabBar::currentChanged, this, [this] { ShowPart(); });
    connect(confirm_, &QPushButton::clicked, this, [this] { Confirm(); });
    idle_.setSingleShot(true);
    connect(&idle_, &QTimer::timeout, this, [this] { Work(); });
    if (parent != nullptr)
        ResizeWithinScreen(*this, parent->size() - QSize(60, 60));
    Begin();
}

void SheetDialog::LayOut() {
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(12, 12, 12, 12);
    column->addWidget(Head());
    column->addWidget(view_, 1);
    column->addWidget(Foot());
    view_->setFocus();
}

QWidget* SheetDialog::Head() {
    auto* const head = new QWidget(this);
    auto* const row = new QHBoxLayout(head);
    row->setContentsMargins(0, 0, 0, 0);
    subject_->setObjectName("cboSheet");
    subject_->setAccessibleName(Tr("SheetDialog", "Which boxes the sheet shows"));
    subject_->setToolTip(Tr("SheetDialog", "The boxes in doubt, or those of one name of all forms"));
    subject_->addItem(Tr("SheetDialog", "Boxes in doubt"));
    for (const std::string& name : sheet_.BoxNames())
        subject_->addItem(Tr("SheetDialog", "Box %1").arg(ToQt(name)), ToQt(name));
    tabs_->setObjectName("tabSheet");
    tabs_->addTab({});
    tabs_->addTab({});
    tabs_->setDrawBase(false);
    tabs_->setUsesScrollButtons(false);
    progress_->setObjectName("lblSheetLeft");
    row->addWidget(tabs_);
    row->addStretch(1);
    row->addWidget(progress_);
    row->addWidget(subject_);
    return head;
}

QWidget* SheetDialog::Foot() {
    auto* const foot = new QWidget(this);
    auto* const row = new QHBoxLayout(foot);
    row->setContentsMargins(0, 0, 0, 0);
    about_->setObjectName("lblSheet");
    about_->setTextFormat(Qt::PlainText);
    about_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    about_->setFixedHeight(2 * about_->fontMetrics().lineSpacing());
    confirm_->setObjectName("cmdConfirm");
    // Of its own, for a button takes a tenth of a second to answer its shortcut.
    auto* const confirm = new QAction(this);
    confirm->setShortcuts({QKeySequence("Ctrl+Return"), QKeySequence("Ctrl+Enter")});
    confirm->setAutoRepeat(false);
    connect(confirm, &QAction::triggered, this, [this] { Confirm(); });
    addAction(confirm);
    confirm_->setToolTip(
        Tr("SheetDialog", "What is on the screen is as it is shown now: save it (Ctrl+Enter)"));
    confirm_->setAutoDefault(false);
    auto* const close = new QPushButton(Tr("SheetDialog", "Close"), this);
    close->setAutoDefault(false);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    row->addWidget(about_, 1);
    row->addWidget(confirm_);
    row->addWidget(close);
    return foot;
}

void SheetDialog::ChangeSubject() {
    if (MayDropTurned()) {
        Begin();
        return;
    }
    const QSignalBlocker quiet(subject_);
    subject_->setCurrentIndex(begun_);
}

void SheetDialog::Begin() {
    begun_ = subject_->currentIndex();
    for (SheetModel* const part : parts_)
        part->Clear();
    Add(sheet_.Begin(FromQt(subject_->currentData().toString())));
    tabs_->setCurrentIndex(parts_[0]->rowCount() > 0 ? 0 : 1);
    ShowPart();
    idle_.start(0);
}

void SheetDialog::Add(const std::vector<review::SheetBox>& boxes) {
    for (const bool isMarked : {true, false}) {
        std::vector<review::SheetBox> part;
        std::ranges::copy_if(boxes, std::back_inserter(part),
                             [isMarked](const review::SheetBox& box) { return box.IsChecked == isMarked; });
        parts_[isMarked ? 0 : 1]->Add(part);
    }
    if (Part().rowCount() == 0)
        tabs_->setCurrentIndex(parts_[0]->rowCount() > 0 ? 0 : 1);
    if (!view_->currentIndex().isValid() && view_->model() != nullptr && Part().rowCount() > 0)
        view_->setCurrentIndex(Part().index(0));
}

void SheetDialog::ShowPart() {
    view_->Show(Part());
    Update();
}

void SheetDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    Update();
}

// A box whose picture is not there yet was seen by nobody.
void SheetDialog::Confirm() {
    const int first = view_->FirstOnScreen();
    std::vector<int> rows;
    std::vector<review::SheetBox> judged;
    for (int row = first; row < std::min(first + SheetView::kScreen, Part().rowCount()); ++row) {
        if (!Part().IsPictured(row))
            continue;
        rows.push_back(row);
        judged.push_back(Part().At(row));
    }
    if (judged.empty())
        return;
    const BusyCursor busy;
    const review::DoubtSheet::Outcome outcome = sheet_.Confirm(judged);
    reviewed_ += outcome.reviewed;
    corrected_ += outcome.corrected;
    Part().Remove(rows, outcome.done);
    if (!outcome.failures.empty())
        person_.ShowMessage("", review::TextOfFailures(outcome.failures));
    GoOn();
}

// To what is left, of the other part perhaps; when nothing is, the sheet has done its work.
void SheetDialog::GoOn() {
    if (Part().rowCount() == 0)
        tabs_->setCurrentIndex(parts_[0]->rowCount() > 0 ? 0 : 1);
    if (Part().rowCount() == 0 && sheet_.FormsLeft() == 0) {
        accept();
        return;
    }
    if (Part().rowCount() > 0)
        view_->setCurrentIndex(Part().index(std::min(view_->FirstOnScreen(), Part().rowCount() - 1)));
    Update();
}

void SheetDialog::Open(int row) {
    chosen_ = Part().At(row);
    accept();
    if (result() != QDialog::Accepted)
        chosen_ = {};
}

std::string SheetDialog::Report() const {
    if (reviewed_ + corrected_ == 0)
        return {};
    return Counted(reviewed_, "form", "forms") + " reviewed, " + Counted(corrected_, "box", "boxes") +
           " corrected on the sheet.";
}

void SheetDialog::Update() {
    static constexpr std::array kTitles = {QT_TRANSLATE_NOOP("SheetDialog", "Marked (%1)"),
                                           QT_TRANSLATE_NOOP("SheetDialog", "Not marked (%1)")};
    for (std::size_t k = 0; k < parts_.size(); ++k)
        tabs_->setTabText(static_cast<int>(k), Tr("SheetDialog", kTitles[k]).arg(parts_[k]->rowCount()));
    ShowAbout();
    view_->SetHint(HintWithoutBoxes());
    const auto left = sheet_.FormsLeft();
    progress_->setText(left == 0 ? QString()
                                 : Shown(Counted(left, "form", "forms") + " still to be looked at"));
    confirm_->setEnabled(Part().rowCount() > 0);
    if (view_->model() != nullptr)
        view_->WantPictures();
    if (!idle_.isActive())
        idle_.start(0);
}

void SheetDialog::ShowAbout() {
    const QModelIndex current = view_->currentIndex();
    const QString about = current.data(SheetModel::kForm).toString() + "  " +
                          current.data(SheetModel::kBox).toString() + "  " +
                          current.data(SheetModel::kReason).toString();
    about_->setText(Part().rowCount() == 0
                        ? QString()
                        : about.trimmed() + '\n' +
                              Tr("SheetDialog", "Space turns the mark round, Enter opens the form."));
}

QString SheetDialog::HintWithoutBoxes() {
    if (sheet_.FormsLeft() > 0)
        return Tr("SheetDialog", "Nothing yet: forms are still being looked at.");
    if (parts_[0]->rowCount() + parts_[1]->rowCount() > 0)
        return Tr("SheetDialog", "Nothing here.\nThe other tab holds what is left to judge.");
    if (subject_->currentIndex() > 0)
        return Tr("SheetDialog", "No form of the list has this box.");
    return Tr("SheetDialog",
              "Nothing is in doubt.\nEsc leaves the sheet; Shift+F9 accepts all forms without doubt.");
}

// What is in sight is waited for; other forms are looked at once the person is not doing anything.
void SheetDialog::Work() {
    constexpr int kQuiet = 150;  // milliseconds
    const std::string made = crops_.MakeNext();
    if (!made.empty()) {
        for (SheetModel* const part : parts_)
            part->TellMade(made);
        ShowAbout();  // the name of the box has come with its picture
        idle_.start(0);
        return;
    }
    if (input_.LeftOf(kQuiet) > 0)
        idle_.start(input_.LeftOf(kQuiet));
    else if (LookAtForms())
        idle_.start(0);
}

// For so long as a person does not notice; false when there is none left.
bool SheetDialog::LookAtForms() {
    constexpr int kUnnoticed = 12;  // milliseconds
    QElapsedTimer since;
    since.start();
    std::vector<review::SheetBox> found;
    bool isAny = false;
    while (since.elapsed() < kUnnoticed) {
        const auto boxes = sheet_.LookAtNext();
        if (!boxes)
            break;
        isAny = true;
        std::ranges::copy(*boxes, std::back_inserter(found));
    }
    if (isAny) {
        Add(found);
        Update();
    }
    return isAny;
}

int SheetDialog::TurnedCount() const {
    return parts_[0]->TurnedCount() + parts_[1]->TurnedCount();
}

// Turned marks that nobody has confirmed are not saved.
bool SheetDialog::MayDropTurned() {
    const int turned = TurnedCount();
    return turned == 0 || person_.AskYesNo(Counted(turned, "mark was", "marks were") +
                                               " turned round and not confirmed. Go on without them?",
                                           app::Answer::No) == app::Answer::Yes;
}

void SheetDialog::done(int result) {
    if (MayDropTurned())
        QDialog::done(result);
}

}  // namespace tavrene::ui
