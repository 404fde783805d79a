#pragma once

#include <string>

namespace tavrene::intake {

/// From here on the PDF library prints nothing, and the first fault that it meets in this thread is
/// remembered.
void ListenToPdfLibrary();

/// What was wrong since the last `ListenToPdfLibrary`; empty when nothing was.
const std::string& PdfFault();

}  // namespace tavrene::intake
