#pragma once

#include <QString>

namespace tavrene::ui {

/// Tells whether another instance of the program runs, by a lock on the file `instance.lock`. The system
/// holds the lock for as long as the process lives, so what the file is and what stands in it matter to
/// nobody.
class SingleInstance {
  public:
    /// `folder` is where the lock lies; it is made when it is missing.
    explicit SingleInstance(const QString& folder);
    ~SingleInstance();
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    /// False when another running instance holds the lock. Where nothing can be locked nobody can hold it:
    /// true.
    bool Become();

  private:
    int file_ = -1;
};

}  // namespace tavrene::ui
