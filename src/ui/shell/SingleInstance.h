#pragma once

#include <QLockFile>
#include <QString>

namespace tavrene::ui {

/// Tells whether another instance of the program runs, by a lock file. A lock whose holder has crashed is
/// taken over.
class SingleInstance {
  public:
    /// `folder` is where the lock lies; it is made when it is missing.
    explicit SingleInstance(const QString& folder);

    /// False when another running instance holds the lock. Where no lock can be written nobody can hold one:
    /// true.
    bool Become();

  private:
    QLockFile lock_;
};

}  // namespace tavrene::ui
