#include "reading/ReadingScore.h"

#include "recognition/Classification.h"

namespace tavrene::samples {
namespace {

using recognition::MarkReading;
using recognition::PreciseReading;

constexpr std::int16_t kThreshold = 8;

struct Answer {
    int form = -1;
    std::vector<MarkReading> marks;
};

Answer ReadPlainly(const ReadingPage& page) {
    recognition::Classification found = recognition::ClassifyImage(page.Scan, page.Profiles);
    if (found.winner < 0)
        return {};
    const auto index = static_cast<std::size_t>(found.winner);
    try {
        recognition::SpreadShifts(page.Profiles[index], found.matches[index].shifts);
        return {found.winner, recognition::ReadMarks(page.Scan, page.Profiles[index],
                                                     found.matches[index].shifts, kThreshold)};
    } catch (const recognition::ReadingError&) {
        return {};  // the form fails: no result
    }
}

Answer ReadWithPrecision(const ReadingPage& page) {
    const PreciseReading reading = recognition::ReadPrecisely(
        page.Scan, page.Profiles, [&page](std::size_t index) { return &page.Prints[index]; }, kThreshold);
    return {reading.winner, reading.marks};
}

bool IsWrong(const ReadingPage& page, const Answer& answer, std::size_t box) {
    return page.Marked[box] && answer.marks[box].Checked != *page.Marked[box];
}

void Count(const ReadingPage& page, const Answer& answer, ReadingTally& tally) {
    if (answer.form != page.Form) {
        tally.Mistaken += answer.form >= 0 ? 1U : 0U;
        return;
    }
    ++tally.Recognised;
    for (std::size_t k = 0; k < page.Marked.size(); ++k) {
        if (!page.Marked[k])
            continue;
        ++tally.Boxes;
        tally.Right += IsWrong(page, answer, k) ? 0U : 1U;
    }
}

// What the plain reading has wrong, and whether the precise one says otherwise.
void CountFlags(const ReadingPage& page, const Answer& plain, const Answer& precise, ReadingRow& row) {
    if (plain.form != page.Form) {
        ++row.PlainErrors;
        row.Flagged += precise.form != plain.form ? 1U : 0U;
        return;
    }
    for (std::size_t k = 0; k < page.Marked.size(); ++k) {
        if (!IsWrong(page, plain, k))
            continue;
        ++row.PlainErrors;
        const bool differs = precise.form != plain.form || precise.marks[k].Checked != plain.marks[k].Checked;
        row.Flagged += differs ? 1U : 0U;
    }
}

std::string Fault(const ReadingPage& page, const Answer& answer) {
    if (answer.form != page.Form)
        return "taken for " + (answer.form < 0 ? std::string("nothing")
                                               : page.Profiles[static_cast<std::size_t>(answer.form)].Name);
    std::string boxes;
    for (std::size_t k = 0; k < page.Marked.size() && page.Form >= 0; ++k) {
        if (IsWrong(page, answer, k))
            boxes.append(" " + answer.marks[k].Name + (answer.marks[k].Checked ? "+" : "-") +
                         std::to_string(answer.marks[k].fill).substr(0, 4));
    }
    return boxes;
}

}  // namespace

ReadingRow ScoreClass(const ReadingClass& kind, std::size_t pages, SeedRange seeds,
                      const std::function<void(const std::string&)>& tell) {
    ReadingRow row;
    row.Class = &kind;
    const auto number = static_cast<std::uint64_t>(&kind - ReadingClasses().data()) + 1;
    for (std::size_t k = 0; k < pages; ++k) {
        const std::uint64_t seed = number * 1000000 + 2 * (seeds.First + k) + (seeds.Even ? 0 : 1);
        const ReadingPage page = PaintReadingPage(kind, seed);
        const Answer plain = ReadPlainly(page);
        const Answer precise = ReadWithPrecision(page);
        ++row.Pages;
        for (const auto& marked : page.Marked)
            row.Boxes += marked ? 1U : 0U;
        Count(page, plain, row.Plain);
        Count(page, precise, row.Precise);
        CountFlags(page, plain, precise, row);
        const std::string fault = Fault(page, precise);
        if (tell && !fault.empty())
            tell(kind.Name + ", seed " + std::to_string(seed) + ": " + fault);
    }
    return row;
}

}  // namespace tavrene::samples
