#include "boxes/second/SecondLook.h"

#include <algorithm>

#include "boxes/BoxAssembly.h"
#include "boxes/ProfileImagePipeline.h"
#include "boxes/second/CandidateChoice.h"
#include "boxes/second/FrameBox.h"
#include "boxes/second/FrameSearch.h"
#include "boxes/second/Straighten.h"

namespace tavrene::boxes {
namespace {

using imaging::WorkGrid;

// Boxes of ordinary forms at 600 dots an inch are three times as large as any setting.
constexpr int kLargestFactor = 3;
constexpr int kSmallestShare = 2;

// No settings, however far out, make the search wider than this.
constexpr int kSmallestInside = 7;
constexpr int kLargestInside = 160;

// Thick lines leave a box of a size that the settings allow, or nearly, an inside so much smaller than those
// of other boxes.
constexpr int kThickLines = 3;

// With so few boxes the settings are probably wrong for the page.
constexpr std::size_t kFewBoxes = 8;

// The shares of the work after which the parts of a look end.
constexpr double kRulesDone = 0.35;
constexpr double kFramesDone = 0.7;

int SmallestInside(int side) {
    return std::clamp(side / kSmallestShare - 2, kSmallestInside, kLargestInside);
}

int LargestInside(int side) {
    return std::clamp(side * kLargestFactor, kSmallestInside, kLargestInside);
}

InsideLimits LimitsFor(const BoxSizes& sizes) {
    return {SmallestInside(sizes.BoxMinWidth) - kThickLines, LargestInside(sizes.BoxMaxWidth),
            SmallestInside(sizes.BoxMinHeight) - kThickLines, LargestInside(sizes.BoxMaxHeight)};
}

bool HasRoomInside(const Frame& frame, const BoxSizes& sizes) {
    return frame.Right - frame.Left > SmallestInside(sizes.BoxMinWidth) &&
           frame.Upper - frame.Lower > SmallestInside(sizes.BoxMinHeight);
}

bool IsLargeEnough(const BoxRect& box, const BoxSizes& sizes) {
    const BoxSize size = SizeOf(box);
    return size.Width + kThickLines >= sizes.BoxMinWidth && size.Height + kThickLines >= sizes.BoxMinHeight;
}

// Part of the whole work, from one share of it to another.
GoOn Between(const GoOn& goOn, double from, double to) {
    return [&goOn, from, to](double share) { return goOn(from + share * (to - from)); };
}

void AddFrames(std::vector<Proposal>& proposals, const WorkGrid& page, const BoxSizes& sizes,
               const GoOn& goOn) {
    for (const Frame& frame : FindFrames(page, LimitsFor(sizes), goOn)) {
        const BoxRect box = BoxOf(frame, page);
        if (HasRoomInside(frame, sizes) || IsLargeEnough(box, sizes))
            proposals.push_back({{box, LookAtOutline(page, box)}, frame});
    }
}

void AddFramesOfSlanting(std::vector<Proposal>& proposals, const WorkGrid& page, const BoxSizes& sizes,
                         const GoOn& goOn) {
    const Slant slant = SlantOf(page);
    if (slant == 0)
        return;
    const Straightened straightened(page, slant);
    const std::size_t before = proposals.size();
    AddFrames(proposals, straightened.Page(), sizes, goOn);
    for (std::size_t index = before; index < proposals.size(); ++index)
        proposals[index].Ruled.Box = straightened.PutBack(proposals[index].Ruled.Box);
}

bool IsLarger(BoxSize size, const BoxSizes& sizes) {
    return size.Width > sizes.BoxMaxWidth || size.Height > sizes.BoxMaxHeight;
}

bool IsSmaller(BoxSize size, const BoxSizes& sizes) {
    return size.Width < sizes.BoxMinWidth || size.Height < sizes.BoxMinHeight;
}

// The most common size among the candidates, when it is not one that the settings allow.
std::optional<OtherSize> OtherSizeAmong(const std::vector<Candidate>& candidates, const BoxSizes& sizes) {
    SizeTable table;
    for (const Candidate& candidate : candidates)
        table.Add(SizeOf(candidate.Box));
    const auto [size, support] = table.MostCommon();
    if (support.Plain < kInNumber || !(IsLarger(size, sizes) || IsSmaller(size, sizes)))
        return std::nullopt;
    return OtherSize{support.Plain, size, IsLarger(size, sizes)};
}

bool IsAmong(const BoxRect& box, const std::vector<BoxRect>& there,
             const std::vector<Candidate>& candidates) {
    return std::any_of(there.begin(), there.end(),
                       [&](const BoxRect& other) { return Overlap(box, other); }) ||
           std::any_of(candidates.begin(), candidates.end(),
                       [&](const Candidate& other) { return Overlap(box, other.Box); });
}

}  // namespace

SecondLook LookAgain(const WorkGrid& page, const std::vector<BoxRect>& there, const BoxSizes& sizes,
                     const GoOn& goOn) {
    SecondLook look;
    bool isStopped = false;
    const GoOn ask = [&](double share) {
        isStopped = isStopped || !goOn(share);
        return !isStopped;
    };
    BoxAnalysis analysis(page.Clone(), sizes, ReachFor(sizes));
    const double steps = static_cast<double>(PipelineSteps().size()) + 1;
    double number = 0;
    for (const PipelineStep& step : PipelineSteps()) {
        if (ask(kRulesDone * number++ / steps))
            step.Run(analysis);
    }
    if (ask(kRulesDone * number / steps))
        IdentifyBoxes(analysis);
    std::vector<Proposal> proposals;
    if (!isStopped)
        AddFrames(proposals, analysis.SaveGrid, sizes, Between(ask, kRulesDone, kFramesDone));
    if (!isStopped)
        AddFramesOfSlanting(proposals, analysis.SaveGrid, sizes, Between(ask, kFramesDone, 1));
    look.Candidates = ChooseCandidates(proposals, there, sizes);
    for (const LeftOutBox& leftOut : analysis.LeftOut) {
        if (!IsAmong(leftOut.Box, there, look.Candidates))
            look.Unlikely.push_back(leftOut);
    }
    if (there.size() < kFewBoxes)
        look.Other = OtherSizeAmong(look.Candidates, sizes);
    look.WasStopped = isStopped;
    return look;
}

}  // namespace tavrene::boxes
