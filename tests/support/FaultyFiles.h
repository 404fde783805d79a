#pragma once

#include <functional>
#include <string>

#include "app/Files.h"

namespace tavrene::test {

/// The disk, but a test can refuse any call: `refuse` gets the operation ("read", "write", "append", "move",
/// "delete", "list", "create") and the path (of a move, the source) and answers true to make it fail. A move
/// from where `isElsewhere` says that another file system is copies, and then asks for the "unlink".
class FaultyFiles final : public app::Files {
  public:
    std::function<bool(const std::string& operation, const std::string& path)> refuse;

    std::function<bool(const std::string& path)> isElsewhere;

    bool FileExists(const std::string& path) const override { return disk_.FileExists(path); }
    bool FolderExists(const std::string& path) const override { return disk_.FolderExists(path); }
    std::string Fingerprint(const std::string& path) const override { return disk_.Fingerprint(path); }
    std::optional<app::LocalTime> WrittenAt(const std::string& path) const override {
        return disk_.WrittenAt(path);
    }
    void CreateFolder(const std::string& path) override {
        Check("create", path);
        disk_.CreateFolder(path);
    }
    std::vector<std::string> List(const std::string& folder, std::string_view pattern) const override {
        Check("list", folder);
        return disk_.List(folder, pattern);
    }
    std::vector<std::string> ListFolders(const std::string& folder) const override {
        Check("list", folder);
        return disk_.ListFolders(folder);
    }
    app::Bytes Read(const std::string& path) const override {
        Check("read", path);
        return disk_.Read(path);
    }
    void Write(const std::string& path, std::span<const std::byte> content, app::Keep keep) override {
        Check("write", path);
        disk_.Write(path, content, keep);
    }
    void Append(const std::string& path, std::string_view text) override {
        Check("append", path);
        disk_.Append(path, text);
    }
    void Move(const std::string& from, const std::string& to, app::Keep keep = app::Keep::Durably) override {
        Check("move", from);
        if (!isElsewhere || !isElsewhere(from)) {
            disk_.Move(from, to, keep);
            return;
        }
        disk_.Write(to, disk_.Read(from), app::Keep::Durably);
        if (refuse && refuse("unlink", from))
            throw app::SourceRemains("Cannot delete " + from + ": refused by the test");
        disk_.Delete(from);
    }
    void Delete(const std::string& path) override {
        Check("delete", path);
        disk_.Delete(path);
    }

  private:
    void Check(const std::string& operation, const std::string& path) const {
        if (refuse && refuse(operation, path))
            throw app::FileError("Cannot " + operation + " " + path + ": refused by the test");
    }

    app::DiskFiles disk_;
};

}  // namespace tavrene::test
