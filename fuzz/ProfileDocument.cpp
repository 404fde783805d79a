#include "profiles/ProfileDocument.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <span>

#include "OneFile.h"
#include "profiles/XmlFile.h"

namespace {

using tavrene::fuzz::OneFile;
namespace profiles = tavrene::profiles;

constexpr const char* kPath = "fuzz.Tvp";

std::optional<profiles::ProfileContent> ReadIfAny(const OneFile& files) {
    try {
        return profiles::ReadProfileContent(profiles::LoadProfileDocument(files, kPath));
    } catch (const profiles::DocumentError&) {
        return std::nullopt;
    }
}

}  // namespace

/// Foreign bytes are read or refused with a `DocumentError`; what can be read can be saved, and reads the
/// same again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    OneFile files(std::as_bytes(std::span(data, size)));
    const auto before = ReadIfAny(files);
    if (!before)
        return 0;
    profiles::SaveProfileDocument(files, kPath, profiles::LoadProfileDocument(files, kPath));
    const auto after = ReadIfAny(files);
    if (!after || before->Boxes.size() != after->Boxes.size() || before->Image != after->Image ||
        before->Count != after->Count || before->Active != after->Active)
        std::abort();
    return 0;
}
