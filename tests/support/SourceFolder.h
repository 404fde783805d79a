#pragma once

#include <string>

namespace tavrene::test {

/// The project's folder, for samples and recorded states; without a separator at its end.
std::string SourceFolder();

}  // namespace tavrene::test
