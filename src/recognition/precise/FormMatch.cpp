#include "recognition/precise/FormMatch.h"

#include <algorithm>
#include <cmath>

#include "recognition/precise/MapSearch.h"
#include "recognition/precise/PreciseMark.h"
#include "recognition/precise/PrintCheck.h"

namespace tavrene::recognition::precise {
namespace {

using profiles::PrintedBox;
using profiles::ProfileRecord;

// How far paper and scanners move a form.
constexpr double kShiftMm = 14;
constexpr double kTurn = 3.2 * 3.14159265358979 / 180;
constexpr double kStretch = 0.038;

constexpr double kLeastPrint = 0.75;
constexpr double kSurePrint = 0.9;    // below it, the print itself may turn the map into place
constexpr double kClearPrint = 0.95;  // nothing that fits fewer boxes can beat it
constexpr double kSamePrint = 0.05;
constexpr double kPrintMm = 0.5;
constexpr double kMostChance = 0.01;
constexpr std::size_t kFreedom = 3;  // boxes that a map meets by being fitted to them

int PrintReach(const CellPage& cells, double pixelsPerMm) {
    return std::clamp(static_cast<int>(std::lround(kPrintMm * pixelsPerMm / cells.Factor())), 1, 6);
}

// Forms are read side by side, and std::lgamma writes to a variable that all of them share.
double LogFactorial(double n) {
    int sign = 0;
    return ::lgamma_r(n + 1, &sign);
}

// How many maps as good as this one are to be expected of boxes strewn at random.
double ExpectedByChance(const Alignment& alignment, std::span<const SoughtBox> boxes) {
    double coverage = 0;
    for (const SoughtBox& box : boxes)
        coverage += box.candidates->Coverage();
    coverage = std::clamp(coverage / static_cast<double>(boxes.size()), 1e-6, 0.999);
    if (alignment.found <= kFreedom)
        return static_cast<double>(alignment.tried);
    const auto n = static_cast<double>(boxes.size() - kFreedom);
    double tail = 0;
    for (auto k = static_cast<double>(alignment.found - kFreedom); k <= n; ++k)
        tail += std::exp(LogFactorial(n) - LogFactorial(k) - LogFactorial(n - k) + k * std::log(coverage) +
                         (n - k) * std::log(1 - coverage));
    return tail * static_cast<double>(std::max<std::size_t>(alignment.tried, 1));
}

std::vector<CellPoint> OnPage(const FormMatch& match, const imaging::Page& page, const FormScale& scale,
                              std::span<const CellPoint> points) {
    std::vector<CellPoint> places;
    places.reserve(points.size());
    for (const CellPoint& point : points) {
        const CellPoint place = NominalPlace(page, scale, point.x, point.y, match.turned);
        places.push_back({match.page->ToCells(place.x), match.page->ToCells(place.y)});
    }
    return places;
}

// A form that is known by its boxes alone gives way to one whose print is nearly whole, not to a thin one.
bool IsAsPrinted(const FormMatch& match, double bestPrint) {
    return (match.print > 0 ? match.print : kSurePrint) > bestPrint - kSamePrint;
}

bool IsBetter(const FormMatch& a, const FormMatch& b, double bestPrint) {
    if (a.accepted != b.accepted)
        return a.accepted;
    const bool printA = IsAsPrinted(a, bestPrint);
    const bool printB = IsAsPrinted(b, bestPrint);
    if (a.accepted && printA != printB)
        return printA;
    if (a.alignment.bound != b.alignment.bound)
        return a.alignment.bound > b.alignment.bound;
    return a.print > b.print;
}

}  // namespace

CellPoint NominalPlace(const imaging::Page& page, const FormScale& scale, double x, double y, bool turned) {
    const double column = x * scale.sx;
    const double row = imaging::FlipVertically(static_cast<double>(page.grid.Rows()), y * scale.sy);
    if (!turned)
        return {column, row};
    return {page.grid.Width() - 1 - column, page.grid.Rows() - 1 - row};
}

CellPoint NominalPlace(const imaging::Page& page, const FormScale& scale, const PrintedBox& box,
                       bool turned) {
    return NominalPlace(page, scale, (box.L + box.R) / 2.0, (box.lower + box.upper) / 2.0, turned);
}

double DpiOf(const imaging::Page& page, const ProfileRecord& profile) {
    constexpr double usual = 200;
    return page.DPI_X > 0 ? page.DPI_X : profile.DPI_X > 0 ? profile.DPI_X : usual;
}

double PixelsPerMm(const imaging::Page& page, const ProfileRecord& profile) {
    constexpr double mmPerInch = 25.4;
    return DpiOf(page, profile) / mmPerInch;
}

void FormMatcher::Lay(std::size_t index, bool turned, std::vector<FormMatch>& matches) {
    const ProfileRecord& profile = profiles_[index];
    const FormScale scale = ScaleBetween(page_, profile);
    CellPage& cells = cells_.ForBoxesOf(TypicalBox(profile, scale));
    std::vector<SoughtBox> boxes;
    boxes.reserve(profile.Boxes.size());
    for (const PrintedBox& box : profile.Boxes) {
        const CellPoint place = NominalPlace(page_, scale, box, turned);
        boxes.push_back(
            {{cells.ToCells(place.x), cells.ToCells(place.y)},
             &cells.PlacesFor((box.R - box.L) * static_cast<double>(scale.sx) / cells.Factor(),
                              (box.lower - box.upper) * static_cast<double>(scale.sy) / cells.Factor())});
    }
    const double cellsPerMm = PixelsPerMm(page_, profile) / cells.Factor();
    const CellPoint middle{cells.Cells().Width() / 2.0, cells.Cells().Height() / 2.0};
    for (Alignment& alignment : SearchMaps(boxes, middle, {kShiftMm * cellsPerMm, kTurn, kStretch})) {
        FormMatch match;
        match.profile = static_cast<int>(index);
        match.turned = turned;
        match.alignment = std::move(alignment);
        match.boxes = boxes;
        match.page = &cells;
        matches.push_back(std::move(match));
    }
}

void FormMatcher::JudgeByPrint(FormMatch& match, const SpecimenPrint& print, double bestPrint) {
    const ProfileRecord& profile = profiles_[static_cast<std::size_t>(match.profile)];
    const std::vector<CellPoint> points = OnPage(match, page_, ScaleBetween(page_, profile), print.points);
    const double perMm = PixelsPerMm(page_, profile);
    const int reach = PrintReach(*match.page, perMm);
    match.print = PrintShare(*match.page, points, match.alignment, match.boxes, reach);
    if (match.print < kSurePrint && bestPrint < kSurePrint) {
        const double shiftReach = kShiftMm * perMm / match.page->Factor();
        const PageMap map = TurnedByPrint(*match.page, points, match.alignment, match.boxes, shiftReach);
        Alignment turned = Align(match.boxes, map);
        const double share = PrintShare(*match.page, points, turned, match.boxes, reach);
        if (share > match.print && turned.share > 0.5 && IsWithin(map, {shiftReach, kTurn, kStretch})) {
            match.print = share;
            match.alignment = std::move(turned);
        }
    }
    match.accepted = match.print > kLeastPrint;
}

void FormMatcher::Judge(FormMatch& match, double bestPrint) {
    const SpecimenPrint* const print = prints_(static_cast<std::size_t>(match.profile));
    if (print != nullptr && print->belongs) {
        JudgeByPrint(match, *print, bestPrint);
        return;
    }
    match.accepted = ExpectedByChance(match.alignment, match.boxes) < kMostChance;
}

FormMatch FormMatcher::MatchOneWay(bool turned) {
    std::vector<FormMatch> matches;
    for (std::size_t k = 0; k < profiles_.size(); ++k) {
        if (profiles_[k].Active && !profiles_[k].Boxes.empty())
            Lay(k, turned, matches);
    }
    std::stable_sort(matches.begin(), matches.end(), [](const FormMatch& a, const FormMatch& b) {
        return a.alignment.bound > b.alignment.bound;
    });
    double bestPrint = 0;
    double clearBound = 0;
    for (FormMatch& match : matches) {
        if (match.alignment.bound < clearBound)
            break;
        Judge(match, bestPrint);
        if (!match.accepted)
            continue;
        bestPrint = std::max(bestPrint, match.print);
        if (match.print > kClearPrint)
            clearBound = std::max(clearBound, match.alignment.bound);
    }
    const auto best = std::min_element(
        matches.begin(), matches.end(),
        [bestPrint](const FormMatch& a, const FormMatch& b) { return IsBetter(a, b, bestPrint); });
    return best == matches.end() ? FormMatch{} : std::move(*best);
}

FormMatch FormMatcher::Match() {
    FormMatch upright = MatchOneWay(false);
    if (upright.accepted)
        return upright;
    FormMatch turned = MatchOneWay(true);
    return turned.accepted ? std::move(turned) : std::move(upright);
}

}  // namespace tavrene::recognition::precise
