#include "ui/lists/CandidatePane.h"

#include <QApplication>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "ui/base/QtText.h"

namespace tavrene::ui {
namespace {

constexpr int kRowMargin = 6;

int IdOf(const QListWidgetItem* row) {
    return row == nullptr ? 0 : row->data(Qt::UserRole).toInt();
}

}  // namespace

CandidatePane::CandidatePane(QWidget* parent)
    : QFrame(parent),
      heading_(new QLabel(this)),
      list_(new QListWidget(this)),
      unlikely_(new QCheckBox(this)) {
    setObjectName("CandidatePane");
    heading_->setObjectName("CandidateHeading");
    heading_->setWordWrap(true);
    heading_->setContentsMargins(8, 6, 8, 6);
    list_->setObjectName("lvwCandidates");
    list_->setAccessibleName(Tr("CandidatePane", "What may be check boxes"));
    list_->setFrameShape(QFrame::NoFrame);
    list_->setAlternatingRowColors(true);
    list_->installEventFilter(this);
    list_->viewport()->installEventFilter(this);
    unlikely_->setObjectName("chkUnlikely");
    unlikely_->setAccessibleName(Tr("CandidatePane", "Also shapes that look like print"));
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(heading_);
    layout->addWidget(list_, 1);
    auto* const below = new QVBoxLayout;
    below->setContentsMargins(8, 4, 8, 6);
    below->addWidget(unlikely_);
    layout->addLayout(below);
    setVisible(false);
    connect(list_, &QListWidget::itemClicked, this,
            [this](const QListWidgetItem* row) { listener_.taken(IdOf(row)); });
    connect(list_, &QListWidget::currentItemChanged, this,
            [this](const QListWidgetItem* row) { listener_.pointedAt(IdOf(row)); });
    connect(unlikely_, &QCheckBox::clicked, this, [this](bool shown) { listener_.unlikelyShown(shown); });
}

void CandidatePane::ShowRows(const QString& heading, const std::vector<Row>& rows) {
    const int place = list_->currentRow();
    const QSignalBlocker quiet(list_);
    heading_->setText(heading);
    list_->clear();
    for (const Row& row : rows) {
        auto* const item = new QListWidgetItem(row.text, list_);
        item->setData(Qt::UserRole, row.id);
        item->setSizeHint({0, fontMetrics().height() + kRowMargin});
    }
    // Hidden, it would leave the keys to whatever comes next in the window, and not to the list over it.
    if (heading.isEmpty() && isAncestorOf(QApplication::focusWidget())) {
        list_->setFocus();
        focusPreviousChild();
    }
    setVisible(!heading.isEmpty());
    if (rows.empty())
        return;
    list_->setCurrentRow(std::clamp(place, 0, list_->count() - 1));
    listener_.pointedAt(IdOf(list_->currentItem()));
}

void CandidatePane::SetUnlikely(int count) {
    unlikely_->setText(count == 1 ? Tr("CandidatePane", "Also one shape that looks like print")
                                  : Tr("CandidatePane", "Also %1 shapes that look like print").arg(count));
    unlikely_->setChecked(false);
    unlikely_->setVisible(count > 0);
}

bool CandidatePane::TakeKey(int key, Qt::KeyboardModifiers modifiers) {
    if (key == Qt::Key_A && modifiers == Qt::ControlModifier)
        listener_.allTaken();
    else if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space)
        listener_.taken(IdOf(list_->currentItem()));
    else if (key == Qt::Key_Escape)
        listener_.closed();
    else
        return false;
    return true;
}

bool CandidatePane::eventFilter(QObject* watched, QEvent* event) {
    // Its first click has taken a row and moved the next one under the pointer.
    if (event->type() == QEvent::MouseButtonDblClick)
        return true;
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride)
        return QFrame::eventFilter(watched, event);
    const auto& press = static_cast<const QKeyEvent&>(*event);
    // Here Ctrl+A means the candidates, not the boxes of the profile.
    if (event->type() == QEvent::ShortcutOverride) {
        event->setAccepted(press.key() == Qt::Key_A && press.modifiers() == Qt::ControlModifier);
        return event->isAccepted();
    }
    return TakeKey(press.key(), press.modifiers() & ~Qt::KeypadModifier);
}

}  // namespace tavrene::ui
