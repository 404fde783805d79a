#pragma once

#include <QString>
#include <QWidget>

#include "app/Files.h"

namespace tavrene::ui {

/// The folder with the samples that came with the program, beside an installed one or in the sources of one
/// that was just built; empty where there are none.
QString SamplesFolder();

/// Asks for a folder and makes it a working folder with the samples, or one of its own in it where it is not
/// empty. Gives its path; empty when the person has cancelled, or was told that it did not work.
QString TrySamples(QWidget* parent, app::Files& files);

}  // namespace tavrene::ui
