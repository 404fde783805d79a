#include "ui/StatusPanels.h"

#include <QPainter>
#include <QStyleOption>
#include <algorithm>

namespace tavrene::ui {
namespace {

constexpr int kFileWidth = 190;
constexpr int kTimeWidth = 130;
constexpr int kProgressTextWidth = 70;
constexpr int kProgressBarWidth = 170;

}  // namespace

PanelLabel::PanelLabel(const QString& name) {
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    setContentsMargins(6, 2, 6, 2);
}

void PanelLabel::ShowText(const QString& text) {
    setText(text);
    // As rich text, or a name with a < in it would be taken for a tag.
    setToolTip(text.isEmpty() ? QString() : "<span>" + text.toHtmlEscaped() + "</span>");
    repaint();
}

void PanelLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect area = contentsRect();
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, area.width());
    style()->drawItemText(&painter, area, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(), shown,
                          QPalette::WindowText);
}

StatusPanels::StatusPanels(QWidget* parent) : QStatusBar(parent), progress_(new QProgressBar) {
    setObjectName("StatusBar1");
    setSizeGripEnabled(false);
    setContentsMargins(4, 0, 6, 0);
    AddPanel(app::Panel::File, "File", "Current file or profile counts")->setMinimumWidth(kFileWidth);
    AddPanel(app::Panel::Message, "Message", "Message", 1);
    AddPanel(app::Panel::ElapsedTime, "ElapsedTime", "Elapsed time")->setMinimumWidth(kTimeWidth);
    AddPanel(app::Panel::Progress, "Progress", "Progress")->setMinimumWidth(kProgressTextWidth);
    progress_->setObjectName("ProgressBar1");
    progress_->setAccessibleName("Progress of the work");
    progress_->setTextVisible(false);
    progress_->setFixedWidth(kProgressBarWidth);
    progress_->setMaximumHeight(14);
    progress_->setRange(0, 1);
    addPermanentWidget(progress_);
}

PanelLabel* StatusPanels::AddPanel(app::Panel panel, const char* name, const char* accessibleName,
                                   int stretch) {
    auto* const label = new PanelLabel(name);
    label->setAccessibleName(accessibleName);
    panels_[static_cast<std::size_t>(panel)] = label;
    addWidget(label, stretch);
    return label;
}

void StatusPanels::SetPanel(app::Panel panel, const QString& text) {
    panels_[static_cast<std::size_t>(panel)]->ShowText(text);
}

void StatusPanels::SetProgressRange(int last) {
    // A bar without a range would run to and fro for ever.
    progress_->setRange(0, std::max(last, 1));
    SetProgress(0);
}

void StatusPanels::SetProgress(int value) {
    progress_->setValue(value);
    progress_->repaint();
}

}  // namespace tavrene::ui
