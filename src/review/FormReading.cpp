#include "review/FormReading.h"

#include <algorithm>
#include <cmath>

#include "recognition/Classification.h"
#include "recognition/MarkReading.h"
#include "review/BoxMatching.h"

namespace tavrene::review {
namespace {

using recognition::BoxShift;

// In doubt within a third of the threshold: there a stroke more or less, or another scanner, turns the mark.
FormBox Measured(const imaging::PageRect& rect, std::optional<double> ink, double threshold) {
    return {rect, ink, ink && std::abs(*ink - threshold) * 3 <= threshold};
}

recognition::ProfileMatch SearchProfile(const imaging::Page& page, const profiles::ProfileRecord& profile) {
    return recognition::ClassifyImage(page, {&profile, 1}).matches.front();
}

// Boxes of one column or row allow no spreading; those whose outline was found keep what was found.
bool TrySpread(const profiles::ProfileRecord& profile, std::vector<BoxShift>& shifts) {
    try {
        SpreadShifts(profile, shifts);
        return true;
    } catch (const recognition::ReadingError&) {
        return false;
    }
}

}  // namespace

void MeasureForm(OpenForm& form, const imaging::Page* page, std::int16_t fillThreshold) {
    form.Boxes.assign(form.Marks.size(), {});
    const std::vector<BoxShift> shifts = ShiftsOfBoxes(form.Profile, {}, form.Marks);
    const std::vector<std::optional<std::size_t>> marks = MarksOfBoxes(form.Profile, form.Marks);
    for (std::size_t k = 0; k < marks.size(); ++k) {
        form.Skipped += marks[k] ? 0 : 1;
        if (page == nullptr)
            continue;
        const recognition::BoxMeasure measure = MeasureBox(*page, form.Profile, k, shifts[k]);
        if (marks[k])
            form.Boxes[*marks[k]] = Measured(measure.rect, measure.fill, fillThreshold);
        else
            form.SkippedRects.push_back(measure.rect);
    }
}

void FindLostShifts(OpenForm& form, const imaging::Page& page) {
    const bool hasShift =
        std::any_of(form.Opened.begin(), form.Opened.end(),
                    [](const recognition::ResultMark& mark) { return mark.Shift.has_value(); });
    if (hasShift || form.Profile.Boxes.empty())
        return;
    profiles::ProfileRecord searched = form.Profile;
    searched.Active = true;
    recognition::ProfileMatch match = SearchProfile(page, searched);
    const bool isSpread = match.found > 0 && TrySpread(searched, match.shifts);
    const std::vector<std::optional<std::size_t>> marks = MarksOfBoxes(form.Profile, form.Opened);
    for (std::size_t k = 0; k < marks.size(); ++k)
        if (marks[k] && (isSpread || match.shifts[k] != BoxShift{}))
            form.Opened[*marks[k]].Shift = match.shifts[k];
    form.Marks = form.Opened;
}

OpenForm ReadForm(const OpenForm& form, const imaging::Page& page, const profiles::ProfileRecord& profile,
                  std::int16_t fillThreshold) {
    const std::vector<recognition::MarkReading> readings =
        ReadMarks(page, profile, ShiftsOfBoxes(profile, form.OpenedProfile, form.Opened), fillThreshold);
    OpenForm read;
    read.Name = form.Name;
    read.Document = form.Document;
    read.Result = form.Result.Clone();
    read.Result.Rewrite(profile.Name, readings);
    read.Fingerprint = form.Fingerprint;
    read.Opened = form.Opened;
    read.OpenedProfile = form.OpenedProfile;
    read.Before = form.Before;
    read.Profile = profile;
    read.SavedProfile = form.SavedProfile;
    read.Marks = read.Result.Marks();
    read.Changed = form.Changed;
    for (const recognition::MarkReading& reading : readings)
        read.Boxes.push_back(Measured(reading.rect, reading.fill, fillThreshold));
    return read;
}

int CountChecked(const OpenForm& form) {
    return static_cast<int>(std::count_if(form.Marks.begin(), form.Marks.end(),
                                          [](const recognition::ResultMark& mark) { return mark.Checked; }));
}

}  // namespace tavrene::review
