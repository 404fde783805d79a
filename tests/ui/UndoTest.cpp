#include <QDebug>
#include <QRadioButton>
#include <random>

#include "ui/FormWindow.h"

namespace tavrene::ui {
namespace {

using test::DialogScript;
using test::Find;

// By mouse, by keys and by the window's own commands.
class UndoTest : public test::FormWindow {
  protected:
    using Action = std::pair<std::string, std::function<void()>>;

    int Any(int least, int most) { return std::uniform_int_distribution(least, most)(random_); }
    QPointF AnyBox() {
        const std::vector<int> numbers = View().Boxes().Numbers();
        const int index = Any(0, static_cast<int>(numbers.size()) - 1);
        return View().Boxes().PlaceOf(numbers[static_cast<std::size_t>(index)]).center();
    }
    QPointF AnyWay() { return {double(Any(-40, 60)), double(Any(-40, 60))}; }

    void SelectSome() {
        ClickRow(Any(0, Rows().topLevelItemCount() - 1));
        for (int k = Any(0, 4); k > 0; --k)
            ClickPage(AnyBox(), Qt::ControlModifier);
    }

    // What the person sees of the profile.
    std::string State() {
        QString state;
        QDebug shown(&state);
        for (const std::string& name : RowTexts())
            shown << name.c_str();
        for (const int number : View().Boxes().Numbers()) {
            const QRectF place = View().Boxes().PlaceOf(number);
            EXPECT_TRUE(QRectF(0, 0, form_.width, form_.height).contains(place)) << number;
            shown << number << place;
        }
        for (const GroupFrame& frame : View().Boxes().Groups())
            shown << frame.text << frame.place;
        EXPECT_EQ(View().Boxes().Numbers().size(), RowTexts().size());
        return FromQt(state);
    }

    bool Can(const char* command) { return Find<QAction>(*window_, command).isEnabled(); }

    std::vector<Action> Actions();

    std::mt19937 random_{15};  // NOLINT(cert-msc51-cpp): the same sequence in every run
};

std::vector<UndoTest::Action> UndoTest::Actions() {
    std::vector<Action> actions;
    for (const char* const command :
         {"EqualSize", "AlignLeft", "AlignRight", "AlignTop", "AlignBottom", "DistributeAcross",
          "DistributeDown", "DuplicateBoxes", "PutBox", "SortByPlace", "MoveRowsUp", "MoveRowsDown",
          "GroupByRows", "GroupByNames", "UngroupBoxes"})
        actions.emplace_back(command, [this, command] {
            if (Can(command))
                Trigger(command);
        });
    const auto press = [this](Qt::Key key, Qt::KeyboardModifiers keys) {
        return [this, key, keys] {
            View().setFocus();
            Press(View(), key, keys);
        };
    };
    actions.emplace_back("moved by keys", press(Qt::Key_Right, Qt::ShiftModifier));
    actions.emplace_back("stretched", press(Qt::Key_Down, Qt::ControlModifier));
    actions.emplace_back("deleted", press(Qt::Key_Delete, Qt::NoModifier));
    actions.emplace_back("copied", [press] {
        press(Qt::Key_C, Qt::ControlModifier)();
        press(Qt::Key_V, Qt::ControlModifier)();
    });
    actions.emplace_back("dragged", [this] {
        const QPointF from = AnyBox();
        Drag(from, from + AnyWay());
    });
    actions.emplace_back("copied by a drag", [this] {
        const QPointF from = AnyBox();
        Drag(from, from + AnyWay(), Qt::ControlModifier);
    });
    actions.emplace_back("resized", [this] {
        ClickRow(Any(0, Rows().topLevelItemCount() - 1));
        const QPointF corner = View().Boxes().PlaceOf(View().Boxes().SelectedBox()).bottomRight();
        Drag(corner, corner + AnyWay());
    });
    actions.emplace_back("drawn", [this] {
        Click("Add", "CfgToolbar");
        const QPointF from(Any(10, 300), Any(200, 260));
        Drag(from, from + QPointF(Any(10, 40), Any(10, 40)));
        Click("Select", "CfgToolbar");
    });
    actions.emplace_back("a grid", [this] {
        DialogScript dialogs;
        dialogs.PressEnter();
        Trigger("DrawGrid");
        const QPointF from(Any(250, 300), Any(30, 200));
        Drag(from, from + QPointF(20, 20));
        ClickPage(from + QPointF(100, 90));
    });
    actions.emplace_back("named", [this] {
        DialogScript dialogs;
        dialogs.Do([this](QDialog& dialog) {
            Find<QLineEdit>(dialog, "txtPattern").setText("N" + QString::number(Any(1, 9)) + " {n}");
            Find<QRadioButton>(dialog, "optDown").setChecked(Any(0, 1) == 1);
            Find<QCheckBox>(dialog, "chkSort").setChecked(Any(0, 1) == 1);
            dialog.accept();
        });
        Trigger("NameBoxes");
    });
    actions.emplace_back("renamed", [this] {
        Press(Rows(), Qt::Key_F2);
        auto& editor = dynamic_cast<QLineEdit&>(*QApplication::focusWidget());
        editor.setText("name " + QString::number(Any(1, 99)));
        QTest::keyClick(&editor, Qt::Key_Return);
    });
    actions.emplace_back("grouped", [this] {
        if (!Can("GroupBoxes"))
            return;
        DialogScript dialogs;
        dialogs.Do([](QDialog& dialog) { dialog.accept(); });
        Trigger("GroupBoxes");
    });
    return actions;
}

TEST_F(UndoTest, EveryActionOfTheWindowIsUndoneAndDoneAgainInAnyOrder) {
    AddSpecimenProfile("Form", form_);
    OpenForm();
    View().SetZoom(100);
    Trigger("GroupFrames");
    const std::vector<Action> actions = Actions();
    const std::string began = State();
    std::size_t acted = 0;
    for (int round = 0; round < 2; ++round)
        for (const auto& [name, act] : actions) {
            SelectSome();
            const std::string before = State();
            act();
            acted += State() == before ? 0U : 1U;
        }
    EXPECT_GT(acted, actions.size());
    std::vector<std::string> states = {State()};
    while (Can("Undo")) {
        Press(View(), Qt::Key_Z, Qt::ControlModifier);
        states.insert(states.begin(), State());
    }
    EXPECT_EQ(states.front(), began);
    EXPECT_GE(states.size(), acted);
    std::size_t depth = 0;
    for (int k = 0; k < 100; ++k) {
        for (int steps = Any(1, 12); steps > 0; --steps) {
            const bool isBack = k % 2 == 1;
            Find<QAction>(*window_, isBack ? "Undo" : "Redo").trigger();
            depth = isBack ? depth - (depth > 0 ? 1 : 0) : std::min(depth + 1, states.size() - 1);
        }
        ASSERT_EQ(State(), states[depth]) << k;
    }
    while (Can("Redo"))
        Press(View(), Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(State(), states.back());
    Click("Save");
    std::size_t saved = 0;
    for (const int number : View().Boxes().Numbers())
        EXPECT_EQ(View().Boxes().PlaceOf(number), PlaceOf(Saved("Form").at(saved++))) << number;
    while (Can("Undo"))
        Trigger("Undo");
    Click("Save");
    EXPECT_EQ(State(), began);
    const DialogScript none;  // nothing has changed that could be saved
    Press(View(), Qt::Key_Escape);
    EXPECT_FALSE(window_->isVisible());
}

}  // namespace
}  // namespace tavrene::ui
