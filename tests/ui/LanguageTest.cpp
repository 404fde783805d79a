#include <QGroupBox>
#include <QMenu>
#include <QMenuBar>
#include <QScopeGuard>
#include <QTabWidget>
#include <QTranslator>

#include "ui/DialogWalk.h"
#include "ui/base/Shown.h"
#include "ui/shell/Language.h"

namespace tavrene::ui {
namespace {

using test::Find;

class LanguageTest : public test::DeskWindow {
  public:
    ~LanguageTest() override { Speak("en"); }

  protected:
    LanguageTest() { AddSpecimenProfile("Form", form_); }

    void Speak(const char* code) {
        app::WriteWindow(store_, "Language", code);
        SpeakChosenLanguage(store_);
    }

    void BringScans() {
        form_.SaveScan(folders_.ProcessIn + "scan.tif", {.checked = {2}});
        test::WriteText(folders_.ProcessIn + "torn.png", "no image");
    }

    // A profile saved, a run, a form reviewed: all that is written on the way.
    std::string WhatIsWritten(const char* code) {
        Speak(code);
        BringScans();
        Open();
        ClickThumbnail(1);
        Click("Save");
        Click("Process");
        Click("Review");
        Press(Find<QTreeView>(*window_, "lvwReview"), Qt::Key_Return);
        Click("Okay");
        std::string written;
        for (const std::string* const folder : {&folders_.Profiles, &folders_.ProcessOut, &folders_.Log})
            for (const std::string& name : In(*folder))
                if (!name.ends_with(".tif") && !name.ends_with(".png"))
                    written += name + "\n" + test::ReadText(*folder + name);
        for (const std::string* const folder : {&folders_.ProcessOut, &folders_.Log})
            for (const std::string& name : In(*folder))
                files_.Delete(*folder + name);
        return written;
    }

    test::TestForm form_ = test::TestForm::Grid(2, 2);
};

TEST_F(LanguageTest, TheWindowSpeaksWhatWasChosenFromTheNextStartOn) {
    Open();
    Find<QAction>(*window_, "Language-de").trigger();
    EXPECT_EQ(Panel("Message"), "The language is used at the next start.");
    EXPECT_EQ(Find<QAction>(*window_, "New").text(), "&New Profile...");
    SpeakChosenLanguage(store_);
    Open();
    EXPECT_EQ(Find<QAction>(*window_, "New").text(), "&Neues Profil...");
    EXPECT_EQ(Find<QAction>(*window_, "New").toolTip(), "Neues Profil anlegen");
    EXPECT_EQ(window_->menuBar()->actions().front()->text(), "&Datei");
    EXPECT_EQ(Panel("File"), "Profile:1, aktiv:1");
    EXPECT_TRUE(Find<QAction>(*window_, "Language-de").isChecked());
    EXPECT_EQ(Tr("QPlatformTheme", "&Yes"), "&Ja") << "the toolkit's own texts as well";
    Speak("xx");
    EXPECT_EQ(Tr("QPlatformTheme", "&Yes"), "&Yes") << "a language that there is not is none";
}

TEST_F(LanguageTest, FilesAndLogsAreTheSameInEveryLanguage) {
    const std::string english = WhatIsWritten("en");
    EXPECT_NE(english.find("Saved Profile: Form"), std::string::npos);
    EXPECT_NE(english.find("Reviewed & Saved [scan]"), std::string::npos);
    EXPECT_EQ(WhatIsWritten("de"), english);
}

TEST_F(LanguageTest, TextsOfTheRoomsBelowAreTranslatedAtTheBorder) {
    EXPECT_EQ(Shown("Saved Form: a b"), "Saved Form: a b");
    Speak("de");
    const std::pair<const char*, const char*> texts[] = {
        {"Save changes to Profile </a of b/c.Tvp>?", "Änderungen am Profil </a of b/c.Tvp> speichern?"},
        {"138 of 675, 4 min left", "138 von 675, noch 4 min"},
        {"The profile /p.Tvp cannot be opened: it is not XML (no close tag at byte 7).",
         "Das Profil /p.Tvp kann nicht geöffnet werden: es ist kein XML (no close tag bei Byte 7)."},
        {"3 scans were copied to ProcessIn. 1 has a new name. 2 are in ProcessIn already.",
         "3 Scans wurden nach ProcessIn kopiert. 1 hat einen neuen Namen. 2 sind schon in ProcessIn."},
        {"1 form looks turned or stretched: Precise Alignment reads it.\n2 boxes in 1 form read otherwise by "
         "Precise Alignment; review shows them as doubtful.",
         "1 Formular sieht gedreht oder gedehnt aus: „Genaues Ausrichten“ liest es.\n2 Kästchen in 1 "
         "Formular "
         "liest „Genaues Ausrichten“ anders; die Prüfung zeigt sie als zweifelhaft."},
        {"Image [a.tif], Profile [B of 1]", "Bild [a.tif], Profil [B of 1]"},
        {"Accept 3 forms without doubt?\n\n2 of profile A\n1 of profile B: c\n\n2 of them were reviewed.\n1 "
         "form with "
         "boxes in doubt stays.\n\nThey move to ProcessFinal. Undo Decision brings all of them back.",
         "3 Formulare ohne Zweifel annehmen?\n\n2 vom Profil A\n1 vom Profil B: c\n\n2 davon wurden "
         "geprüft.\n1 Formular mit zweifelhaften Kästchen bleibt.\n\nSie kommen nach ProcessFinal. "
         "„Entscheidung zurücknehmen“ holt alle zurück."},
        {"A run takes this page for \"B. C\" (98 %). This profile matches, too: 6 of the 9 box outlines that "
         "are "
         "looked for were found.",
         "Ein Lauf hält diese Seite für „B. C“ (98 %). Auch dieses Profil passt: 6 der 9 gesuchten Umrisse "
         "von "
         "Kästchen wurden gefunden."},
        {"2 of 6 boxes are ticked; the faintest tick has 30.1 %, the fullest empty box 0.0 %.",
         "2 von 6 Kästchen sind angekreuzt; das schwächste Kreuz hat 30.1 %, das vollste leere Kästchen 0.0 "
         "%."},
        {"a: b.tif: unclassified", "a: b.tif: nicht erkannt"},
        {"Nobody knows this.\nEsc stops.", "Nobody knows this.\nEsc bricht ab."},
        {"A sentence of nobody. Saved.", "A sentence of nobody. Saved."}};
    for (const auto& [english, german] : texts)
        EXPECT_EQ(FromQt(Shown(english)), german);
}

// Puts marks around whatever is translated.
class Marks final : public QTranslator {
  public:
    Marks() { QCoreApplication::installTranslator(this); }
    ~Marks() override { QCoreApplication::removeTranslator(this); }
    Marks(const Marks&) = delete;
    Marks& operator=(const Marks&) = delete;
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override {
        return QString("\u2039") + text + "\u203a";
    }
};

QStringList TextsOf(const QWidget& widget) {
    QStringList texts = {widget.accessibleName(), widget.toolTip()};
    if (qobject_cast<const QDialog*>(&widget) != nullptr)
        texts += widget.windowTitle();
    for (const char* const property : {"text", "title", "placeholderText"})
        if (qobject_cast<const QLineEdit*>(&widget) == nullptr || QString(property) != "text")
            texts += widget.property(property).toString();
    if (const auto* const tabs = qobject_cast<const QTabWidget*>(&widget))
        for (int k = 0; k < tabs->count(); ++k)
            texts += tabs->tabText(k);
    if (const auto* const list = qobject_cast<const QAbstractItemView*>(&widget);
        list != nullptr && list->model())
        for (int k = 0; k < list->model()->columnCount(); ++k)
            texts += list->model()->headerData(k, Qt::Horizontal).toString();
    for (const QAction* const action : widget.actions())
        texts += {action->text(), action->toolTip()};
    return texts;
}

// What is shown without having been translated; names, paths and numbers are the same in every language.
QStringList Untranslated(const QWidget& top) {
    static const QRegularExpression word("[A-Za-z]{2}");
    static const QSet<QString> names = {"English", "Deutsch", "Tavrene CheckBoxes"};
    QStringList untranslated;
    for (const QWidget* const widget : top.findChildren<QWidget*>() + QList({const_cast<QWidget*>(&top)}))
        for (const QString& text : TextsOf(*widget))
            if (text.contains(word) && !text.contains(QChar(0x2039)) && !text.contains('/') &&
                !names.contains(text))
                untranslated +=
                    widget->metaObject()->className() + (" " + widget->objectName()) + ": " + text;
    untranslated.removeDuplicates();
    return untranslated;
}

using DialogLanguageTest = test::DialogWalk;

TEST_F(DialogLanguageTest, NothingThatIsShownIsLeftUntranslated) {
    const Marks marks;
    LookAtAll([](const QWidget& window, const char* where) {
        EXPECT_EQ(FromQt(Untranslated(window).join('\n')), "") << where;
    });
}

}  // namespace
}  // namespace tavrene::ui
