#include "boxes/BoxPages.h"

#include <algorithm>
#include <array>
#include <map>

#include "boxes/PageWear.h"

namespace tavrene::samples {
namespace {

constexpr std::array kResolutions = {100, 150, 200, 300};
constexpr int kThickest = 4;

// One class of the table: what is done to the page, and by how much.
struct WearClass {
    const char* Name;
    Wear Kind;
    double Amount;
    int Breaks;
    int BreakLength;
};

constexpr std::array kWear = {WearClass{"clean", Wear::None, 0, 0, 0},
                              WearClass{"specks 0.1 %", Wear::Specks, 0.001, 0, 0},
                              WearClass{"specks 0.25 %", Wear::Specks, 0.0025, 0, 0},
                              WearClass{"specks 0.5 %", Wear::Specks, 0.005, 0, 0},
                              WearClass{"specks 1 %", Wear::Specks, 0.01, 0, 0},
                              WearClass{"eroded", Wear::Eroded, 0, 0, 0},
                              WearClass{"dilated", Wear::Dilated, 0, 0, 0},
                              WearClass{"one break of 1", Wear::Broken, 0, 1, 1},
                              WearClass{"one break of 2", Wear::Broken, 0, 1, 2},
                              WearClass{"one break of 3", Wear::Broken, 0, 1, 3},
                              WearClass{"one break of 4", Wear::Broken, 0, 1, 4},
                              WearClass{"one break of 5", Wear::Broken, 0, 1, 5},
                              WearClass{"two breaks of 3", Wear::Broken, 0, 2, 3},
                              WearClass{"tilt 0.25", Wear::Tilted, 0.25, 0, 0},
                              WearClass{"tilt 0.5", Wear::Tilted, 0.5, 0, 0},
                              WearClass{"tilt 1", Wear::Tilted, 1, 0, 0}};

// Boxes of three to four millimetres, as far as the settings reach.
SizeRange RangeFor(int dpi) {
    switch (dpi) {
        case 100:
            return {16, 20};
        case 150:
            return {19, 25};
        case 200:
            return {24, 31};
        default:
            return {30, 33};
    }
}

// Outlines of one pixel vanish when they are eroded.
bool Survives(const WearClass& wear, int thickness) {
    return wear.Kind != Wear::Eroded || thickness >= 3;
}

// A class whose boxes are printed in a way of their own.
struct PrintClass {
    const char* Name;
    int Thinnest;
    int Thickest;
    OutlineStyle Style;
};

constexpr std::array kPrints = {PrintClass{"letters inside", 1, 3, {.Print = BoxPrint::Letters}},
                                PrintClass{"digits inside", 1, 3, {.Print = BoxPrint::Digits}},
                                PrintClass{"shadow of 2", 1, 2, {.Shadow = 2}},
                                PrintClass{"shadow of 4", 1, 2, {.Shadow = 4}},
                                PrintClass{"one thick edge", 1, 2, {.ThickEdge = 3}},
                                PrintClass{"one tapering edge", 1, 2, {.Taper = 4}},
                                PrintClass{"rounded by 2", 1, 3, {.Radius = 2}},
                                PrintClass{"rounded by 4", 1, 3, {.Radius = 4}},
                                PrintClass{"corner gaps of 2", 1, 3, {.CornerGap = 2}},
                                PrintClass{"corner gaps of 3", 1, 3, {.CornerGap = 3}},
                                PrintClass{"thick", 5, 6, {}}};

// Boxes of ordinary forms that were scanned at more dots an inch than the settings were made for.
struct ScanClass {
    const char* Name;
    int Dpi;
    SizeRange Outer;
    int Thinnest;
    int Thickest;
    double Tilt;
};

constexpr std::array kScans = {ScanClass{"300 dpi form", 300, {45, 60}, 2, 4, 0},
                               ScanClass{"600 dpi form", 600, {90, 118}, 4, 7, 0},
                               ScanClass{"300 dpi form, tilt 0.5", 300, {45, 60}, 2, 3, 0.5},
                               ScanClass{"300 dpi form, tilt 2", 300, {45, 60}, 2, 3, 2}};

class Planner {
  public:
    void AddClass(const WearClass& wear, int thickness, const BoxLayout& layout, const std::string& name) {
        for (const int dpi : kResolutions) {
            BoxPagePlan plan;
            plan.Class = name;
            plan.Layout = &layout;
            plan.Dpi = dpi;
            plan.Outer = RangeFor(dpi);
            plan.Style = {thickness, wear.Breaks, wear.BreakLength};
            plan.Kind = wear.Kind;
            plan.Amount = wear.Amount;
            plan.Seed = ++seed_;
            plans_.push_back(plan);
        }
    }

    void AddPrint(const PrintClass& print, int thickness, const BoxLayout& layout, int dpi) {
        BoxPagePlan plan;
        plan.Class = print.Name;
        plan.Layout = &layout;
        plan.Dpi = dpi;
        plan.Outer = RangeFor(dpi);
        plan.Style = print.Style;
        plan.Style.Thickness = thickness;
        plan.Seed = ++seed_;
        plans_.push_back(plan);
    }

    void AddScan(const ScanClass& scan, int thickness, const BoxLayout& layout) {
        BoxPagePlan plan;
        plan.Class = scan.Name;
        plan.Layout = &layout;
        plan.Dpi = scan.Dpi;
        plan.Outer = scan.Outer;
        plan.LargestSettings = true;
        plan.Style.Thickness = thickness;
        plan.Kind = scan.Tilt > 0 ? Wear::Tilted : Wear::None;
        plan.Amount = scan.Tilt;
        plan.Seed = ++seed_;
        plans_.push_back(plan);
    }

    std::vector<BoxPagePlan> Take() { return std::move(plans_); }

  private:
    std::vector<BoxPagePlan> plans_;
    std::uint64_t seed_ = 1000;
};

std::vector<BoxPagePlan> EveryNth(const std::vector<BoxPagePlan>& plans, int step) {
    std::map<std::pair<std::string, int>, int> seen;
    std::vector<BoxPagePlan> kept;
    for (const BoxPagePlan& plan : plans) {
        if (seen[{plan.Class, plan.Style.Thickness}]++ % step == 0)
            kept.push_back(plan);
    }
    return kept;
}

OuterSize PickSize(Random& dice, const SizeRange& range) {
    const auto height = static_cast<int>(dice.Between(range.Smallest, range.Largest + 1));
    const int widening = dice.Chance(0.5) ? 0 : static_cast<int>(dice.Between(0, height * 0.25));
    return {height + widening, height};
}

// A quarter smaller, or larger where smaller boxes would be below what the settings reach.
OuterSize SecondSize(const OuterSize& size) {
    constexpr int smallest = 16;
    const int quarters = size.Height * 3 / 4 >= smallest ? 3 : 5;
    return {size.Width * quarters / 4, size.Height * quarters / 4};
}

void WearPage(BoxPage& page, const BoxPagePlan& plan, Random& dice) {
    switch (plan.Kind) {
        case Wear::Specks:
            return AddSpecks(page.Grid, dice, plan.Amount);
        case Wear::Eroded:
            return Erode(page.Grid);
        case Wear::Dilated:
            return Dilate(page.Grid);
        case Wear::Tilted:
            return Tilt(page.Grid, page.GroundTruth, dice.Chance(0.5) ? plan.Amount : -plan.Amount);
        case Wear::None:
        case Wear::Broken:
            return;
    }
}

void PlanUsual(Planner& planner) {
    for (const WearClass& wear : kWear) {
        for (int thickness = 1; thickness <= kThickest; ++thickness) {
            if (!Survives(wear, thickness))
                continue;
            for (const BoxLayout& layout : UsualLayouts())
                planner.AddClass(wear, thickness, layout, wear.Name);
        }
    }
    for (const BoxLayout* layout : {&SharedSides(), &SidesOnRulings(), &OnTheDiagonal()}) {
        for (int thickness = 1; thickness <= kThickest; ++thickness)
            planner.AddClass(kWear.front(), thickness, *layout, layout->Name);
    }
}

// Classes are added behind those that were there before, whose pages then stay what they were.
void PlanPrints(Planner& planner) {
    const std::span<const BoxLayout> usual = UsualLayouts();
    for (const PrintClass& print : kPrints) {
        for (int thickness = print.Thinnest; thickness <= print.Thickest; ++thickness) {
            for (const std::size_t layout : {0U, 1U, 3U, 4U}) {
                for (const int dpi : kResolutions)
                    planner.AddPrint(print, thickness, usual[layout], dpi);
            }
        }
    }
    for (const ScanClass& scan : kScans) {
        for (int thickness = scan.Thinnest; thickness <= scan.Thickest; ++thickness) {
            for (const std::size_t layout : {0U, 1U, 3U, 4U})
                planner.AddScan(scan, thickness, usual[layout]);
        }
    }
}

void PlanLayouts(Planner& planner) {
    constexpr WearClass tilted{"tilt 2", Wear::Tilted, 2, 0, 0};
    for (int thickness = 1; thickness <= kThickest; ++thickness) {
        for (const BoxLayout& layout : UsualLayouts())
            planner.AddClass(tilted, thickness, layout, tilted.Name);
    }
    for (const BoxLayout* layout : {&JoinedGrids(), &SmallSecondSize()}) {
        for (int thickness = 1; thickness <= kThickest; ++thickness)
            planner.AddClass(kWear.front(), thickness, *layout, layout->Name);
    }
    for (const BoxLayout& layout : BoxlessLayouts()) {
        for (int thickness = 1; thickness <= 3; ++thickness)
            planner.AddClass(kWear.front(), thickness, layout, layout.Name);
    }
}

}  // namespace

std::string BoxPagePlan::Name() const {
    return Class + ", " + Layout->Name + ", " + std::to_string(Style.Thickness) + " px, " +
           std::to_string(Dpi) + " dpi";
}

std::vector<BoxPagePlan> PlanPages(int sample) {
    Planner planner;
    PlanUsual(planner);
    PlanPrints(planner);
    PlanLayouts(planner);
    return EveryNth(planner.Take(), std::max(sample, 1));
}

boxes::BoxSizes SizesFor(const OuterSize& size, const OuterSize& second) {
    const auto lower = [](int a, int b) {
        return static_cast<std::int16_t>(std::max(std::min(a, b) * 7 / 10, 10));
    };
    const auto upper = [](int a, int b, int most) {
        return static_cast<std::int16_t>(std::min(std::max(a, b) * 12 / 10, most));
    };
    return {lower(size.Width, second.Width), upper(size.Width, second.Width, 50),
            lower(size.Height, second.Height), upper(size.Height, second.Height, 40)};
}

BoxPage PaintPage(const BoxPagePlan& plan) {
    Random dice(plan.Seed * 77);
    const OuterSize size = PickSize(dice, plan.Outer);
    const OuterSize second = SecondSize(size);
    // A sheet of A5.
    BoxSheet sheet(static_cast<int>(148 * plan.Dpi / 25.4), static_cast<int>(210 * plan.Dpi / 25.4), plan.Dpi,
                   plan.Style, plan.Seed);
    plan.Layout->Paint(sheet, size, second);
    const boxes::BoxSizes sizes = plan.LargestSettings
                                      ? boxes::BoxSizes{20, 50, 20, 40}
                                      : SizesFor(size, plan.Layout->TwoSizes ? second : size);
    BoxPage page{ToGrid(sheet.Page()), sheet.GroundTruth(), sizes};
    WearPage(page, plan, dice);
    return page;
}

}  // namespace tavrene::samples
