#include "recognition/ResultDocument.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <span>

#include "OneFile.h"
#include "profiles/XmlFile.h"

namespace {

using tavrene::fuzz::OneFile;
using tavrene::recognition::ResultDocument;
using tavrene::recognition::ResultMark;

constexpr const char* kPath = "fuzz.xml";

std::optional<ResultDocument> ReadIfAny(const OneFile& files) {
    try {
        return ResultDocument::Load(files, kPath);
    } catch (const tavrene::profiles::DocumentError&) {
        return std::nullopt;
    }
}

bool AreEqual(const std::vector<ResultMark>& left, const std::vector<ResultMark>& right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](const ResultMark& a, const ResultMark& b) {
                          return a.Name == b.Name && a.Checked == b.Checked && a.Shift == b.Shift;
                      });
}

}  // namespace

/// Foreign bytes are read or refused with a `DocumentError`; a document that can be read keeps all that
/// review reads of it when its marks are turned round, and it is saved and read again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    OneFile files(std::as_bytes(std::span(data, size)));
    tavrene::recognition::ImageOfResult(files, kPath);
    std::optional<ResultDocument> document = ReadIfAny(files);
    if (!document)
        return 0;
    std::vector<ResultMark> marks = document->Marks();
    for (ResultMark& mark : marks)
        mark.Checked = !mark.Checked;
    document->SetChecked(marks);
    document->SetReviewed(true);
    document->Save(files, kPath);
    const std::optional<ResultDocument> again = ReadIfAny(files);
    if (!again || !again->IsReviewed() || !AreEqual(marks, again->Marks()) ||
        again->Image() != document->Image() || again->Profile() != document->Profile())
        std::abort();
    return 0;
}
