#include "ui/shell/StatusPanels.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QStyleOption>
#include <algorithm>
#include <cmath>

#include "ui/base/PaneParts.h"
#include "ui/base/QtText.h"
#include "ui/base/Shown.h"
#include "ui/commands/RunTexts.h"

namespace tavrene::ui {
namespace {

// The longest texts that the panels are to show whole.
constexpr const char* kFileText = "Profiles:1000, Active:1000";
constexpr const char* kTimeText = "Checked:100 of 1000 Skip:100";
constexpr const char* kProgressText = "1000 of 1000, 100 min left";
constexpr int kPanelMargin = 6;

constexpr int kProgressBarWidth = 120;
constexpr int kProgressBarHeight = 14;

// Rounded up: a text that lacks a part of a pixel is cut.
int WidthOf(const QLabel& label, const QString& text) {
    const double width = QFontMetricsF(label.font()).horizontalAdvance(text);
    return static_cast<int>(std::ceil(width)) + 2 * kPanelMargin;
}

}  // namespace

PanelLabel::PanelLabel(const QString& name) {
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    setContentsMargins(kPanelMargin, 2, kPanelMargin, 2);
}

void PanelLabel::ShowText(const QString& text) {
    setText(text);
    SetPlainToolTip(*this, text);
    repaint();
}

void PanelLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect area = contentsRect();
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, area.width());
    style()->drawItemText(&painter, area, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(), shown,
                          QPalette::WindowText);
}

StatusPanels::StatusPanels(QWidget* parent)
    : QStatusBar(parent), row_(new QHBoxLayout), progress_(new QProgressBar), zoom_(new ZoomBox) {
    setObjectName("StatusBar1");
    setSizeGripEnabled(false);
    AddPanel(app::Panel::File, "File", Tr("StatusPanels", "Current file or profile counts"), kFileText);
    AddPanel(app::Panel::Message, "Message", Tr("StatusPanels", "Message"), nullptr);
    AddPanel(app::Panel::ElapsedTime, "ElapsedTime", Tr("StatusPanels", "Elapsed time"), kTimeText);
    AddPanel(app::Panel::Progress, "Progress", Tr("StatusPanels", "Progress"), kProgressText);
    progress_->setObjectName("ProgressBar1");
    progress_->setAccessibleName(Tr("StatusPanels", "Progress of the work"));
    progress_->setTextVisible(false);
    progress_->setFixedSize(kProgressBarWidth, kProgressBarHeight);
    progress_->setRange(0, 1);
    row_->addWidget(progress_);
    row_->addWidget(zoom_);
    row_->setContentsMargins(4, 2, 10, 2);
    row_->setSpacing(4);
    auto* const panels = new QWidget;
    panels->setLayout(row_);
    CountFiles(false);
    // Permanent, or the hints that the menus show would hide the panels for a while.
    addPermanentWidget(panels, 1);
}

// A panel without a longest text takes what the others leave.
void StatusPanels::AddPanel(app::Panel panel, const char* name, const QString& accessibleName,
                            const char* longest) {
    auto* const label = new PanelLabel(name);
    label->setAccessibleName(accessibleName);
    if (longest != nullptr)
        widths_[static_cast<std::size_t>(panel)] = WidthOf(*label, Shown(longest));
    else
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    panels_[static_cast<std::size_t>(panel)] = label;
    row_->addWidget(label, longest != nullptr ? 0 : 1);
    lines_[static_cast<std::size_t>(panel)] = new QFrame;
    lines_[static_cast<std::size_t>(panel)]->setFrameStyle(static_cast<int>(QFrame::VLine) |
                                                           static_cast<int>(QFrame::Sunken));
    row_->addWidget(lines_[static_cast<std::size_t>(panel)]);
}

void StatusPanels::SetPanel(app::Panel panel, const QString& text) {
    panels_[static_cast<std::size_t>(panel)]->ShowText(text);
    FitPanels();
}

void StatusPanels::resizeEvent(QResizeEvent* event) {
    QStatusBar::resizeEvent(event);
    FitPanels();
}

// Panels that do not move while their texts change are easier to read; a narrow window has no room for that,
// and what is told is more than the places that are kept for numbers.
void StatusPanels::FitPanels() {
    constexpr int kNarrow = 900;
    const bool isNarrow = width() < kNarrow;
    for (std::size_t k = 0; k < panels_.size(); ++k)
        if (widths_[k] > 0)
            panels_[k]->setFixedWidth(isNarrow ? WidthOf(*panels_[k], panels_[k]->text()) : widths_[k]);
    progress_->setVisible(!isNarrow || countsFiles_ || progress_->value() > 0);
}

void StatusPanels::SetProgressRange(int last) {
    // A bar without a range would run to and fro for ever.
    progress_->setRange(0, std::max(last, 1));
    since_.start();
    SetProgress(0);
    if (countsFiles_)
        SetPanel(app::Panel::Progress, Shown(commands::ProgressText(0, last, 0)));
}

void StatusPanels::SetProgress(int value) {
    // The bar paints itself at once, but only where the step can be seen.
    progress_->setValue(value);
    constexpr double kMilliseconds = 1000;
    if (countsFiles_)
        SetPanel(app::Panel::Progress,
                 value == 0
                     ? QString()
                     : Shown(commands::ProgressText(value, progress_->maximum(),
                                                    static_cast<double>(since_.elapsed()) / kMilliseconds)));
}

void StatusPanels::Show(app::Panel panel, bool shown) {
    panels_[static_cast<std::size_t>(panel)]->setVisible(shown);
    lines_[static_cast<std::size_t>(panel)]->setVisible(shown);
}

void StatusPanels::CountFiles(bool counts) {
    countsFiles_ = counts;
    // A run sets the zoom itself.
    zoom_->setEnabled(!counts);
    // Neither has anything to say while the other one does, and a small screen has no room for both.
    Show(app::Panel::Progress, counts);
    Show(app::Panel::ElapsedTime, !counts);
    SetPanel(app::Panel::Progress, "");
}

}  // namespace tavrene::ui
