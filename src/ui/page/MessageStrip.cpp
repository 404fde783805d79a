#include "ui/page/MessageStrip.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>

#include "ui/base/QtText.h"

namespace tavrene::ui {

MessageStrip::MessageStrip(QWidget* parent) : QFrame(parent), lines_(new QVBoxLayout) {
    setObjectName("MessageStrip");
    setAccessibleName("Notices about the page");
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    auto* const close = new QToolButton(this);
    close->setObjectName("cmdCloseNotices");
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    close->setAutoRaise(true);
    close->setToolTip("Close these notices");
    close->setAccessibleName(close->toolTip());
    connect(close, &QToolButton::clicked, this, [this] { Show({}); });
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 6, 6, 6);
    layout->addLayout(lines_, 1);
    layout->addWidget(close, 0, Qt::AlignTop);
    setVisible(false);
}

void MessageStrip::Show(std::span<const app::Notice> notices) {
    while (QLayoutItem* const line = lines_->takeAt(0)) {
        // The button of the line may be what is being clicked, so the line only goes from sight at once.
        line->widget()->hide();
        line->widget()->deleteLater();
        delete line;
    }
    for (const app::Notice& notice : notices)
        Add(notice);
    setVisible(!notices.empty());
}

void MessageStrip::Add(const app::Notice& notice) {
    auto* const line = new QWidget(this);
    auto* const layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* const text = new QLabel(ToQt(notice.text), line);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    text->setForegroundRole(QPalette::ToolTipText);
    layout->addWidget(text, 1);
    if (!notice.button.empty()) {
        auto* const button = new QPushButton(ToQt(notice.button), line);
        // The strip may be filled anew by what the button does.
        connect(button, &QPushButton::clicked, this, [this, act = notice.act] { run_(act); });
        layout->addWidget(button, 0, Qt::AlignTop);
    }
    lines_->addWidget(line);
    line->show();
}

}  // namespace tavrene::ui
