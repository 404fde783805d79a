#include "app/ActivityLog.h"

#include <cstdio>
#include <utility>

namespace tavrene::app {
namespace {

constexpr char kSeparator = static_cast<char>(std::filesystem::path::preferred_separator);

std::string DateStamp(const LocalTime& time) {
    char text[40];
    std::snprintf(text, sizeof text, "%04d%02d%02d", time.year, time.month, time.day);
    return text;
}

std::string TimeStamp(const LocalTime& time) {
    const int hour = time.hour % 12 == 0 ? 12 : time.hour % 12;
    char text[48];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d %s", hour, time.minute, time.second,
                  time.hour < 12 ? "AM" : "PM");
    return text;
}

}  // namespace

ActivityLog::ActivityLog(Files& files, const Clock& clock, Operator& person, std::string logFolder)
    : files_(files), clock_(clock), person_(person), logFolder_(std::move(logFolder)) {}

void ActivityLog::LogProfileEvent(std::string_view message, ShowInStatusBar show) {
    Log("Profile", message, show);
}

void ActivityLog::LogProcessEvent(std::string_view message, ShowInStatusBar show) {
    Log("Process", message, show);
}

void ActivityLog::Log(std::string_view kind, std::string_view message, ShowInStatusBar show) {
    if (show == ShowInStatusBar::Yes)
        person_.SetPanel(Panel::Message, message);
    const LocalTime now = clock_.Now();
    std::string path = logFolder_;
    path += kSeparator;
    path.append("TavreneBoxes-").append(kind).append("-").append(DateStamp(now)).append(".Log");
    try {
        files_.Append(path, TimeStamp(now) + " " + ToWindows1252(message) + "\r\n");
    } catch (const FileError&) {
        ++lostLines_;
    }
}

}  // namespace tavrene::app
