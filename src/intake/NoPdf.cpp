#include "intake/PdfPages.h"

namespace tavrene::intake {

std::variant<std::unique_ptr<PageSource>, Reason> OpenPdf(app::Bytes /*content*/) {
    return Reason{"This program was built without the library that reads PDFs."};
}

}  // namespace tavrene::intake
