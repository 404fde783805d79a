#include "review/doubts/FormEvidence.h"

#include <algorithm>
#include <cmath>

#include "recognition/InkBeside.h"

namespace tavrene::review {
namespace {

using recognition::GridRect;
using recognition::SideInk;

// A mark runs over its box by so much of the box.
constexpr double kOverrun = 0.6;

constexpr std::size_t kSides = std::tuple_size_v<SideInk>;

GridRect OnGrid(const imaging::WorkGrid& grid, const imaging::PageRect& rect) {
    const int row1 = imaging::FlipVertically(grid.Rows(), static_cast<int>(rect.top));
    const auto col0 = static_cast<int>(rect.left);
    return {row1 - static_cast<int>(rect.height), col0, row1, col0 + static_cast<int>(rect.width)};
}

GridRect WithOverrun(const GridRect& box) {
    const auto across = static_cast<int>(kOverrun * (box.col1 - box.col0));
    const auto up = static_cast<int>(kOverrun * (box.row1 - box.row0));
    return {box.row0 - up, box.col0 - across, box.row1 + up, box.col1 + across};
}

bool Overlap(const GridRect& a, const GridRect& b) {
    return a.row0 <= b.row1 && b.row0 <= a.row1 && a.col0 <= b.col1 && b.col0 <= a.col1;
}

// On a page that lies upside down left is right, and above is below.
SideInk Printed(SideInk beside, bool turned) {
    if (turned)
        std::rotate(beside.begin(), beside.begin() + 2, beside.end());
    return beside;
}

// Per box and side what is inked beyond the print. What most boxes have in common comes from the page lying
// a little beside the places, not from anybody's pen.
std::vector<SideInk> BeyondPrint(const MeasuredForm& form, std::span<const GridRect> places,
                                 const recognition::SpecimenPrint& print) {
    std::vector<SideInk> beyond;
    for (std::size_t k = 0; k < places.size(); ++k) {
        const SideInk printed = Printed(print.beside[k], form.turned);
        beyond.push_back(recognition::InkBeside(form.page.grid, places[k]));
        for (std::size_t side = 0; side < printed.size(); ++side)
            beyond.back()[side] -= printed[side];
    }
    for (std::size_t side = 0; side < kSides; ++side) {
        std::vector<double> all;
        all.reserve(beyond.size());
        for (const SideInk& ink : beyond)
            all.push_back(ink[side]);
        const auto middle = all.begin() + static_cast<std::ptrdiff_t>(all.size() / 2);
        std::nth_element(all.begin(), middle, all.end());
        for (SideInk& ink : beyond)
            ink[side] -= std::max(0.0, *middle);
    }
    return beyond;
}

// Ink where the mark of another box may have run to is not counted.
double StrayInk(const GridRect& box, const SideInk& beyond, std::span<const GridRect> marks) {
    const std::array<GridRect, kSides> strips = recognition::StripsBeside(box);
    double most = 0;
    for (std::size_t side = 0; side < kSides; ++side)
        if (beyond[side] > most &&
            std::ranges::none_of(marks, [&](const GridRect& mark) { return Overlap(mark, strips[side]); }))
            most = beyond[side];
    return most;
}

void AddStrayInk(std::vector<BoxEvidence>& boxes, const MeasuredForm& form,
                 const recognition::SpecimenPrint& print) {
    std::vector<GridRect> places;
    std::vector<GridRect> marks;
    for (std::size_t k = 0; k < boxes.size(); ++k) {
        places.push_back(OnGrid(form.page.grid, form.measures[k].rect));
        if (form.checked[k].value_or(false))
            marks.push_back(WithOverrun(places.back()));
    }
    const std::vector<SideInk> beyond = BeyondPrint(form, places, print);
    for (std::size_t k = 0; k < boxes.size(); ++k)
        if (form.checked[k] == false)
            boxes[k].inkBeside = StrayInk(places[k], beyond[k], marks);
}

// What counting leaves out of a box on every side, and how far aside it may lie.
constexpr int kBorder = 4;
constexpr int kAside = 2;

// A document may have boxes that are far larger than any page.
double AreaOf(const GridRect& place) {
    return (place.col1 - place.col0 - 1.0) * (place.row1 - place.row0 - 1.0);
}

GridRect Counted(const GridRect& place) {
    return {place.row0 + kBorder, place.col0 + kBorder, place.row1 - kBorder, place.col1 - kBorder};
}

// The printed line of a box that lies a little aside is counted with what is in it; a mark stays in it.
double LeastFill(const imaging::WorkGrid& grid, const GridRect& place, double fill) {
    const GridRect counted = Counted(place);
    for (int dx = -kAside; dx <= kAside; ++dx)
        for (int dy = -kAside; dy <= kAside; ++dy)
            fill = std::min(fill, 100.0 * recognition::CountInk(grid, recognition::Shifted(counted, dx, dy)) /
                                      AreaOf(place));
    return fill;
}

double BlackenedFill(const GridRect& place) {
    const GridRect counted = Counted(place);
    const double cells =
        std::max(0.0, counted.col1 - counted.col0 + 1.0) * std::max(0.0, counted.row1 - counted.row0 + 1.0);
    return 100 * cells / AreaOf(place);
}

}  // namespace

std::vector<BoxEvidence> EvidenceOf(const MeasuredForm& form, const recognition::SecondOpinion& opinion,
                                    const recognition::SpecimenPrint* print) {
    std::vector<BoxEvidence> boxes(form.measures.size());
    for (std::size_t k = 0; k < boxes.size(); ++k) {
        if (!form.checked[k])
            continue;
        boxes[k].isChecked = *form.checked[k];
        boxes[k].fill = form.measures[k].fill;
        if (form.precise || !boxes[k].fill)
            continue;
        const GridRect place = OnGrid(form.page.grid, form.measures[k].rect);
        boxes[k].least = LeastFill(form.page.grid, place, *boxes[k].fill);
        boxes[k].full = BlackenedFill(place);
    }
    // One doubt of the form is enough: it is the form that somebody has to look at.
    const auto first =
        std::ranges::find_if(boxes, [](const BoxEvidence& box) { return box.fill.has_value(); });
    if (first != boxes.end())
        first->isOtherForm = opinion.otherProfile;
    for (const std::size_t k : opinion.boxes)
        boxes[k].isReadOtherwise = true;
    if (print != nullptr && !boxes.empty())
        AddStrayInk(boxes, form, *print);
    return boxes;
}

}  // namespace tavrene::review
