#include "ui/scanning/ScanThread.h"

#include <QCoreApplication>
#include <memory>

namespace tavrene::ui {

ScanThread& ScanThread::OfProgram() {
    static std::unique_ptr<ScanThread> thread;
    if (!thread) {
        thread.reset(new ScanThread);
        qAddPostRoutine([] { thread.reset(); });
    }
    return *thread;
}

}  // namespace tavrene::ui
