#pragma once

#include <QCursor>
#include <vector>

namespace tavrene::ui {

/// Shows the busy pointer for as long as it lives.
class BusyCursor {
  public:
    BusyCursor();
    ~BusyCursor();
    BusyCursor(const BusyCursor&) = delete;
    BusyCursor& operator=(const BusyCursor&) = delete;
};

/// Takes busy pointers away for as long as it lives: a question is waiting for its answer.
class UsualCursor {
  public:
    UsualCursor();
    ~UsualCursor();
    UsualCursor(const UsualCursor&) = delete;
    UsualCursor& operator=(const UsualCursor&) = delete;

  private:
    std::vector<QCursor> before_;  ///< The outermost first.
};

}  // namespace tavrene::ui
