#include "review/FormReading.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "recognition/Classification.h"
#include "recognition/MarkReading.h"
#include "recognition/precise/ShiftFit.h"
#include "review/BoxMatching.h"
#include "review/doubts/FormEvidence.h"
#include "review/doubts/GroupDoubts.h"

namespace tavrene::review {
namespace {

using recognition::BoxShift;

// Boxes of one column or row allow no spreading; those whose outline was found keep what was found.
bool TrySpread(const profiles::ProfileRecord& profile, std::vector<BoxShift>& shifts) {
    try {
        SpreadShifts(profile, shifts);
        return true;
    } catch (const recognition::ReadingError&) {
        return false;
    }
}

bool HasShift(std::span<const recognition::ResultMark> marks) {
    return std::any_of(marks.begin(), marks.end(),
                       [](const recognition::ResultMark& mark) { return mark.Shift.has_value(); });
}

// As a run would find them for that profile alone; none for a box where nothing was found.
std::vector<std::optional<BoxShift>> SearchShifts(const imaging::Page& page,
                                                  profiles::ProfileRecord profile) {
    profile.Active = true;
    recognition::ProfileMatch match = recognition::ClassifyImage(page, {&profile, 1}).matches.front();
    const bool isSpread = match.found > 0 && TrySpread(profile, match.shifts);
    std::vector<std::optional<BoxShift>> shifts;
    for (const BoxShift& shift : match.shifts)
        shifts.push_back(isSpread || shift != BoxShift{} ? std::optional(shift) : std::nullopt);
    return shifts;
}

// Where the document tells none and its own profile, against which they are searched, has gone, the profile
// that is to take its place is searched for.
std::vector<BoxShift> ShiftsToReadAt(const OpenForm& form, const imaging::Page& page,
                                     const profiles::ProfileRecord& profile) {
    std::vector<BoxShift> shifts = ShiftsOfBoxes(profile, form.OpenedProfile, form.Opened);
    if (HasShift(form.Opened) || !form.OpenedProfile.Boxes.empty() || profile.Boxes.empty())
        return shifts;
    const std::vector<std::optional<BoxShift>> found = SearchShifts(page, profile);
    for (std::size_t k = 0; k < shifts.size(); ++k)
        shifts[k] = found[k].value_or(BoxShift{});
    return shifts;
}

// The shift of each box of the profile as far as the document tells it.
std::vector<std::optional<BoxShift>> KnownShifts(const profiles::ProfileRecord& profile,
                                                 std::span<const recognition::ResultMark> marks) {
    std::vector<std::optional<BoxShift>> known;
    for (const std::optional<std::size_t>& mark : MarksOfBoxes(profile, marks))
        known.push_back(mark ? marks[*mark].Shift : std::nullopt);
    return known;
}

// The plain reading reads no page that lies upside down; who has one there has let precise alignment read
// it, and its places mean nothing to them.
bool IsReadPrecisely(const OpenForm& form, const recognition::PreciseReader* precise) {
    return precise != nullptr && (precise->Reads() || form.IsUpsideDown);
}

struct Measures {
    std::vector<recognition::BoxMeasure> boxes;
    bool precise = false;
};

Measures MeasureBoxes(const OpenForm& form, const imaging::Page& page,
                      std::span<const std::optional<BoxShift>> known, std::int16_t fillThreshold,
                      recognition::PreciseReader* precise) {
    Measures measures;
    if (IsReadPrecisely(form, precise)) {
        for (const recognition::MarkReading& reading :
             precise->ReadAt(page, form.Profile, known, fillThreshold))
            measures.boxes.push_back({reading.rect, reading.fill});
    }
    measures.precise = !measures.boxes.empty();
    if (measures.precise)
        return measures;
    const std::vector<BoxShift> shifts = ShiftsOfBoxes(form.Profile, {}, form.Marks);
    for (std::size_t k = 0; k < shifts.size(); ++k)
        measures.boxes.push_back(MeasureBox(page, form.Profile, k, shifts[k]));
    return measures;
}

// What the measured ink of the boxes says.
std::vector<recognition::MarkReading> ReadingsOf(std::span<const recognition::BoxMeasure> measures,
                                                 std::int16_t fillThreshold) {
    std::vector<recognition::MarkReading> readings;
    for (const recognition::BoxMeasure& measure : measures) {
        const double fill = measure.fill.value_or(0);
        readings.push_back({{}, {}, measure.rect, fill, fill >= fillThreshold});
    }
    return readings;
}

DoubtfulBox DoubtAt(std::size_t k, DoubtReason reason, bool isChecked, double ink) {
    return {static_cast<int>(k) + 1, reason, isChecked, static_cast<int>(std::lround(10 * ink))};
}

// Precise alignment reads with no other way to ask.
recognition::SecondOpinion OpinionOn(const profiles::ProfileRecord& profile, const imaging::Page& page,
                                     std::span<const recognition::BoxMeasure> measures,
                                     std::int16_t fillThreshold, recognition::PreciseReader* precise) {
    if (precise == nullptr || !precise->GivesSecondOpinion())
        return {};
    return precise->OpinionOn(page, profile, ReadingsOf(measures, fillThreshold), fillThreshold);
}

// In the order of the profile's boxes.
BoxDoubts DoubtsAbout(const MeasuredForm& measured, const recognition::SecondOpinion& opinion,
                      const GroupedProfile& profile, std::int16_t fillThreshold,
                      recognition::PreciseReader* precise) {
    const std::vector<BoxEvidence> evidence =
        EvidenceOf(measured, opinion, precise != nullptr ? precise->PrintOf(profile.record) : nullptr);
    BoxDoubts doubts = DoubtsOf(evidence, fillThreshold);
    AddGroupDoubts(doubts, evidence, profiles::NamesOf(profile.record), profile.groups);
    return doubts;
}

// The boxes of the profile: their marks in the document, and what the page says of them.
struct Placed {
    std::vector<std::optional<std::size_t>> marks;
    Measures measures;
};

Placed Place(OpenForm& form, const imaging::Page* page, std::int16_t fillThreshold,
             recognition::PreciseReader* precise) {
    form.Boxes.assign(form.Marks.size(), {});
    Placed placed{MarksOfBoxes(form.Profile, form.Marks), {}};
    form.Skipped +=
        static_cast<int>(std::ranges::count_if(placed.marks, [](const auto& mark) { return !mark; }));
    if (page == nullptr)
        return placed;
    const std::vector<std::optional<BoxShift>> known = KnownShifts(form.Profile, form.Marks);
    form.IsUpsideDown = LiesUpsideDown(*page, form.Profile, known);
    placed.measures = MeasureBoxes(form, *page, known, fillThreshold, precise);
    for (std::size_t k = 0; k < placed.marks.size(); ++k) {
        const recognition::BoxMeasure& measure = placed.measures.boxes[k];
        if (placed.marks[k])
            form.Boxes[*placed.marks[k]] = {
                measure.rect, measure.fill,
                measure.fill ? std::optional(*measure.fill >= fillThreshold) : std::nullopt, std::nullopt};
        else
            form.SkippedRects.push_back(measure.rect);
    }
    return placed;
}

BoxDoubts DoubtsAbout(const OpenForm& form, const imaging::Page& page, const Placed& placed,
                      std::int16_t fillThreshold, recognition::PreciseReader* precise) {
    const std::vector<recognition::BoxMeasure>& boxes = placed.measures.boxes;
    MeasuredForm measured{page, boxes, {}, form.IsUpsideDown, placed.measures.precise};
    for (const std::optional<std::size_t>& mark : placed.marks)
        measured.checked.push_back(mark ? std::optional(form.Marks[*mark].Checked) : std::nullopt);
    return DoubtsAbout(measured, OpinionOn(form.Profile, page, boxes, fillThreshold, precise),
                       {form.Profile, form.Groups}, fillThreshold, precise);
}

// The precise reading of a form against a profile; nothing where it is not wanted or does not see the form.
std::vector<recognition::MarkReading> ReadFormPrecisely(const OpenForm& form, const imaging::Page& page,
                                                        const profiles::ProfileRecord& profile,
                                                        std::int16_t fillThreshold,
                                                        recognition::PreciseReader* precise) {
    if (!IsReadPrecisely(form, precise))
        return {};
    if (profile.Name == form.OpenedProfile.Name) {
        const auto known = AgreeingShifts(page, profile, KnownShifts(profile, form.Opened));
        auto readings = precise->ReadAt(page, profile, known, fillThreshold);
        if (!readings.empty())
            return readings;
    }
    return precise->ReadAs(page, profile, fillThreshold).marks;
}

}  // namespace

void TakeDocument(OpenForm& form, const profiles::ProfileRecord& profile,
                  std::vector<profiles::BoxGroup> groups) {
    form.Opened = form.Result.Marks();
    form.Marks = form.Opened;
    form.SavedProfile = form.Result.Profile();
    form.Profile = profile;
    form.OpenedProfile = profile;
    form.Groups = std::move(groups);
}

void PlaceBoxes(OpenForm& form, const imaging::Page* page, std::int16_t fillThreshold,
                recognition::PreciseReader* precise) {
    Place(form, page, fillThreshold, precise);
}

void MeasureForm(OpenForm& form, const imaging::Page* page, std::int16_t fillThreshold,
                 recognition::PreciseReader* precise) {
    const Placed placed = Place(form, page, fillThreshold, precise);
    if (page == nullptr)
        return;
    const BoxDoubts doubts = DoubtsAbout(form, *page, placed, fillThreshold, precise);
    for (std::size_t k = 0; k < placed.marks.size(); ++k)
        if (placed.marks[k])
            form.Boxes[*placed.marks[k]].doubt = doubts[k];
}

void FindLostShifts(OpenForm& form, const imaging::Page& page, std::int16_t fillThreshold,
                    recognition::PreciseReader* precise) {
    if (HasShift(form.Opened) || form.Profile.Boxes.empty())
        return;
    std::vector<std::optional<BoxShift>> shifts;
    if (precise != nullptr && precise->Reads())
        for (const recognition::MarkReading& reading :
             precise->ReadAs(page, form.Profile, fillThreshold).marks)
            shifts.emplace_back(reading.Shift);
    if (shifts.empty())
        shifts = SearchShifts(page, form.Profile);
    const std::vector<std::optional<std::size_t>> marks = MarksOfBoxes(form.Profile, form.Opened);
    for (std::size_t k = 0; k < marks.size(); ++k)
        if (marks[k])
            form.Opened[*marks[k]].Shift = shifts[k];
    form.Marks = form.Opened;
}

OpenForm ReadForm(const OpenForm& form, const imaging::Page& page, const profiles::ProfileRecord& profile,
                  std::vector<profiles::BoxGroup> groups, std::int16_t fillThreshold,
                  recognition::PreciseReader* precise) {
    std::vector<recognition::MarkReading> readings =
        ReadFormPrecisely(form, page, profile, fillThreshold, precise);
    if (readings.empty())
        readings = ReadMarks(page, profile, ShiftsToReadAt(form, page, profile), fillThreshold);
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
    read.Groups = std::move(groups);
    read.SavedProfile = form.SavedProfile;
    read.Marks = read.Result.Marks();
    read.Changed = form.Changed;
    MeasureForm(read, &page, fillThreshold, precise);
    return read;
}

FormDoubts DoubtsOf(const recognition::FormReading& reading, const GroupedProfile& profile,
                    std::int16_t fillThreshold, recognition::PreciseReader* precise) {
    std::vector<recognition::BoxMeasure> measures;
    std::vector<std::optional<bool>> checked;
    for (const recognition::MarkReading& mark : reading.marks) {
        measures.push_back({mark.rect, mark.fill});
        checked.emplace_back(mark.Checked);
    }
    // A run asks about all profiles; where another one comes of that, it is asked as review asks.
    const bool isKnown = reading.opinion && !reading.opinion->otherProfile;
    const bool isPrecise = precise != nullptr && precise->Reads();
    const BoxDoubts found =
        DoubtsAbout({*reading.page, measures, std::move(checked), reading.turned, isPrecise},
                    isKnown ? *reading.opinion
                            : OpinionOn(profile.record, *reading.page, measures, fillThreshold, precise),
                    profile, fillThreshold, precise);
    FormDoubts doubts;
    for (std::size_t k = 0; k < found.size(); ++k)
        if (found[k])
            doubts.push_back(DoubtAt(k, *found[k], reading.marks[k].Checked, reading.marks[k].fill));
    return doubts;
}

FormDoubts DoubtsOf(const OpenForm& form) {
    FormDoubts doubts;
    for (std::size_t k = 0; k < form.Boxes.size(); ++k)
        if (const FormBox& box = form.Boxes[k]; box.doubt)
            doubts.push_back(DoubtAt(k, *box.doubt, form.Marks[k].Checked, box.ink.value_or(0)));
    return doubts;
}

std::vector<std::string> CorrectionsOf(const OpenForm& form) {
    const std::string start = "Form [" + form.Name + "] ";
    std::vector<std::string> lines;
    if (form.Profile.Name != form.SavedProfile)
        lines.push_back(start + "profile from [" + form.SavedProfile + "] to [" + form.Profile.Name + "]");
    const std::vector<recognition::ResultMark> before = form.Result.Marks();
    // A document that was put back when the form was not left may have other boxes.
    for (std::size_t k = 0; k < std::min(before.size(), form.Marks.size()); ++k)
        if (before[k].Checked != form.Marks[k].Checked)
            lines.push_back(start + "box [" + before[k].Name +
                            (before[k].Checked ? "] from 1 to 0" : "] from 0 to 1"));
    return lines;
}

int RowInGroup(const OpenForm& form, int row, int n) {
    const auto count = static_cast<int>(form.Marks.size());
    const auto nameOf = [&form](int of) -> const std::string& {
        return form.Marks[static_cast<std::size_t>(of) - 1].Name;
    };
    const auto holds = [](const profiles::BoxGroup& group, const std::string& name) {
        return std::ranges::find(group.Boxes, name) != group.Boxes.end();
    };
    const auto group = std::ranges::find_if(form.Groups, [&](const profiles::BoxGroup& each) {
        return row >= 1 && row <= count && holds(each, nameOf(row));
    });
    int left = n;
    for (int next = 1; next <= count; ++next)
        if (group == form.Groups.end() || holds(*group, nameOf(next)))
            if (--left == 0)
                return next;
    return 0;
}

int CountChecked(const OpenForm& form) {
    return static_cast<int>(std::count_if(form.Marks.begin(), form.Marks.end(),
                                          [](const recognition::ResultMark& mark) { return mark.Checked; }));
}

}  // namespace tavrene::review
