#pragma once

#include <string>
#include <string_view>

#include "app/Clock.h"
#include "app/Files.h"
#include "app/Operator.h"

namespace tavrene::app {

enum class ShowInStatusBar : bool { No, Yes };

/// The two daily logs of the `Log` folder: one time-stamped line an event, in Windows-1252 with CR LF. No
/// file stays open between calls, so another program may read the logs at any time.
class ActivityLog {
  public:
    /// `logFolder` ends in a separator. The references must outlive the log.
    ActivityLog(Files& files, const Clock& clock, Operator& person, std::string logFolder);

    /// Appends a line to the profile log or the process log of the day; with `Yes` the message is also put
    /// into the `Message` panel, before the line is written. Throws `FileError` when the line cannot be
    /// written.
    void LogProfileEvent(std::string_view message, ShowInStatusBar show = ShowInStatusBar::No);
    void LogProcessEvent(std::string_view message, ShowInStatusBar show = ShowInStatusBar::No);

  private:
    friend class ToleratedLogFailures;
    void Log(std::string_view kind, std::string_view message, ShowInStatusBar show);

    Files& files_;
    const Clock& clock_;
    Operator& person_;
    std::string logFolder_;
    bool tolerant_ = false;
    int failedLines_ = 0;
};

/// While one lives, a line that cannot be written costs that line only and is counted instead of thrown, so
/// that work goes on without its log.
class ToleratedLogFailures {
  public:
    explicit ToleratedLogFailures(ActivityLog& log);
    ~ToleratedLogFailures();
    ToleratedLogFailures(const ToleratedLogFailures&) = delete;
    ToleratedLogFailures& operator=(const ToleratedLogFailures&) = delete;

    /// Gives the number of lines lost since this object was made, and forgets them, so that they are told
    /// once.
    int TakeLostLines();

  private:
    ActivityLog& log_;
    int before_;
    bool wasTolerant_;
};

/// `utf8` in Windows-1252; a character that it lacks, or a broken sequence, becomes `?`.
std::string ToWindows1252(std::string_view utf8);

}  // namespace tavrene::app
