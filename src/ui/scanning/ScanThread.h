#pragma once

#include <QObject>
#include <QPointer>
#include <QThread>
#include <atomic>
#include <utility>

namespace tavrene::ui {

/// The one thread in which scanners are talked to, since their library is not made for several: what is asked
/// is done one after the other, and the window stays alive meanwhile.
class ScanThread {
  public:
    /// What a window that goes does about work that is not done yet.
    enum class AtEnd { LetGo, Wait };

    /// That of the program. It ends with the application, behind all windows and what they hold: a search
    /// for scanners may take long.
    static ScanThread& OfProgram();

    ~ScanThread() {
        thread_.quit();
        thread_.wait();
    }
    ScanThread(const ScanThread&) = delete;
    ScanThread& operator=(const ScanThread&) = delete;

    /// Does `work` in the thread, and hands what it gives to `then` here, unless `receiver` is gone by that
    /// time. `work` throws nothing, and what it uses is there until it is done, or until `WaitForWork` where
    /// `atEnd` has it.
    template <typename Work, typename Then>
    void Ask(QObject* receiver, AtEnd atEnd, Work work, Then then) {
        if (!thread_.isRunning())
            thread_.start();
        waitedFor_ += atEnd == AtEnd::Wait ? 1 : 0;
        QMetaObject::invokeMethod(
            &inThread_,
            [this, guard = QPointer(receiver), atEnd, work = std::move(work), then = std::move(then)] {
                auto result = work();
                if (atEnd == AtEnd::Wait && --waitedFor_ == 0)
                    waitedFor_.notify_all();
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

    /// Returns when all is done that has to be waited for.
    void WaitForWork() const {
        for (int left = waitedFor_; left > 0; left = waitedFor_)
            waitedFor_.wait(left);
    }

  private:
    ScanThread() { inThread_.moveToThread(&thread_); }

    QThread thread_;
    QObject here_;
    QObject inThread_;
    std::atomic<int> waitedFor_ = 0;
};

}  // namespace tavrene::ui
