#include "recognition/RunSummary.h"

#include <algorithm>
#include <array>

namespace tavrene::recognition {

std::size_t RunSummary::Count(FileEnd end) const {
    return static_cast<std::size_t>(
        std::ranges::count_if(files, [end](const FileReport& file) { return file.end == end; }));
}

bool GivesNoReason(std::string_view what) {
    constexpr std::array beginnings = {said::kComplete,   said::kReplacesResult, said::kReplacesImage,
                                       said::kPassedOver, said::kTakenOver,      said::kSentBack};
    return what.ends_with(said::kWasCutShort) ||
           std::ranges::any_of(beginnings, [what](auto beginning) { return what.starts_with(beginning); });
}

std::string WithoutBlankAtEnd(std::string_view what) {
    return std::string(what.substr(0, what.find_last_not_of(' ') + 1));
}

}  // namespace tavrene::recognition
