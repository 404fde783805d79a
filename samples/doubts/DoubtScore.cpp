#include "doubts/DoubtScore.h"

#include <sstream>

#include "recognition/Classification.h"
#include "review/doubts/FormEvidence.h"

namespace tavrene::samples {
namespace {

constexpr std::int16_t kThreshold = 8;

struct Judged {
    std::vector<review::BoxEvidence> evidence;
    review::BoxDoubts doubts;
};

// Nothing when the form is not recognised.
std::optional<Judged> Judge(const DoubtPage& page, bool secondOpinion) {
    const profiles::ProfileRecord& profile = page.Form.Profile;
    recognition::Classification found = recognition::ClassifyImage(page.Scan, {&profile, 1});
    if (found.winner < 0)
        return std::nullopt;
    std::vector<recognition::MarkReading> marks;
    try {
        recognition::SpreadShifts(profile, found.matches[0].shifts);
        marks = recognition::ReadMarks(page.Scan, profile, found.matches[0].shifts, kThreshold);
    } catch (const recognition::ReadingError&) {
        return std::nullopt;  // the form fails: no result
    }
    std::vector<recognition::BoxMeasure> measures;
    std::vector<std::optional<bool>> checked;
    for (const recognition::MarkReading& mark : marks) {
        measures.push_back({mark.rect, mark.fill});
        checked.emplace_back(mark.Checked);
    }
    recognition::SecondOpinion opinion;
    if (secondOpinion)
        opinion = recognition::CompareReadings(
            0, marks,
            recognition::ReadPrecisely(
                page.Scan, {&profile, 1}, [&page](std::size_t) { return &page.Form.Print; }, kThreshold));
    Judged judged;
    judged.evidence =
        review::EvidenceOf({page.Scan, measures, std::move(checked)}, opinion, &page.Form.Print);
    judged.doubts = review::DoubtsOf(judged.evidence, kThreshold);
    return judged;
}

std::string LineOf(const review::BoxEvidence& box, bool marked, std::optional<review::DoubtReason> doubt) {
    std::ostringstream line;
    line << marked << '\t' << box.isChecked << '\t' << box.fill.value_or(-1) << '\t' << box.isReadOtherwise
         << '\t' << box.isOtherForm << '\t' << box.inkBeside << '\t' << box.least.value_or(-1) << '\t'
         << box.full << '\t' << (doubt ? review::TextOf(*doubt) : std::string_view("-"));
    return line.str();
}

}  // namespace

DoubtTally ScoreDoubts(const DoubtClass& kind, const ScoreWish& wish,
                       const std::function<void(const std::string&)>& tell) {
    DoubtTally tally;
    for (std::size_t k = 0; k < wish.Pages; ++k) {
        const std::uint64_t seed = wish.First + k * wish.Step;
        const DoubtPage page = PaintDoubtPage(kind, seed);
        const std::optional<Judged> judged = Judge(page, wish.SecondOpinion);
        if (!judged)
            continue;
        ++tally.Forms;
        for (std::size_t box = 0; box < page.Marked.size(); ++box) {
            const bool isMisread = judged->evidence[box].isChecked != page.Marked[box];
            const auto doubt = judged->doubts[box];
            ++tally.Boxes;
            tally.Misread += isMisread ? 1U : 0U;
            tally.InDoubt += doubt ? 1U : 0U;
            tally.MisreadInDoubt += isMisread && doubt ? 1U : 0U;
            if (doubt)
                ++tally.Reasons[*doubt];
            if (tell)
                tell(kind.Name + '\t' + std::to_string(seed) + '\t' + std::to_string(box + 1) + '\t' +
                     LineOf(judged->evidence[box], page.Marked[box], doubt));
        }
    }
    return tally;
}

}  // namespace tavrene::samples
