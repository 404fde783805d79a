#include <QScopeGuard>
#include <QScreen>
#include <QTabWidget>

#include "ui/DialogWalk.h"
#include "ui/shell/Language.h"

namespace tavrene::ui {
namespace {

using DialogsTest = test::DialogWalk;

// What a screen of 1366 x 768 at twice the scale has, without what a desktop draws around a window.
constexpr QSize kRoom(1366 / 2 - 16, 768 / 2 - 48);

void ExpectFits(const QWidget& window, const char* where) {
    const QSize least = window.minimumSizeHint().expandedTo(window.minimumSize());
    EXPECT_TRUE(least.boundedTo(kRoom) == least) << where << " " << least.width() << " x " << least.height();
    const QSize screen = window.screen()->availableSize();
    EXPECT_TRUE(window.size().boundedTo(screen) == window.size()) << where;
}

// The letters that Alt reaches controls by.
QStringList Letters(const QWidget& window) {
    QStringList texts;
    for (const auto* const button : window.findChildren<QAbstractButton*>())
        texts += button->text();
    for (const auto* const label : window.findChildren<QLabel*>())
        if (label->buddy() != nullptr)
            texts += label->text();
    for (const auto* const tabs : window.findChildren<QTabWidget*>())
        for (int k = 0; k < tabs->count(); ++k)
            texts += tabs->tabText(k);
    QStringList letters;
    for (const QString& text : texts)
        letters += QKeySequence::mnemonic(text).toString();
    letters.removeAll("");
    return letters;
}

// The texts of the other language are the longer ones.
TEST_F(DialogsTest, FitASmallScreenAtTwiceTheScaleAndUnderlineEachLetterOnce) {
    const auto speak = [this](const char* code) {
        app::WriteWindow(store_, "Language", code);
        SpeakChosenLanguage(store_);
    };
    const auto speakEnglish = qScopeGuard([&] { speak("en"); });
    for (const char* const code : {"en", "de"}) {
        speak(code);
        LookAtAll([](QWidget& window, const char* where) {
            window.ensurePolished();
            ExpectFits(window, where);
            QStringList letters = Letters(window);
            EXPECT_EQ(letters.removeDuplicates(), 0) << where << FromQt(Letters(window).join(','));
        });
    }
}

}  // namespace
}  // namespace tavrene::ui
