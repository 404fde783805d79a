#include "ui/page/MessageStrip.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <algorithm>
#include <utility>

#include "ui/base/PaneParts.h"
#include "ui/base/QtText.h"
#include "ui/base/Shown.h"

namespace tavrene::ui {
namespace {

const std::string& TopicOf(const app::Notice& notice) {
    return notice.topic.empty() ? notice.text : notice.topic;
}

// As tall as its notices, which are scrolled where they would take more than a part of the window.
class NoticeArea final : public QScrollArea {
  public:
    explicit NoticeArea(QWidget* strip) : QScrollArea(strip) {
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setWidgetResizable(true);
        setWidget(new QWidget);
        viewport()->setAutoFillBackground(false);
        widget()->setAutoFillBackground(false);
        QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
        policy.setHeightForWidth(true);
        setSizePolicy(policy);
        window()->installEventFilter(this);
    }

    int heightForWidth(int width) const override {
        constexpr int kPart = 3;
        return std::min(widget()->heightForWidth(width), window()->height() / kPart);
    }
    QSize minimumSizeHint() const override { return {0, 0}; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == window() && event->type() == QEvent::Resize)
            updateGeometry();
        return QScrollArea::eventFilter(watched, event);
    }
};

}  // namespace

MessageStrip::MessageStrip(QWidget* parent) : QFrame(parent), area_(new NoticeArea(this)) {
    setObjectName("MessageStrip");
    setAccessibleName(Tr("MessageStrip", "Notices about the page"));
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    QToolButton* const close =
        CloseButton(this, "cmdCloseNotices", Tr("MessageStrip", "Close these notices"));
    connect(close, &QToolButton::clicked, this, [this] { Close(); });
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 6, 6, 6);
    layout->addWidget(area_, 1);
    layout->addWidget(close, 0, Qt::AlignTop);
    setVisible(false);
    lines_ = new QVBoxLayout(area_->widget());
    lines_->setContentsMargins(0, 0, 0, 0);
}

void MessageStrip::Show(std::span<const app::Notice> notices) {
    told_ = {notices.begin(), notices.end()};
    Refresh();
}

void MessageStrip::ShowStanding(std::span<const app::Notice> notices) {
    standing_ = {notices.begin(), notices.end()};
    Refresh();
}

void MessageStrip::Refresh() {
    std::set<std::string> closed;
    std::vector<app::Notice> open = told_;
    for (const app::Notice& notice : standing_) {
        if (closed_.contains(TopicOf(notice)))
            closed.insert(TopicOf(notice));
        else
            open.push_back(notice);
    }
    closed_ = std::move(closed);
    // Those that stand are told after every command, and what is being read stays in place.
    if (!std::ranges::equal(open, shown_, {}, &app::Notice::text, &app::Notice::text))
        Fill(std::move(open));
}

void MessageStrip::Close() {
    told_.clear();
    for (const app::Notice& notice : standing_)
        closed_.insert(TopicOf(notice));
    Refresh();
}

void MessageStrip::Fill(std::vector<app::Notice> notices) {
    while (QLayoutItem* const line = lines_->takeAt(0)) {
        // The button of the line may be what is being clicked, so the line only goes from sight at once.
        line->widget()->hide();
        line->widget()->deleteLater();
        delete line;
    }
    for (const app::Notice& notice : notices)
        Add(notice);
    area_->updateGeometry();
    setVisible(!notices.empty());
    shown_ = std::move(notices);
}

void MessageStrip::Add(const app::Notice& notice) {
    auto* const line = new QWidget(area_->widget());
    auto* const layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* const text = new QLabel(Shown(notice.text), line);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    text->setForegroundRole(QPalette::ToolTipText);
    layout->addWidget(text, 1);
    if (!notice.button.empty()) {
        auto* const button = new QPushButton(Shown(notice.button), line);
        // Tab comes to it where it is seen, not behind all that the window had before.
        if (QWidget* const close = findChild<QToolButton*>("cmdCloseNotices"))
            setTabOrder(close->previousInFocusChain(), button);
        // The strip may be filled anew by what the button does.
        connect(button, &QPushButton::clicked, this, [this, act = notice.act] { run_(act); });
        layout->addWidget(button, 0, Qt::AlignTop);
    }
    lines_->addWidget(line);
    line->show();
}

}  // namespace tavrene::ui
