#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tavrene::recognition {

/// What became of one image in a run: read with its result beside it in `ProcessOut`; there without a result,
/// since no profile fits it or nothing can be read from it; or it could not be moved, or its result not be
/// written.
enum class FileEnd { Read, NotRecognised, Refused, NotWritten };

struct FileReport {
    std::string name;
    FileEnd end = FileEnd::Refused;
    std::string reason;    ///< As the process log has it, without the name.
    int furtherPages = 0;  ///< Of a file of several pages those that nobody looks at, the first being read.
};

/// The files that a run has taken, in its order.
struct RunSummary {
    std::vector<FileReport> files;
    long seconds = 0;
    std::size_t inClaims = 0;  ///< Scans that wait where a program that shared the folder was killed.

    std::size_t Count(FileEnd end) const;
};

/// What the process log says of an image besides how it was read: the beginnings, and the end of what
/// `Settle` says of one.
namespace said {
inline constexpr std::string_view kComplete = "Processing complete";
inline constexpr std::string_view kReplacesResult = "Result replaces the earlier ";
inline constexpr std::string_view kReplacesImage = "Replaces an earlier image, whose result ";
inline constexpr std::string_view kPassedOver = "Passed over, since it could not be moved before";
inline constexpr std::string_view kTakenOver = "Taken over by another program";
inline constexpr std::string_view kSentBack = "sent back to ";
inline constexpr std::string_view kWasCutShort = ", which was cut short before";
}  // namespace said

/// One of these: no reason for anything.
bool GivesNoReason(std::string_view what);

/// What was said, without the blank at the end that lines about classified images have.
std::string WithoutBlankAtEnd(std::string_view what);

}  // namespace tavrene::recognition
