#pragma once

#include <QElapsedTimer>

#include "app/Operator.h"
#include "review/WorkWatch.h"
#include "ui/base/BusyCursor.h"
#include "ui/base/EscapeWatch.h"

namespace tavrene::ui {

/// A long work over forms: while it lives, the progress bar shows how far it is, and Escape ends it; nothing
/// else is taken.
class WatchedWork {
  public:
    /// `text` says what is being done.
    WatchedWork(app::Operator& person, std::string text) : person_(person), text_(std::move(text)) {}
    ~WatchedWork();
    WatchedWork(const WatchedWork&) = delete;
    WatchedWork& operator=(const WatchedWork&) = delete;

    review::WorkWatch Watch();

  private:
    bool GoesOn(std::size_t done, std::size_t total);

    app::Operator& person_;
    std::string text_;
    BusyCursor busy_;
    EscapeWatch escape_;
    QElapsedTimer since_;  ///< It was last shown; invalid before.
    bool isShown_ = false;
};

}  // namespace tavrene::ui
