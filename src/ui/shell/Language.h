#pragma once

#include <QMenu>

#include "app/Operator.h"
#include "app/SettingsStore.h"

namespace tavrene::ui {

/// Lets the program speak the language that was chosen, the toolkit's own dialogs included; English at first,
/// whatever the language of the desktop. To be called before anything is shown.
void SpeakChosenLanguage(const app::SettingsStore& store);

/// Adds the languages to choose from to a menu. All must outlive it; what is chosen is spoken from the next
/// start on.
void AddLanguages(QMenu& menu, app::SettingsStore& store, app::Operator& person);

}  // namespace tavrene::ui
