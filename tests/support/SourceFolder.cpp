#include "support/SourceFolder.h"

namespace tavrene::test {

std::string SourceFolder() {
    return TAVRENE_SOURCE_DIR;
}

}  // namespace tavrene::test
