#include "ui/reviewing/UnreadPane.h"

#include <QHeaderView>
#include <QPushButton>

#include "ui/base/PaneParts.h"
#include "ui/base/QtText.h"

namespace tavrene::ui {
namespace {

using commands::Command;

// The reasons are longer than the side is wide.
constexpr int kNameWidth = 150;
constexpr int kReasonWidth = 360;

ReasonList* MakeList(QWidget* parent) {
    auto* const list = new ReasonList({Tr("UnreadPane", "Page"), Tr("UnreadPane", "Reason")},
                                      Tr("UnreadPane", "Every page of ProcessOut has been read."), parent);
    list->setObjectName("lvwUnread");
    list->setAccessibleName(Tr("UnreadPane", "Pages that were not read"));
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list->header()->resizeSection(0, kNameWidth);
    list->header()->resizeSection(1, kReasonWidth);
    return list;
}

}  // namespace

UnreadPane::UnreadPane(QWidget* parent) : QWidget(parent), list_(MakeList(this)) {
    QVBoxLayout* const below = ControlsBelow(this, list_);
    below->setSpacing(6);
    const std::pair<Command, QString> buttons[] = {
        {Command::BackToProcessIn, Tr("UnreadPane", "Bac&k to ProcessIn")},
        {Command::AllBackToProcessIn, Tr("UnreadPane", "&All Back to ProcessIn")},
        {Command::ProcessUnread, Tr("UnreadPane", "Process A&ll Again")}};
    for (const auto& [command, text] : buttons) {
        auto* const button = new QPushButton(text, this);
        connect(button, &QPushButton::clicked, this, [this, pressed = command] { pressed_(pressed); });
        below->addWidget(button);
        buttons_.emplace_back(command, button);
    }
    connect(list_, &QTreeWidget::itemSelectionChanged, this,
            [this] { buttons_.front().second->setEnabled(!list_->selectedItems().isEmpty()); });
}

void UnreadPane::Show(const std::vector<review::UnreadPage>& pages) {
    std::vector<ReasonRow> rows;
    rows.reserve(pages.size());
    for (const review::UnreadPage& page : pages)
        rows.push_back({page.Name, page.Reason});
    list_->Show(std::move(rows));
}

void UnreadPane::Update(const std::function<bool(Command)>& offers) {
    for (const auto& [command, button] : buttons_)
        button->setEnabled(offers(command));
}

}  // namespace tavrene::ui
