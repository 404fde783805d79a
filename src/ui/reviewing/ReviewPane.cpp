#include "ui/reviewing/ReviewPane.h"

#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "ui/base/QtText.h"

namespace tavrene::ui {

ReviewChoice::ReviewChoice(QWidget* parent) : QComboBox(parent) {
    setObjectName("cboProfiles");
    setAccessibleName("Profile to read the form against");
    setToolTip("Reads the open form again, against another profile");
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
    : QFrame(parent), list_(new ReviewListView(this)), choice_(new ReviewChoice(this)) {
    setObjectName("ReviewPane");
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(list_, 1);
    auto* const below = new QVBoxLayout;
    below->setContentsMargins(10, 8, 10, 10);
    auto* const title = new QLabel("Read a&gainst profile:", this);
    title->setBuddy(choice_);
    below->addWidget(title);
    below->addWidget(choice_);
    layout->addLayout(below);
}

}  // namespace tavrene::ui
