#include "reading/ReadingPage.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "painter/Typeface.h"

namespace tavrene::samples {
namespace {

constexpr std::array kTurns = {FormKind::Survey, FormKind::TwoColumns, FormKind::Table,
                               FormKind::Dense,  FormKind::Survey,     FormKind::Letters};
constexpr int kInset = 4;
constexpr double kLeastMark = 0.14;  // of the inside: fainter marks are a matter of the threshold
constexpr double kStained = 0.02;

// Ink inside a box as a share, with the border left out as reading does.
double InkInside(const Canvas& page, const MarkArea& area, int inset) {
    int ink = 0;
    int all = 0;
    for (int y = static_cast<int>(area.y) + inset; y < area.y + area.height - inset; ++y) {
        for (int x = static_cast<int>(area.x) + inset; x < area.x + area.width - inset; ++x) {
            ++all;
            if (page.At(x, y) < 128)
                ++ink;
        }
    }
    return all > 0 ? static_cast<double>(ink) / all : 0;
}

void DrawMark(Canvas& page, Random& dice, const MarkArea& area, const Pen& pen, bool overOutlines) {
    if (overOutlines) {
        const double more = dice.Between(0.1, 0.35);
        const MarkArea large{area.x - area.width * more, area.y - area.height * more,
                             area.width * (1 + 2 * more), area.height * (1 + 2 * more)};
        return dice.Chance(0.5) ? DrawScribble(page, dice, large, pen) : DrawCross(page, dice, large, pen);
    }
    switch (dice.Next() % 5) {
        case 0:
            return DrawTick(page, dice, area, pen);
        case 1:
            return DrawCross(page, dice, area, pen);
        case 2:
            return DrawDash(page, dice, area, pen);
        case 3:
            return DrawFilling(page, dice, area, pen);
        default:
            return DrawScribble(page, dice, area, pen);
    }
}

std::vector<std::optional<bool>> FillIn(BlankForm& form, Random& dice, bool overOutlines) {
    const double perMm = form.Page.Dpi() / 25.4;
    const Pen pen{std::max(2.0, dice.Between(0.4, 0.8) * perMm), kBlack, 0};
    std::vector<std::optional<bool>> marked;
    for (const MarkArea& area : form.Areas) {
        const bool mark = dice.Chance(0.3);
        marked.emplace_back(mark);
        const double before = InkInside(form.Page, area, kInset);
        if (mark)
            DrawMark(form.Page, dice, area, pen, overOutlines);
        if (mark && InkInside(form.Page, area, kInset) - before < kLeastMark)
            DrawFilling(form.Page, dice, area, pen);
    }
    return marked;
}

// A frame with a date in it, at a slant; boxes under its ink are not judged.
void Stamp(BlankForm& form, Random& dice, std::vector<std::optional<bool>>& marked) {
    static Typeface bold(Typeface::Style::SansBold);
    const double perMm = form.Page.Dpi() / 25.4;
    std::vector<double> before;
    for (const MarkArea& area : form.Areas)
        before.push_back(InkInside(form.Page, area, 1));
    const MarkArea& at = form.Areas[dice.Next() % form.Areas.size()];
    const double slant = dice.Between(-0.2, 0.2);
    const auto place = [&](double x, double y) {
        return Point{at.x + (x - y * slant) * perMm, at.y + (y + x * slant) * perMm};
    };
    const Point corners[] = {place(-12, -6), place(26, -6), place(26, 8), place(-12, 8)};
    for (std::size_t k = 0; k < 4; ++k)
        form.Page.DrawLine(corners[k], corners[(k + 1) % 4], 0.8 * perMm);
    bold.DrawText(form.Page, place(-10, 3), 16, "RECEIVED");
    for (std::size_t k = 0; k < form.Areas.size(); ++k) {
        if (InkInside(form.Page, form.Areas[k], 1) - before[k] > kStained)
            marked[k] = std::nullopt;
    }
}

// Profiles that are loaded beside the right one. Those of one column and of one box are loaded for strangers
// alone: the plain reading fails on any page that it takes for the one, and takes any page for the other.
std::span<const KnownForm> Bystanders(bool alsoSmall) {
    static const std::vector<KnownForm> known = {Know({FormKind::Survey, 900001}, 200, "Another survey"),
                                                 Know({FormKind::Few, 900002, 3}, 200, "Three boxes"),
                                                 Know({FormKind::Dense, 900004}, 200, "Dense"),
                                                 Know({FormKind::OneColumn, 900003}, 200, "One column"),
                                                 Know({FormKind::Few, 900005, 1}, 200, "One box")};
    return std::span(known).first(alsoSmall ? known.size() : 3);
}

double Signed(double value, Random& dice) {
    return dice.Chance(0.5) ? value : -value;
}

ScanWear ThrownWear(const ReadingClass& kind, Random& dice) {
    ScanWear wear = kind.Mixed ? MixedWear(dice) : kind.Wear;
    wear.TiltDegrees = Signed(wear.TiltDegrees, dice);
    wear.ShiftX = Signed(wear.ShiftX, dice);
    wear.ShiftY = Signed(wear.ShiftY, dice);
    wear.StretchX = Signed(wear.StretchX, dice);
    wear.StretchY = kind.Name.starts_with("stretch both") ? wear.StretchX : Signed(wear.StretchY, dice);
    return wear;
}

void Load(ReadingPage& page, const KnownForm& known) {
    page.Profiles.push_back(known.Profile);
    page.Prints.push_back(known.Print);
}

}  // namespace

KnownForm Know(const FormDesign& design, int dpi, const char* name) {
    const BlankForm blank = PaintBlank(design, dpi);
    KnownForm known;
    known.Profile = blank.Profile;
    known.Profile.Name = name;
    known.Print = recognition::TakePrint(CleanScan(blank.Page), known.Profile);
    return known;
}

ReadingPage PaintReadingPage(const ReadingClass& kind, std::uint64_t seed) {
    Random dice(seed * 1000003 + 71);
    ReadingPage page;
    ScanWear wear = ThrownWear(kind, dice);
    const std::size_t rightPlace = dice.Next() % 2;
    const FormDesign design{kind.Kind.value_or(kTurns[seed / 2 % kTurns.size()]), seed, kind.Boxes};
    FormDesign sister = design;
    sister.Trait = kind.Sister;
    const bool asSister = kind.Sister != SisterTrait::None && dice.Chance(0.5);
    for (const KnownForm& known : Bystanders(kind.Stranger.has_value()))
        Load(page, known);
    if (kind.Stranger) {
        wear = MixedWear(dice);
        page.Scan = Scan(PaintStranger(*kind.Stranger, seed, kind.ScanDpi), wear, dice);
        return page;
    }
    const auto addRight = [&] {
        page.Form = static_cast<int>(page.Profiles.size());
        Load(page, Know(asSister ? sister : design, kind.ProfileDpi, "Right"));
    };
    const auto addSister = [&] {
        if (kind.Sister != SisterTrait::None)
            Load(page, Know(asSister ? design : sister, kind.ProfileDpi, "Sister"));
    };
    if (rightPlace == 0)
        addRight();
    addSister();
    if (rightPlace != 0)
        addRight();
    BlankForm form = PaintBlank(asSister ? sister : design, kind.ScanDpi);
    page.Marked = FillIn(form, dice, kind.OverOutlines);
    if (kind.Stamps)
        Stamp(form, dice, page.Marked);
    page.Scan = Scan(form.Page, wear, dice);
    if (kind.ToldDpi >= 0)
        page.Scan.DPI_X = page.Scan.DPI_Y = static_cast<std::int16_t>(kind.ToldDpi);
    return page;
}

}  // namespace tavrene::samples
