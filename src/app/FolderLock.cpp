#include "app/FolderLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

namespace tavrene::app {

bool FolderLock::Take(Use use) {
    if (descriptor_ < 0)
        descriptor_ = ::open(folder_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor_ < 0)
        return true;
    const int kind = use == Use::Alone ? LOCK_EX : LOCK_SH;
    return ::flock(descriptor_, kind | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

void FolderLock::Release() {
    if (descriptor_ >= 0)
        ::close(std::exchange(descriptor_, -1));
}

}  // namespace tavrene::app
