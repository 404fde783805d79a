#include "profiles/ProfileDocument.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <span>

#include "profiles/XmlFile.h"

namespace {

using tavrene::app::Bytes;
using tavrene::app::FileError;
namespace profiles = tavrene::profiles;

constexpr const char* kPath = "fuzz.Tvp";

/// One file in memory, whatever the path.
class OneFile final : public tavrene::app::Files {
  public:
    Bytes content;

    bool FileExists(const std::string&) const override { return true; }
    bool FolderExists(const std::string&) const override { return true; }
    std::string Fingerprint(const std::string&) const override { return {}; }
    std::optional<tavrene::app::LocalTime> WrittenAt(const std::string&) const override { return {}; }
    void CreateFolder(const std::string&) override {}
    std::vector<std::string> List(const std::string&, std::string_view) const override { return {}; }
    std::vector<std::string> ListFolders(const std::string&) const override { return {}; }
    Bytes Read(const std::string&) const override { return content; }
    void Write(const std::string&, std::span<const std::byte> bytes, tavrene::app::Keep) override {
        content.assign(bytes.begin(), bytes.end());
    }
    void Append(const std::string&, std::string_view) override { throw FileError("not a log"); }
    void Move(const std::string&, const std::string&) override {}
    void Delete(const std::string&) override {}
};

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
    OneFile files;
    const auto bytes = std::as_bytes(std::span(data, size));
    files.content.assign(bytes.begin(), bytes.end());
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
