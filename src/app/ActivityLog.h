#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "app/Clock.h"
#include "app/Files.h"
#include "app/Operator.h"

namespace tavrene::app {

enum class ShowInStatusBar : bool { No, Yes };

/// The two daily logs of the `Log` folder: one time-stamped line an event, in Windows-1252 with CR LF. No
/// file stays open between calls, so another program may read the logs at any time. Work never stops for its
/// log: a line that cannot be written is lost and counted.
class ActivityLog {
  public:
    /// `logFolder` ends in a separator. The references must outlive the log.
    ActivityLog(Files& files, const Clock& clock, Operator& person, std::string logFolder);

    /// Appends a line to the profile log or the process log of the day; with `Yes` the message is also put
    /// into the `Message` panel, before the line is written.
    void LogProfileEvent(std::string_view message, ShowInStatusBar show = ShowInStatusBar::No);
    void LogProcessEvent(std::string_view message, ShowInStatusBar show = ShowInStatusBar::No);

    /// How many lines were lost since this was last asked: whoever asks tells the operator, and only once.
    int TakeLostLines() { return std::exchange(lostLines_, 0); }

  private:
    void Log(std::string_view kind, std::string_view message, ShowInStatusBar show);

    Files& files_;
    const Clock& clock_;
    Operator& person_;
    std::string logFolder_;
    int lostLines_ = 0;
};

/// `utf8` in Windows-1252; a character that it lacks, or a broken sequence, becomes `?`.
std::string ToWindows1252(std::string_view utf8);

}  // namespace tavrene::app
