#include "doubts/DoubtPages.h"

#include <array>

#include "reading/ScanWear.h"

namespace tavrene::samples {
namespace {

constexpr int kDpi = 200;
constexpr std::array kForms = {FormKind::Survey, FormKind::TwoColumns, FormKind::Table, FormKind::Dense};
constexpr double kMarked = 0.3;  // share of the boxes
constexpr double kOdd = 0.08;    // share of the boxes with something besides a plain mark or nothing

Pen PenOf(Hand hand, Random& dice) {
    const double perMm = kDpi / 25.4;
    if (hand == Hand::Faint)
        return {dice.Between(0.25, 0.4) * perMm, 100, dice.Between(0.2, 0.5)};
    return {dice.Between(0.35, 0.7) * perMm, kBlack, 0};
}

using Stroke = void (*)(Canvas&, Random&, const MarkArea&, const Pen&);

// People have one way to mark, and now and then another.
constexpr std::array<Stroke, 4> kStrokes = {DrawTick, DrawCross, DrawDash, DrawScribble};
constexpr double kAnotherWay = 0.1;

class Writer {
  public:
    Writer(Random& dice, Hand hand)
        : dice_(dice), usual_(hand == Hand::Dots ? DrawDot : kStrokes[dice.Next() % kStrokes.size()]) {}

    void Mark(Canvas& page, const MarkArea& area, const Pen& pen) {
        const bool isUsual = usual_ == DrawDot || !dice_.Chance(kAnotherWay);
        (isUsual ? usual_ : kStrokes[dice_.Next() % kStrokes.size()])(page, dice_, area, pen);
    }

  private:
    Random& dice_;
    Stroke usual_;
};

MarkArea Missed(MarkArea area, Random& dice, double carelessness) {
    area.x += dice.Wobble(carelessness) * area.width;
    area.y += dice.Wobble(carelessness) * area.height;
    return area;
}

// Whether a person takes the box for marked.
bool DrawOdd(Canvas& page, Random& dice, Writer& writer, const MarkArea& area, const Pen& pen, Hand hand) {
    switch (hand) {
        case Hand::Touches:
            page.FillDisc(
                {area.x + area.width * dice.Between(0.2, 0.8), area.y + area.height * dice.Between(0.2, 0.8)},
                pen.width * dice.Between(0.5, 1.0));
            return false;
        case Hand::Corrections:
            writer.Mark(page, area, pen);
            for (int times = 0; times < 2; ++times)
                DrawFilling(page, dice, area, pen);
            return false;
        default:
            DrawRing(page, dice, area, pen);
            return true;
    }
}

Hand Thrown(Hand hand, Random& dice) {
    return hand == Hand::Everything ? static_cast<Hand>(dice.Next() % static_cast<int>(Hand::Everything))
                                    : hand;
}

bool HasOddMarks(Hand hand) {
    return hand == Hand::Touches || hand == Hand::Corrections || hand == Hand::Rings;
}

std::vector<bool> FillIn(BlankForm& form, Random& dice, Hand usual) {
    const Hand hand = Thrown(usual, dice);
    const Pen pen = PenOf(hand, dice);
    Writer writer(dice, hand);
    std::vector<bool> marked;
    for (const MarkArea& area : form.Areas) {
        if (HasOddMarks(hand) && dice.Chance(kOdd)) {
            marked.push_back(DrawOdd(form.Page, dice, writer, area, pen, hand));
            continue;
        }
        marked.push_back(dice.Chance(kMarked));
        if (!marked.back())
            continue;
        writer.Mark(form.Page, Missed(area, dice, hand == Hand::Sloppy ? 0.5 : 0.1), pen);
    }
    return marked;
}

ScanWear Wear(Random& dice) {
    ScanWear wear;
    wear.TiltDegrees = dice.Wobble(0.3);
    wear.ShiftX = dice.Wobble(1.5);
    wear.ShiftY = dice.Wobble(1.5);
    wear.StretchY = dice.Wobble(0.002);
    wear.Noise = dice.Between(0, 0.001);
    return wear;
}

}  // namespace

std::span<const DoubtClass> DoubtClasses() {
    static const std::vector<DoubtClass> classes = {
        {"clear marks", Hand::Clear},       {"dots", Hand::Dots},
        {"faint pencil", Hand::Faint},      {"sloppy marks", Hand::Sloppy},
        {"pen touches", Hand::Touches},     {"blacked-out corrections", Hand::Corrections},
        {"rings round boxes", Hand::Rings}, {"everything, a form each", Hand::Everything}};
    return classes;
}

DoubtPage PaintDoubtPage(const DoubtClass& kind, std::uint64_t seed) {
    Random dice(seed * 1000003 + 77);
    const FormDesign design{kForms[dice.Next() % kForms.size()], seed};
    DoubtPage page;
    page.Form = Know(design, kDpi, "Form");
    BlankForm form = PaintBlank(design, kDpi);
    page.Marked = FillIn(form, dice, kind.Marks);
    page.Scan = Scan(form.Page, Wear(dice), dice);
    return page;
}

}  // namespace tavrene::samples
