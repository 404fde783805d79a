#include "ui/shell/SingleInstance.h"

#include <QDir>

namespace tavrene::ui {

SingleInstance::SingleInstance(const QString& folder) : lock_(folder + "/instance.lock") {
    QDir().mkpath(folder);
    // A lock never grows stale by its age, only by the death of its holder: sessions last for days.
    lock_.setStaleLockTime(0);
}

bool SingleInstance::Become() {
    return lock_.tryLock(0) || lock_.error() != QLockFile::LockFailedError;
}

}  // namespace tavrene::ui
