#include "tour/walk/Walker.h"

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QTreeView>
#include <algorithm>
#include <stdexcept>

#include "driving/Controls.h"
#include "ui/base/QtText.h"

namespace tavrene::tour {

void Walker::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QWidget* const focus = QApplication::focusWidget();
    QTest::keyClick(focus != nullptr ? focus : &window_, key, modifiers);
    QApplication::processEvents();
    ++keys_;
}

QTreeWidget& Walker::Boxes() {
    return driving::Find<QTreeWidget>(window_, "lvwSettings");
}

// "Image [form03.tif], Profile [Walk]" in the panel; empty without a form.
std::string Walker::OpenForm() const {
    const QString text = driving::Find<QLabel>(window_, "Message").text();
    return text.startsWith("Image [") ? ui::FromQt(text.mid(7, text.indexOf(".tif") - 7)) : std::string();
}

bool Walker::IsWrong(const QTreeWidgetItem& row) const {
    const std::vector<std::string>& meant = truth_.at(OpenForm());
    const bool isMeant = std::ranges::find(meant, ui::FromQt(row.text(0))) != meant.end();
    return isMeant != (row.text(1) == "1");
}

const QTreeWidgetItem* Walker::FirstWrongRow() {
    for (int row = 0; row < Boxes().topLevelItemCount(); ++row)
        if (IsWrong(*Boxes().topLevelItem(row)))
            return Boxes().topLevelItem(row);
    return nullptr;
}

// What is in doubt is looked at box by box, until all is as it was meant.
void Walker::CorrectForm() {
    const int most = keys_ + 2 * Boxes().topLevelItemCount();
    while (const QTreeWidgetItem* const wrong = FirstWrongRow()) {
        const QTreeWidgetItem* const row = Boxes().currentItem();
        if (row != nullptr && Boxes().hasFocus() && IsWrong(*row))
            Press(Qt::Key_Space);
        else
            Press(Qt::Key_D, Qt::ControlModifier);
        if (keys_ > most)
            throw std::runtime_error("No doubt leads to " +
                                     ui::FromQt(wrong->text(0) + " (ink " + wrong->text(2)) +
                                     "), misread in " + OpenForm() + ".");
    }
}

void Walker::GoOnThroughAll() {
    Press(Qt::Key_F6);
    Press(Qt::Key_Return);
    Press(Qt::Key_F, Qt::ControlModifier);
    Press(Qt::Key_Down);  // not reviewed
    std::string last;
    for (std::string form = OpenForm(); !form.empty() && form != last; form = OpenForm()) {
        CorrectForm();
        Press(Qt::Key_Return, Qt::ControlModifier);
        last = form;
    }
}

}  // namespace tavrene::tour
