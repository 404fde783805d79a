#include "ui/reviewing/ReviewPane.h"

#include <QKeyEvent>
#include <QLabel>
#include <QTabWidget>
#include <QWheelEvent>

#include "ui/base/PaneParts.h"
#include "ui/base/QtText.h"

namespace tavrene::ui {

ReviewChoice::ReviewChoice(QWidget* parent) : QComboBox(parent) {
    setObjectName("cboProfiles");
    setAccessibleName(Tr("ReviewPane", "Profile to read the form against"));
    setToolTip(Tr("ReviewPane", "Reads the open form again, against another profile"));
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(8);
    setEnabled(false);
}

void ReviewChoice::ShowProfiles(std::span<const std::string> names) {
    clear();
    for (const std::string& name : names)
        addItem(ToQt(name));
    setCurrentIndex(-1);
}

void ReviewChoice::SetChoice(std::string_view name) {
    setCurrentIndex(findText(ToQt(name), Qt::MatchExactly | Qt::MatchCaseSensitive));
    setEnabled(true);
}

void ReviewChoice::TakeAway() {
    setCurrentIndex(-1);
    setEnabled(false);
}

void ReviewChoice::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

void ReviewChoice::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_Space:
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_F4:
            showPopup();
            break;
        default:
            event->ignore();
    }
}

ReviewPane::ReviewPane(QWidget* parent)
    : QFrame(parent),
      filter_(new FilterBar(this)),
      list_(new ReviewListView(this)),
      choice_(new ReviewChoice(this)),
      unread_(new UnreadPane(this)),
      tabs_(new QTabWidget(this)) {
    setObjectName("ReviewPane");
    tabs_->setObjectName("tabReview");
    tabs_->setAccessibleName(Tr("ReviewPane", "Processed pages"));
    tabs_->setDocumentMode(true);
    auto* const forms = new QWidget;
    QVBoxLayout* const below = ControlsBelow(forms, list_, filter_);
    filter_->SetListener([this](FormFilter filter) { list_->SetFilter(std::move(filter)); },
                         [this] { list_->setFocus(); });
    auto* const title = new QLabel(Tr("ReviewPane", "Read a&gainst profile:"), this);
    title->setBuddy(choice_);
    below->addWidget(title);
    below->addWidget(choice_);
    tabs_->addTab(forms, Tr("ReviewPane", "Forms"));
    tabs_->addTab(unread_, Tr("ReviewPane", "Not read"));
    // Less than what lists ask for by themselves, for the summary of a run may lie below on a small screen.
    for (QWidget* const list : {static_cast<QWidget*>(list_), static_cast<QWidget*>(&unread_->List())})
        list->setMinimumHeight(3 * list->fontMetrics().lineSpacing());
    FillingColumn(this)->addWidget(tabs_);
}

void ReviewPane::ShowUnread(const std::vector<review::UnreadPage>& pages) {
    unread_->Show(pages);
    tabs_->setTabText(1, pages.empty() ? Tr("ReviewPane", "Not read")
                                       : Tr("ReviewPane", "Not read (%1)").arg(pages.size()));
}

void ReviewPane::ShowFilter() {
    ShowForms();
    filter_->TakeFocus();
}

void ReviewPane::OfferProfiles() {
    QStringList names;
    for (int k = 0; k < choice_->count(); ++k)
        names.append(choice_->itemText(k));
    filter_->OfferProfiles(names);
}

void ReviewPane::ShowForms() {
    tabs_->setCurrentIndex(0);
}

}  // namespace tavrene::ui
