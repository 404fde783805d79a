#include "recognition/ProfileAdvice.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <map>
#include <utility>

#include "app/Numeric.h"
#include "profiles/OmrsOfBoxes.h"
#include "recognition/SampleBoxes.h"

namespace tavrene::recognition {
namespace {

using profiles::OmrBox;
using profiles::OpenProfile;
using Boxes = std::vector<OmrBox>;
using Advice = std::vector<app::Notice>;

void Add(Advice& advice, std::string topic, std::string text) {
    advice.push_back({.text = std::move(text), .topic = std::move(topic)});
}

// The sampled boxes carry the slope of the whole page. A shift is found to within a pixel, so boxes that are
// this many times as far apart as the sample are wrong by as much as the border that reading leaves out.
constexpr int kLargestGrowth = 4;

Boxes KeptBoxes(const OpenProfile& profile) {
    Boxes kept;
    std::copy_if(profile.BoxList.begin(), profile.BoxList.end(), std::back_inserter(kept),
                 [](const OmrBox& box) { return box.Checked; });
    return kept;
}

Boxes SampledBoxes(const Boxes& boxes) {
    Boxes sampled;
    for (const std::size_t index : SampleBoxes(boxes.size()))
        sampled.push_back(boxes[index]);
    return sampled;
}

std::int16_t Left(const OmrBox& box) {
    return box.L;
}

// The lower edge, whatever order the document has.
std::int16_t Lower(const OmrBox& box) {
    return std::max(box.T, box.B);
}

using Ordinate = std::int16_t (*)(const OmrBox&);

int SpreadOf(const Boxes& boxes, Ordinate ordinate) {
    const auto [low, high] = std::minmax_element(
        boxes.begin(), boxes.end(),
        [ordinate](const OmrBox& a, const OmrBox& b) { return ordinate(a) < ordinate(b); });
    return ordinate(*high) - ordinate(*low);
}

std::string NoSlope(const std::string& line, std::size_t sampled, std::size_t all) {
    std::string text = "Every form of this profile will fail: the boxes by which a page is aligned (";
    text.append(std::to_string(sampled)).append(" of ").append(std::to_string(all));
    return text.append(") all lie in one ")
        .append(line)
        .append(". Add a box in another ")
        .append(line)
        .append(", or switch on Precise Alignment.");
}

std::string SteepSlope(const std::string& line) {
    std::string text = "Forms may be misread: the boxes by which a page is aligned lie close together, ";
    return text.append("all near one ")
        .append(line)
        .append(". Add or delete boxes so that others are chosen.");
}

std::string OneLine(const std::string& line) {
    return std::string("All boxes lie in one ")
        .append(line)
        .append(", so this profile may match forms that are not its own. Add a box in another ")
        .append(line)
        .append(".");
}

// Boxes whose edges lie nearer to each other than that are in one line, as a scan has it.
int HalfABox(const Boxes& boxes) {
    const OmrBox& box = boxes.front();
    return std::min(std::abs(box.R - box.L), std::abs(box.B - box.T)) / 2;
}

void AdviseOnSpread(const Boxes& boxes, bool isPrecise, Advice& advice) {
    const Boxes sampled = SampledBoxes(boxes);
    const std::pair<Ordinate, std::string> axes[] = {{Left, "column"}, {Lower, "row"}};
    for (const auto& [ordinate, line] : axes) {
        const int spread = SpreadOf(sampled, ordinate);
        const bool hasNoSlope = spread == 0 && !isPrecise;
        if (hasNoSlope)
            Add(advice, "no slope in one " + line, NoSlope(line, sampled.size(), boxes.size()));
        else if (!isPrecise && spread * kLargestGrowth < SpreadOf(boxes, ordinate))
            Add(advice, "near one " + line, SteepSlope(line));
        if (!hasNoSlope && SpreadOf(boxes, ordinate) < HalfABox(boxes))
            Add(advice, "one " + line, OneLine(line));
    }
}

// With fewer boxes a stranger's outlines will do.
constexpr std::size_t kFewBoxes = 4;

void AdviseOnNames(const Boxes& boxes, Advice& advice) {
    std::map<std::string, int> uses;
    std::vector<std::string> defaults;
    for (const OmrBox& box : boxes) {
        ++uses[box.Name];
        if (profiles::IsUnnamed(box.Name))
            defaults.push_back(box.Name);
    }
    const auto equal = std::find_if(uses.begin(), uses.end(), [](const auto& use) { return use.second > 1; });
    if (equal != uses.end())
        Add(advice, "equal names",
            std::to_string(equal->second) + " boxes have the name \"" + equal->first +
                "\", so results cannot tell them apart. Give each a name of its own.");
    if (!defaults.empty())
        Add(advice, "default names",
            std::to_string(defaults.size()) + " of " + std::to_string(boxes.size()) +
                (defaults.size() == 1
                     ? " boxes still has the name that it was given when it was made, as "
                     : " boxes still have the names that they were given when they were made, as ") +
                defaults.front() + ". Results carry these names.");
}

// The area inside the outline, counted in 16 bits as reading does.
bool HasNoArea(const OmrBox& box) {
    const int width = box.R - box.L - 1;
    const int height = std::abs(box.B - box.T) - 1;
    return width <= 0 || height <= 0 || app::WrapToInt16(std::int64_t{width} * height) == 0;
}

void AdviseOnPlaces(const OpenProfile& profile, Advice& advice) {
    const auto report = [&](auto isBad, const std::string& trouble) {
        for (const OmrBox& box : profile.BoxList) {
            if (box.Checked && isBad(box)) {
                Add(advice, trouble, "Box " + box.Name + trouble);
                return;
            }
        }
    };
    report(HasNoArea,
           " has no area that can be read, so every form of this profile will fail. Change its size or "
           "delete it.");
    if (profile.ImageWidth == 0)
        return;
    report(
        [&](const OmrBox& box) {
            return box.L < 0 || box.T < 0 || box.R > profile.ImageWidth || box.B > profile.ImageHeight;
        },
        " lies outside the specimen image, so it cannot be found on a form. Move it or delete it.");
}

}  // namespace

std::vector<app::Notice> AdviseOn(const OpenProfile& profile, const ReadingOptions& reading) {
    Advice advice;
    if (!profile.IsOpen)
        return advice;
    const Boxes boxes = KeptBoxes(profile);
    if (static_cast<std::size_t>(std::max<int>(profile.Count, 0)) != boxes.size())
        Add(advice, "count",
            "The document does not agree with itself: it counts " + std::to_string(profile.Count) +
                " boxes but holds " + std::to_string(boxes.size()) +
                "; a run reads the smaller number. Create the profile anew.");
    if (boxes.empty()) {
        Add(advice, "no boxes",
            "This profile has no boxes, so a run will look at no profile behind it in the list, even when it "
            "is not active. Add boxes or delete it.");
        return advice;
    }
    AdviseOnSpread(boxes, reading.preciseAlignment, advice);
    AdviseOnPlaces(profile, advice);
    if (boxes.size() < kFewBoxes)
        Add(advice, "few boxes",
            "With so few boxes (" + std::to_string(boxes.size()) +
                ") this profile may match forms that are not its own.");
    AdviseOnNames(boxes, advice);
    return advice;
}

}  // namespace tavrene::recognition
