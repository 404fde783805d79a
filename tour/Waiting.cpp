#include "tour/Waiting.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <stdexcept>
#include <string>

namespace tavrene::tour {

void WaitUntil(const std::function<bool()>& isSo, const char* what) {
    constexpr int kPatience = 60'000;
    QDeadlineTimer patience(kPatience);
    while (!isSo()) {
        if (patience.hasExpired())
            throw std::runtime_error(std::string("This has not happened: ") + what + ".");
        QApplication::processEvents(QEventLoop::AllEvents, kLookAgain);
    }
}

}  // namespace tavrene::tour
