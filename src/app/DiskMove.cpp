#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <string>
#include <string_view>

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

[[noreturn]] void RefuseToMove(const std::string& from, const std::string& to, int error) {
    Refuse("move", from + " to " + to, error);
}

// In a folder where everybody may write, each may delete his own files alone.
bool IsKeptByOthers(const struct ::stat& folder, const struct ::stat& file) {
    const ::uid_t me = ::geteuid();
    return (folder.st_mode & S_ISVTX) != 0 && me != 0 && me != folder.st_uid && me != file.st_uid;
}

// Asked before anything is copied: a source that stays would be read again and again.
void CheckMayBeDeleted(const std::string& from, const std::string& to) {
    const std::string folder = FromPath(ToPath(from).parent_path() / ".");
    struct ::stat around {};
    struct ::stat file {};
    if (::stat(folder.c_str(), &around) != 0 || ::lstat(from.c_str(), &file) != 0 ||
        ::faccessat(AT_FDCWD, folder.c_str(), W_OK, AT_EACCESS) != 0)
        RefuseToMove(from, to, errno);
    if (IsKeptByOthers(around, file))
        RefuseToMove(from, to, EPERM);
}

// Copies one file into another and leaves its holes: what is only marked as large takes no room.
class FileCopy {
  public:
    FileCopy(const std::string& from, const std::string& temporary, const std::string& to)
        : from_(from),
          to_(to),
          source_(Open("read", from, from, O_RDONLY)),
          target_(Open("write", to, temporary, O_WRONLY | O_CREAT | O_TRUNC)) {}

    void Run() {
        struct ::stat status {};
        if (::fstat(source_.Number(), &status) != 0)
            Refuse("read", from_, errno);
        CheckRoomFor(status);
        for (::off_t data = NextData(0, status.st_size); data < status.st_size;) {
            const ::off_t hole = ::lseek(source_.Number(), data, SEEK_HOLE);
            const ::off_t end = hole < 0 ? status.st_size : std::min(hole, status.st_size);
            CopyPart(data, end);
            data = NextData(end, status.st_size);
        }
        if (::ftruncate(target_.Number(), status.st_size) != 0 || ::fsync(target_.Number()) != 0 ||
            !target_.Close())
            Refuse("write", to_, errno);
    }

  private:
    // The file that a refusal names is not the temporary one.
    static int Open(std::string_view action, const std::string& named, const std::string& path, int flags) {
        const int number = ::open(path.c_str(), flags | O_CLOEXEC, 0666);
        if (number < 0)
            Refuse(action, named, errno);
        return number;
    }

    // Better than to fill the disk first.
    void CheckRoomFor(const struct ::stat& source) {
        constexpr std::uint64_t kBlock = 512;  // whatever the blocks of the file system are
        struct ::statvfs room {};
        if (::fstatvfs(target_.Number(), &room) == 0 && room.f_blocks > 0 &&
            static_cast<std::uint64_t>(source.st_blocks) * kBlock > room.f_bavail * room.f_frsize)
            RefuseToMove(from_, to_, ENOSPC);
    }

    // A file system that knows of no holes is all data.
    ::off_t NextData(::off_t at, ::off_t size) {
        const ::off_t data = ::lseek(source_.Number(), at, SEEK_DATA);
        if (data >= 0)
            return data;
        return errno == ENXIO ? size : at;
    }

    void CopyPart(::off_t at, ::off_t end) {
        if (::lseek(source_.Number(), at, SEEK_SET) < 0)
            Refuse("read", from_, errno);
        if (::lseek(target_.Number(), at, SEEK_SET) < 0)
            Refuse("write", to_, errno);
        while (at < end) {
            const std::size_t wanted = std::min(chunk_.size(), static_cast<std::size_t>(end - at));
            const ::ssize_t got = ::read(source_.Number(), chunk_.data(), wanted);
            if (got < 0 && errno == EINTR)
                continue;
            if (got < 0)
                Refuse("read", from_, errno);
            if (got == 0)
                return;
            if (!disk::WriteAll(target_.Number(), std::span(chunk_).first(static_cast<std::size_t>(got))))
                Refuse("write", to_, errno);
            at += got;
        }
    }

    const std::string& from_;
    const std::string& to_;
    Descriptor source_;
    Descriptor target_;
    Bytes chunk_ = Bytes(kChunk);
};

}  // namespace

void DiskFiles::Move(const std::string& from, const std::string& to, Keep keep) {
    if (FolderExists(to))
        throw FileError("Cannot move " + from + ": " + to + " is a folder");
    // A link would arrive as one, and point elsewhere from its new place.
    if (std::error_code ignored; std::filesystem::is_symlink(ToPath(from), ignored))
        return MoveAcross(from, to);
    if (::rename(from.c_str(), to.c_str()) == 0) {
        if (keep == Keep::Durably)
            disk::FlushFolderOf(to);
        DropOtherLink(from, to);
    } else if (errno == EXDEV) {
        MoveAcross(from, to);
    } else {
        RefuseToMove(from, to, errno);
    }
}

void DiskFiles::MoveAcross(const std::string& from, const std::string& to) {
    CheckMayBeDeleted(from, to);
    const std::string before = Fingerprint(from);
    const std::string temporary = disk::TemporaryNeighbour(to);
    try {
        FileCopy(from, temporary, to).Run();
        if (Fingerprint(from) != before)
            throw FileError("Cannot move " + from + ": somebody is still writing to it");
    } catch (...) {
        ::unlink(temporary.c_str());
        throw;
    }
    disk::RenameOver(temporary, to, "move");
    disk::FlushFolderOf(to);
    DeleteSource(from, to);
}

}  // namespace tavrene::app
