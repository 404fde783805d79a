#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "app/Files.h"

namespace tavrene::fuzz {

/// One file in memory, whatever the path.
class OneFile final : public app::Files {
  public:
    explicit OneFile(std::span<const std::byte> bytes) : content(bytes.begin(), bytes.end()) {}

    app::Bytes content;

    bool FileExists(const std::string&) const override { return true; }
    bool FolderExists(const std::string&) const override { return true; }
    std::string Fingerprint(const std::string&) const override { return {}; }
    std::optional<app::LocalTime> WrittenAt(const std::string&) const override { return {}; }
    void CreateFolder(const std::string&) override {}
    std::vector<std::string> List(const std::string&, std::string_view) const override { return {}; }
    std::vector<std::string> ListFolders(const std::string&) const override { return {}; }
    app::Bytes Read(const std::string&) const override { return content; }
    void Write(const std::string&, std::span<const std::byte> bytes, app::Keep) override {
        content.assign(bytes.begin(), bytes.end());
    }
    void Append(const std::string&, std::string_view) override { throw app::FileError("not a log"); }
    void Move(const std::string&, const std::string&, app::Keep) override {}
    void Delete(const std::string&) override {}
};

}  // namespace tavrene::fuzz
