#include <fcntl.h>
#include <fnmatch.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

#include "app/DiskFile.h"
#include "app/Files.h"

namespace tavrene::app {
namespace {

namespace fs = std::filesystem;

using disk::Descriptor;
using disk::Refuse;

// Nothing that the program works with is larger: a page of one gigabyte is refused, too.
constexpr ::off_t kLargestFile = ::off_t{1} << 30U;

void WriteWhole(const std::string& path, std::span<const std::byte> content, Keep keep) {
    Descriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666));
    if (file.Number() < 0)
        Refuse("write", path, errno);
    const bool done = disk::WriteAll(file.Number(), content) &&
                      (keep == Keep::AsScratch || ::fsync(file.Number()) == 0) && file.Close();
    if (!done) {
        const int error = errno;
        ::unlink(path.c_str());
        Refuse("write", path, error);
    }
}

// The names of a folder's entries that `wanted(entry, name)` takes, ordered by their lower-cased form.
template <typename Wanted>
std::vector<std::string> NamesIn(const std::string& folder, const Wanted& wanted) {
    std::error_code error;
    std::vector<std::string> names;
    for (fs::directory_iterator entry(ToPath(folder), error), end; !error && entry != end;
         entry.increment(error)) {
        std::string name = FromPath(entry->path().filename());
        if (wanted(*entry, name))
            names.push_back(std::move(name));
    }
    if (error)
        Refuse("list the folder", folder, error.value());
    std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
        return std::pair(LowerCase(a), a) < std::pair(LowerCase(b), b);
    });
    return names;
}

}  // namespace

bool DiskFiles::FileExists(const std::string& path) const {
    std::error_code ignored;
    return fs::is_regular_file(ToPath(path), ignored);
}

bool DiskFiles::FolderExists(const std::string& path) const {
    std::error_code ignored;
    return fs::is_directory(ToPath(path), ignored);
}

std::string DiskFiles::Fingerprint(const std::string& path) const {
    struct ::stat status {};
    if (::stat(path.c_str(), &status) != 0 || (!S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode)))
        return {};
    return std::to_string(status.st_size) + "-" + std::to_string(status.st_mtim.tv_sec) + "." +
           std::to_string(status.st_mtim.tv_nsec) + "-" + std::to_string(status.st_ino);
}

std::optional<LocalTime> DiskFiles::WrittenAt(const std::string& path) const {
    struct ::stat status {};
    if (::stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    return ToLocalTime(status.st_mtim.tv_sec);
}

void DiskFiles::CreateFolder(const std::string& path) {
    if (::mkdir(path.c_str(), 0777) != 0)
        Refuse("create the folder", path, errno);
}

std::vector<std::string> DiskFiles::List(const std::string& folder, std::string_view pattern) const {
    return NamesIn(
        folder, [wanted = std::string(pattern)](const fs::directory_entry& entry, const std::string& name) {
            std::error_code ignored;
            return (!name.starts_with('.') || wanted.starts_with('.')) && entry.is_regular_file(ignored) &&
                   ::fnmatch(wanted.c_str(), name.c_str(), FNM_CASEFOLD) == 0;
        });
}

std::vector<std::string> DiskFiles::ListFolders(const std::string& folder) const {
    return NamesIn(folder, [](const fs::directory_entry& entry, const std::string& name) {
        std::error_code ignored;
        return !name.starts_with('.') && entry.is_directory(ignored) && !entry.is_symlink(ignored);
    });
}

Bytes DiskFiles::Read(const std::string& path) const {
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    struct ::stat status {};
    if (file.Number() < 0 || ::fstat(file.Number(), &status) != 0)
        Refuse("read", path, errno);
    if (!S_ISREG(status.st_mode))
        Refuse("read", path, EISDIR);
    if (status.st_size > kLargestFile)
        throw FileError("Cannot read " + path + ": it is larger than one gigabyte");
    Bytes content(static_cast<std::size_t>(status.st_size));
    std::size_t done = 0;
    while (done < content.size()) {
        const ::ssize_t got = ::read(file.Number(), content.data() + done, content.size() - done);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            Refuse("read", path, errno);
        if (got == 0)
            break;
        done += static_cast<std::size_t>(got);
    }
    content.resize(done);
    return content;
}

void DiskFiles::Write(const std::string& path, std::span<const std::byte> content, Keep keep) {
    const std::string temporary = disk::TemporaryNeighbour(path);
    try {
        WriteWhole(temporary, content, keep);
    } catch (const FileError& error) {
        // The operator knows the file by its own name, not by that of the neighbour.
        throw FileError(ReplaceFirst(error.what(), temporary, path));
    }
    disk::RenameOver(temporary, path, "write");
    if (keep == Keep::Durably)
        disk::FlushFolderOf(path);
}

void DiskFiles::Append(const std::string& path, std::string_view text) {
    Descriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666));
    if (file.Number() < 0 || !disk::WriteAll(file.Number(), AsBytes(text)) || !file.Close())
        Refuse("write", path, errno);
}

void DiskFiles::Delete(const std::string& path) {
    if (::unlink(path.c_str()) != 0)
        Refuse("delete", path, errno);
}

}  // namespace tavrene::app
