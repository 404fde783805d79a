#include "ui/shell/SingleInstance.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <cerrno>

namespace tavrene::ui {
namespace {

// What stands in the way of the file, or the folder around it, can be locked as well.
int OpenForLock(const QString& folder) {
    const QByteArray around = QFile::encodeName(folder);
    const QByteArray file = around + "/instance.lock";
    int found = ::open(file, O_RDWR | O_CREAT | O_NONBLOCK | O_CLOEXEC, 0666);
    if (found < 0)
        found = ::open(file, O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    return found >= 0 ? found : ::open(around, O_RDONLY | O_CLOEXEC);
}

}  // namespace

SingleInstance::SingleInstance(const QString& folder) {
    QDir().mkpath(folder);
    file_ = OpenForLock(folder);
}

SingleInstance::~SingleInstance() {
    if (file_ >= 0)
        ::close(file_);
}

bool SingleInstance::Become() {
    return file_ < 0 || ::flock(file_, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

}  // namespace tavrene::ui
