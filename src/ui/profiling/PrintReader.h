#pragma once

#include <QString>
#include <QWidget>
#include <string>

namespace tavrene::ui {

/// Why print cannot be read on this machine, in a sentence; empty where it can: where there is the program
/// `tesseract`.
QString WhyNoPrintIsRead();

/// What was read, as a table of words, or why nothing was; both empty where the person has cancelled it.
struct ReadPrint {
    std::string table;
    QString failure;
};

/// Lets `tesseract` read an image file, with a box over `window` that can be cancelled. It may take so long
/// at most (milliseconds).
ReadPrint ReadPrintOf(const QString& image, QWidget& window, int limit = 120000);

}  // namespace tavrene::ui
