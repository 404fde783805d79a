#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string>

#include "app/DiskFile.h"
#include "app/Files.h"

namespace tavrene::app {
namespace {

using disk::Descriptor;
using disk::Refuse;

constexpr std::size_t kChunk = std::size_t{1} << 20U;

bool IsSameEntry(const std::string& a, const std::string& b) {
    std::error_code ignored;
    return FileName(a) == FileName(b) &&
           std::filesystem::equivalent(ToPath(a).parent_path() / ".", ToPath(b).parent_path() / ".", ignored);
}

void DeleteSource(const std::string& from, const std::string& to) {
    if (::unlink(from.c_str()) != 0)
        throw SourceRemains("Cannot delete " + from + ", which now lies in " + to +
                            " as well: " + std::generic_category().message(errno));
}

// The system leaves two links to one file as they are when one is renamed to the other, and calls that done.
void DropOtherLink(const std::string& from, const std::string& to) {
    struct ::stat left {};
    struct ::stat moved {};
    if (::lstat(from.c_str(), &left) != 0 || ::lstat(to.c_str(), &moved) != 0)
        return;
    if (left.st_ino == moved.st_ino && left.st_dev == moved.st_dev && left.st_nlink > 1 &&
        !IsSameEntry(from, to))
        DeleteSource(from, to);
}

// Asked before anything is copied: a source that stays would be read again and again.
void CheckMayBeDeleted(const std::string& path) {
    const std::string folder = FromPath(ToPath(path).parent_path() / ".");
    if (::faccessat(AT_FDCWD, folder.c_str(), W_OK, AT_EACCESS) != 0)
        Refuse("move", path, errno);
}

void CopyContent(const std::string& from, const std::string& to, const std::string& shown) {
    const Descriptor source(::open(from.c_str(), O_RDONLY | O_CLOEXEC));
    if (source.Number() < 0)
        Refuse("read", from, errno);
    Descriptor target(::open(to.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666));
    if (target.Number() < 0)
        Refuse("write", shown, errno);
    Bytes chunk(kChunk);
    for (;;) {
        const ::ssize_t got = ::read(source.Number(), chunk.data(), chunk.size());
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            Refuse("read", from, errno);
        if (got == 0)
            break;
        if (!disk::WriteAll(target.Number(), std::span(chunk).first(static_cast<std::size_t>(got))))
            Refuse("write", shown, errno);
    }
    if (::fsync(target.Number()) != 0 || !target.Close())
        Refuse("write", shown, errno);
}

}  // namespace

void DiskFiles::Move(const std::string& from, const std::string& to, Keep keep) {
    if (FolderExists(to))
        throw FileError("Cannot move " + from + ": " + to + " is a folder");
    if (::rename(from.c_str(), to.c_str()) == 0) {
        if (keep == Keep::Durably)
            disk::FlushFolderOf(to);
        DropOtherLink(from, to);
    } else if (errno == EXDEV) {
        MoveAcross(from, to);
    } else {
        Refuse("move", from, errno);
    }
}

void DiskFiles::MoveAcross(const std::string& from, const std::string& to) {
    CheckMayBeDeleted(from);
    const std::string before = Fingerprint(from);
    const std::string temporary = disk::TemporaryNeighbour(to);
    try {
        CopyContent(from, temporary, to);
        if (Fingerprint(from) != before)
            throw FileError("Cannot move " + from + ": somebody is still writing to it");
    } catch (const FileError&) {
        ::unlink(temporary.c_str());
        throw;
    }
    disk::RenameOver(temporary, to, "move");
    disk::FlushFolderOf(to);
    DeleteSource(from, to);
}

}  // namespace tavrene::app
