#include "ui/shell/OpinionBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

#include "ui/base/QtText.h"

namespace tavrene::ui {

OpinionBar::OpinionBar(QWidget* parent)
    : QFrame(parent), text_(new QLabel(this)), again_(new QPushButton("Read These &Again", this)) {
    setObjectName("OpinionBar");
    setAccessibleName("Second opinion on the last run");
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    text_->setForegroundRole(QPalette::ToolTipText);
    text_->setObjectName("lblOpinion");
    text_->setWordWrap(true);
    again_->setObjectName("cmdReadAgain");
    auto* const close = new QToolButton(this);
    close->setObjectName("cmdCloseOpinion");
    close->setText("\u00d7");
    close->setAccessibleName("Close");
    close->setToolTip("Close");
    close->setAutoRaise(true);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(10, 4, 6, 4);
    row->addWidget(text_, 1);
    row->addWidget(again_);
    row->addWidget(close);
    connect(again_, &QPushButton::clicked, this, [this] { readAgain_(); });
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    hide();
}

void OpinionBar::Show(const std::string& text, bool canReadAgain) {
    text_->setText(ToQt(text));
    again_->setVisible(canReadAgain);
    setVisible(!text.empty());
}

}  // namespace tavrene::ui
