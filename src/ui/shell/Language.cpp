#include "ui/shell/Language.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include "ui/base/QtText.h"

namespace tavrene::ui {
namespace {

struct Language {
    const char* code;
    const char* name;  ///< In the language itself: who cannot read the menu has to find it.
};

constexpr Language kLanguages[] = {{"en", "English"}, {"de", "Deutsch"}};
constexpr std::string_view kLanguage = "Language";
constexpr const char* kTranslator = "WindowTranslator";

// The settings may name a language that this version does not have.
const Language& ChosenLanguage(const app::SettingsStore& store) {
    const std::string code = app::ReadWindow(store, kLanguage);
    for (const Language& language : kLanguages)
        if (code == language.code)
            return language;
    return kLanguages[0];
}

void PutIn(const QString& file, const QString& folder) {
    auto* const translator = new QTranslator(QCoreApplication::instance());
    translator->setObjectName(kTranslator);
    if (translator->load(file, folder))
        QCoreApplication::installTranslator(translator);
}

}  // namespace

void SpeakChosenLanguage(const app::SettingsStore& store) {
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator*>(kTranslator));
    const QString code = ChosenLanguage(store).code;
    PutIn("qtbase_" + code, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    PutIn("tavrene_" + code, ":/i18n");
}

void AddLanguages(QMenu& menu, app::SettingsStore& store, app::Operator& person) {
    QMenu* const languages = menu.addMenu(Tr("Language", "L&anguage"));
    languages->setObjectName("Language");
    auto* const choice = new QActionGroup(languages);
    for (const Language& language : kLanguages) {
        QAction* const action = languages->addAction(language.name);
        action->setObjectName(QString("Language-") + language.code);
        action->setCheckable(true);
        action->setChecked(&language == &ChosenLanguage(store));
        choice->addAction(action);
        QObject::connect(action, &QAction::triggered, languages, [&store, &person, &language] {
            app::WriteWindow(store, kLanguage, language.code);
            person.SetPanel(app::Panel::Message, "The language is used at the next start.");
        });
    }
}

}  // namespace tavrene::ui
