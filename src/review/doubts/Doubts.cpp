#include "review/doubts/Doubts.h"

#include <algorithm>
#include <cmath>

namespace tavrene::review {
namespace {

// So many say what is usual on a page.
constexpr std::size_t kEnough = 5;

// Percent of ink that a clean empty box may have; and the shares of a usual mark that are no more than a
// touch of the pen, and no less than a mark.
constexpr double kLeast = 1.5;
constexpr double kTouch = 0.1;
constexpr double kBold = 0.3;

// Percent of a strip beside an empty box; a word that the scan has moved a little makes less.
constexpr double kStray = 19;

// Shares of what a blackened box comes to: black all over, and by far not.
constexpr double kBlack = 0.92;
constexpr double kLighter = 0.82;

double Median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

// Faint marks among the empty boxes lie above the middle.
double SpreadBelow(double median, const std::vector<double>& values) {
    std::vector<double> below;
    for (const double value : values)
        if (value <= median)
            below.push_back(median - value);
    return Median(std::move(below));
}

double InkOf(const BoxEvidence& box) {
    return box.least.value_or(*box.fill);
}

std::optional<DoubtReason> DoubtOf(const BoxEvidence& box, const FillBand& band, double fillThreshold) {
    if (!box.fill)
        return std::nullopt;
    if (box.isChecked != (*box.fill >= fillThreshold))
        return DoubtReason::Contradiction;
    if (box.isOtherForm)
        return DoubtReason::OtherForm;
    const double ink = InkOf(box);
    if (box.isReadOtherwise || (box.isChecked && ink <= band.low))
        return DoubtReason::ReadOtherwise;
    if (ink > band.low && ink < band.high)
        return DoubtReason::NearThreshold;
    if (ink > kBlack * box.full && band.mark < kLighter * box.full)
        return DoubtReason::OverFull;
    if (!box.isChecked && box.inkBeside > kStray)
        return DoubtReason::InkBeside;
    return std::nullopt;
}

}  // namespace

std::string_view TextOf(DoubtReason reason) {
    switch (reason) {
        case DoubtReason::Contradiction:
            return "Ink and mark contradict each other";
        case DoubtReason::OtherForm:
            return "A second look takes the page for another form, or for none";
        case DoubtReason::ReadOtherwise:
            return "A second look reads this box otherwise";
        case DoubtReason::NearThreshold:
            return "The ink is near the threshold";
        case DoubtReason::OverFull:
            return "Much fuller than the other marks: blacked out?";
        case DoubtReason::InkBeside:
            return "There is ink close beside this box";
        case DoubtReason::NoneOfGroup:
            return "No box of its group is marked";
        case DoubtReason::ManyOfGroup:
            return "More than one box of its group is marked";
    }
    return {};
}

FillBand BandOf(std::span<const double> fills, double fillThreshold) {
    std::vector<double> empty;
    std::vector<double> marked;
    for (const double fill : fills)
        (fill < fillThreshold ? empty : marked).push_back(fill);
    FillBand band{fillThreshold * 2 / 3, fillThreshold * 4 / 3, marked.empty() ? 0 : Median(marked)};
    const bool isUsualMark = marked.size() >= kEnough;
    const double mark = isUsualMark ? band.mark : 2 * fillThreshold;
    if (empty.size() >= kEnough) {
        const double usual = Median(empty);
        band.low =
            std::min(fillThreshold,
                     usual + std::max({kLeast, 4 * SpreadBelow(usual, empty), kTouch * (mark - usual)}));
    }
    if (isUsualMark)
        band.high = std::max(fillThreshold, band.low + kBold * (mark - band.low));
    return band;
}

BoxDoubts DoubtsOf(std::span<const BoxEvidence> boxes, double fillThreshold) {
    std::vector<double> fills;
    for (const BoxEvidence& box : boxes)
        if (box.fill)
            fills.push_back(InkOf(box));
    const FillBand band = BandOf(fills, fillThreshold);
    BoxDoubts doubts;
    for (const BoxEvidence& box : boxes)
        doubts.push_back(DoubtOf(box, band, fillThreshold));
    return doubts;
}

}  // namespace tavrene::review
