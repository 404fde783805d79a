#pragma once

#include <QObject>
#include <QPointer>
#include <QThread>
#include <utility>

namespace tavrene::ui {

/// The one thread in which scanners are talked to, since their library is not made for several: what is asked
/// is done one after the other, and the window stays alive meanwhile.
class ScanThread {
  public:
    ScanThread() { inThread_.moveToThread(&thread_); }
    ~ScanThread() {
        thread_.quit();
        thread_.wait();
    }
    ScanThread(const ScanThread&) = delete;
    ScanThread& operator=(const ScanThread&) = delete;

    /// Does `work` in the thread, and hands what it gives to `then` here, unless `receiver` is gone by that
    /// time. `work` throws nothing, and what it uses is there until it is done.
    template <typename Work, typename Then>
    void Ask(QObject* receiver, Work work, Then then) {
        if (!thread_.isRunning())
            thread_.start();
        QMetaObject::invokeMethod(
            &inThread_,
            [this, guard = QPointer(receiver), work = std::move(work), then = std::move(then)] {
                auto result = work();
                QMetaObject::invokeMethod(
                    &here_,
                    [guard, then, result = std::move(result)] {
                        if (guard)
                            then(result);
                    },
                    Qt::QueuedConnection);
            },
            Qt::QueuedConnection);
    }

  private:
    QThread thread_;
    QObject here_;
    QObject inThread_;
};

}  // namespace tavrene::ui
