#pragma once

#include <string>

#include "forms/FormSheet.h"

namespace tavrene::samples {

/// The profile document that an operator makes of a form's blank, on one line. `Image` is the blank's file
/// name alone: whoever fills a working folder writes the full path there.
std::string ProfileText(const PrintedForm& form, const std::string& blank);

}  // namespace tavrene::samples
