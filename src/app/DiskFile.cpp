#include "app/DiskFile.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <charconv>
#include <functional>
#include <system_error>
#include <utility>

#include "app/Files.h"

namespace tavrene::app {
namespace disk {
namespace {

constexpr std::string_view kPrefix = ".tavrene-";
constexpr std::string_view kSuffix = ".tmp";

}  // namespace

Descriptor::~Descriptor() {
    if (number_ >= 0)
        ::close(number_);
}

bool Descriptor::Close() {
    return ::close(std::exchange(number_, -1)) == 0;
}

void Refuse(std::string_view action, std::string_view path, int error) {
    std::string text = "Cannot ";
    text.append(action).append(" ").append(path).append(": ").append(std::generic_category().message(error));
    throw FileError(text);
}

bool WriteAll(int descriptor, std::span<const std::byte> content) {
    while (!content.empty()) {
        const ::ssize_t written = ::write(descriptor, content.data(), content.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        content = content.subspan(static_cast<std::size_t>(written));
    }
    return true;
}

// Several machines may write to one folder, and the numbers of their processes say nothing to each other.
const std::string& HostTag() {
    static const std::string tag = [] {
        std::array<char, 256> host{};
        ::gethostname(host.data(), host.size() - 1);
        return std::to_string(std::hash<std::string_view>()(host.data()) % 1'000'000);
    }();
    return tag;
}

std::string TemporaryNeighbour(const std::string& path) {
    static std::atomic<unsigned> counter{0};
    std::string name(kPrefix);
    name.append(std::to_string(::getpid())).append("-").append(std::to_string(++counter));
    name.append("-").append(HostTag()).append(kSuffix);
    return FromPath(ToPath(path).parent_path() / name);
}

void RenameOver(const std::string& from, const std::string& to, std::string_view action) {
    if (::rename(from.c_str(), to.c_str()) != 0) {
        const int error = errno;
        ::unlink(from.c_str());
        Refuse(action, to, error);
    }
}

void FlushFolderOf(const std::string& path) {
    const std::string folder = FromPath(ToPath(path).parent_path() / ".");
    const Descriptor open(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (open.Number() >= 0)
        ::fsync(open.Number());
}

// The number of this process is a dead one's, too: it has begun only now.
bool IsHeldByOther(std::string_view temporary) {
    temporary.remove_prefix(kPrefix.size());
    temporary.remove_suffix(kSuffix.size());
    ::pid_t holder = 0;
    const auto [end, error] = std::from_chars(temporary.data(), temporary.data() + temporary.size(), holder);
    // Behind process and number stands the machine; earlier versions wrote none.
    const std::size_t machine = temporary.find('-', temporary.find('-') + 1);
    if (machine != std::string_view::npos && temporary.substr(machine + 1) != HostTag())
        return true;
    return error == std::errc() && holder > 0 && holder != ::getpid() &&
           (::kill(holder, 0) == 0 || errno == EPERM);
}

}  // namespace disk

void RemoveDeadTemporaries(Files& files, const std::string& folder) {
    std::string pattern(disk::kPrefix);
    try {
        for (const std::string& name : files.List(folder, pattern.append("*").append(disk::kSuffix))) {
            if (!disk::IsHeldByOther(name))
                files.Delete(folder + name);
        }
    } catch (const FileError&) {
        return;  // what is left is in nobody's way, and the next start tries again
    }
}

}  // namespace tavrene::app
