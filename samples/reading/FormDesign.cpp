#include "reading/FormDesign.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "app/Numeric.h"
#include "painter/Typeface.h"

namespace tavrene::samples {
namespace {

constexpr double kWidth = 210;  // A4, millimetres
constexpr double kHeight = 297;
constexpr double kLarger = 1.045;

constexpr std::array kWords = {"please", "mark",    "every",   "line",   "that",   "holds",   "for",
                               "you",    "number",  "of",      "days",   "in",     "service", "House",
                               "Board",  "Office",  "Nothing", "under",  "Total",  "health",  "date",
                               "within", "January", "OBED",    "street", "people", "Please",  "between",
                               "and",    "15",      "2040",    "HELD"};

Typeface& Face(bool bold) {
    static Typeface plain(Typeface::Style::Sans);
    static Typeface strong(Typeface::Style::SansBold);
    return bold ? strong : plain;
}

// A sheet on which all is told in millimetres.
class Sheet {
  public:
    Sheet(int dpi, std::uint64_t seed, double scale)
        : canvas_(Pixels(kWidth, dpi), Pixels(kHeight, dpi), dpi), dice_(seed), scale_(scale) {
        size_ = dice_.Between(3.2, 4.8);
        line_ = dice_.Between(0.22, 0.45);
    }

    Random& Dice() { return dice_; }
    Canvas TakeCanvas() { return std::move(canvas_); }
    const std::vector<MarkArea>& Areas() const { return areas_; }
    int LineWidth() const { return std::max(1, Pixels(line_, canvas_.Dpi())); }
    double Size() const { return size_; }

    // A box whose upper left corner is there.
    void Box(double x, double y) {
        const int side = Pixels(size_ * scale_, canvas_.Dpi());
        const int left = AtX(x);
        const int top = AtY(y);
        canvas_.DrawRect(left, top, side, side, LineWidth());
        areas_.push_back({double(left), double(top), double(side), double(side)});
    }

    void Text(double x, double y, double points, const std::string& text, bool bold = false) {
        Face(bold).DrawText(canvas_, {double(AtX(x)), double(AtY(y))}, points * scale_, text);
    }

    // Words over about `width` millimetres.
    void Words(double x, double y, double points, double width) {
        std::string line;
        const auto letters = static_cast<std::size_t>(width / points * 5.2);
        while (line.size() < letters)
            line.append(kWords[dice_.Next() % kWords.size()]).append(" ");
        Text(x, y, points, line);
    }

    void Rule(double x, double y, double length) {
        canvas_.FillRect(AtX(x), AtY(y), Pixels(length * scale_, canvas_.Dpi()), LineWidth());
    }

    void UprightRule(double x, double y, double length) {
        canvas_.FillRect(AtX(x), AtY(y), LineWidth(), Pixels(length * scale_, canvas_.Dpi()));
    }

    void Oval(double x, double y, double width) {
        std::vector<Point> places;
        for (int k = 0; k <= 24; ++k) {
            const double angle = k * std::numbers::pi / 12;
            places.push_back({AtX(x) + std::cos(angle) * width / 2 * PerMm(),
                              AtY(y) + std::sin(angle) * width / 3 * PerMm()});
            if (k > 0)
                canvas_.DrawLine(places[places.size() - 2], places.back(), LineWidth());
        }
    }

    double PerMm() const { return canvas_.Dpi() / 25.4; }

  private:
    static int Pixels(double millimetres, int dpi) {
        return static_cast<int>(std::lround(millimetres * dpi / 25.4));
    }
    int AtX(double x) const { return Pixels(kWidth / 2 + (x - kWidth / 2) * scale_, canvas_.Dpi()); }
    int AtY(double y) const { return Pixels(kHeight / 2 + (y - kHeight / 2) * scale_, canvas_.Dpi()); }

    Canvas canvas_;
    Random dice_;
    double scale_;
    double size_ = 4;
    double line_ = 0.3;
    std::vector<MarkArea> areas_;
};

double Head(Sheet& sheet) {
    sheet.Words(18, 22, 16, 110);
    sheet.Words(18, 30, 9, 160);
    sheet.Rule(18, 34, 172);
    return 44;
}

void Foot(Sheet& sheet) {
    sheet.Rule(18, 280, 172);
    sheet.Words(18, 285, 7, 120);
}

void PaintSurvey(Sheet& sheet, int more) {
    double y = Head(sheet);
    Random& dice = sheet.Dice();
    const double pitch = dice.Between(7.5, 11);
    const double across = dice.Between(11, 16);
    const int answers = 3 + static_cast<int>(dice.Next() % 4);
    const int rows = std::min(20, static_cast<int>((262 - y) / pitch)) + more;
    for (int row = 0; row < rows; ++row, y += pitch) {
        sheet.Words(18, y + 3.2, 9, 70);
        for (int answer = 0; answer < answers; ++answer)
            sheet.Box(110 + answer * across, y);
        if (dice.Chance(0.15))
            y += pitch * 0.6;
        if (y > 266)
            break;
    }
}

void PaintTwoColumns(Sheet& sheet, int more) {
    double y = Head(sheet);
    const double pitch = sheet.Dice().Between(7, 12);
    const int rows = static_cast<int>((255 - y) / pitch) + more;
    const double second = sheet.Dice().Between(98, 112);
    for (int row = 0; row < rows; ++row, y += pitch) {
        for (const double x : {20.0, second}) {
            if (sheet.Dice().Chance(0.12))
                continue;
            sheet.Box(x, y);
            sheet.Words(x + 7, y + 3.4, 9, 45);
        }
    }
}

void PaintTable(Sheet& sheet, int more) {
    const double top = Head(sheet);
    const double pitch = sheet.Dice().Between(8.5, 11);
    const int rows = static_cast<int>((250 - top) / pitch) + more;
    const double across = sheet.Dice().Between(13, 18);
    for (int row = 0; row < rows; ++row) {
        const double y = top + row * pitch;
        sheet.Rule(18, y, 172);
        sheet.Words(20, y + pitch * 0.6, 9, 70);
        for (int answer = 0; answer < 4; ++answer)
            sheet.Box(112 + answer * across, y + (pitch - sheet.Size()) / 2);
    }
    sheet.Rule(18, top + rows * pitch, 172);
    for (const double x : {18.0, 105.0, 190.0})
        sheet.UprightRule(x, top, rows * pitch);
}

void PaintLetters(Sheet& sheet, int more) {
    double y = Head(sheet);
    const double pitch = sheet.Dice().Between(9, 13);
    const int rows = static_cast<int>((255 - y) / pitch) + more;
    for (int row = 0; row < rows; ++row, y += pitch) {
        sheet.Text(18, y + 3.4, 10, std::to_string(row + 1), true);
        for (int answer = 0; answer < 5; ++answer) {
            const double x = 32 + answer * 14;
            sheet.Box(x, y);
            sheet.Text(x + sheet.Size() * 0.3, y + sheet.Size() * 0.72, sheet.Size() * 1.7,
                       std::string(1, static_cast<char>('A' + answer)));
        }
        sheet.Words(110, y + 3.4, 9, 60);
    }
}

void PaintDense(Sheet& sheet, int more) {
    const double top = Head(sheet);
    const double pitch = sheet.Dice().Between(6.8, 8.8);
    const double across = sheet.Dice().Between(11, 16);
    const double first = sheet.Dice().Between(26, 40);
    const int columns = static_cast<int>((190 - first) / across);
    const int rows = static_cast<int>((255 - top) / pitch) + more;
    for (int row = 0; row < rows; ++row) {
        sheet.Text(18, top + row * pitch + 3.2, 8, std::to_string(row + 1));
        for (int column = 0; column < columns; ++column)
            sheet.Box(first + column * across, top + row * pitch);
    }
}

void PaintOneColumn(Sheet& sheet, int more) {
    double y = Head(sheet);
    const double x = sheet.Dice().Between(20, 60);
    const double pitch = sheet.Dice().Between(11, 16);
    const int rows = 9 + static_cast<int>(sheet.Dice().Next() % 5) + more;
    for (int row = 0; row < rows; ++row, y += pitch) {
        sheet.Box(x, y);
        sheet.Words(x + 8, y + 3.4, 10, 90);
    }
}

void PaintFew(Sheet& sheet, int boxes, int more) {
    double y = Head(sheet);
    Random& dice = sheet.Dice();
    const int count = boxes + more;
    const int lines = 26;
    int painted = 0;
    for (int line = 0; line < lines; ++line, y += 8.6) {
        const bool due = painted < count && (line + 1) * count >= (painted + 1) * lines - lines / 2;
        if (due) {
            const double x = dice.Chance(0.5) ? 20 : dice.Between(20, 150);
            sheet.Box(x, y);
            sheet.Words(x + 8, y + 3.4, 9, 30);
            ++painted;
        } else if (!dice.Chance(0.15)) {
            sheet.Words(18, y + 3.4, 10, dice.Between(60, 160));
        }
    }
}

void PaintBoxes(Sheet& sheet, const FormDesign& design) {
    const int more = design.Trait == SisterTrait::OneMoreRow ? 1 : 0;
    switch (design.Kind) {
        case FormKind::Survey:
            return PaintSurvey(sheet, more);
        case FormKind::TwoColumns:
            return PaintTwoColumns(sheet, more);
        case FormKind::Table:
            return PaintTable(sheet, more);
        case FormKind::Letters:
            return PaintLetters(sheet, more);
        case FormKind::Dense:
            return PaintDense(sheet, more);
        case FormKind::OneColumn:
            return PaintOneColumn(sheet, more);
        case FormKind::Few:
            return PaintFew(sheet, design.Boxes, more);
    }
}

// As a document has it: the middle of the printed line. The ordinate y is the pixel line above it.
profiles::OmrBox BoxOf(const MarkArea& area, int lineWidth, std::size_t number) {
    const double inset = (lineWidth - 1) / 2.0;
    profiles::OmrBox box;
    box.Name = "Q" + std::to_string(number);
    box.L = app::RoundToInt16(area.x + inset);
    box.R = app::RoundToInt16(area.x + area.width - 1 - inset);
    box.T = app::RoundToInt16(area.y + inset + 1);
    box.B = app::RoundToInt16(area.y + area.height - inset);
    return box;
}

// Another box of the form, moved by half its pitch.
void MoveOneBox(Canvas& page, MarkArea& area, int lineWidth) {
    const auto left = static_cast<int>(area.x);
    const auto top = static_cast<int>(area.y);
    const auto side = static_cast<int>(area.width);
    for (int y = top; y < top + side; ++y) {
        for (int x = left; x < left + side; ++x)
            page.Set(x, y, kWhite);
    }
    area.x += 1.3 * side;
    page.DrawRect(static_cast<int>(area.x), top, side, side, lineWidth);
}

}  // namespace

BlankForm PaintBlank(const FormDesign& design, int dpi) {
    Sheet sheet(dpi, design.Seed * 7919 + 17, design.Trait == SisterTrait::Larger ? kLarger : 1.0);
    PaintBoxes(sheet, design);
    Foot(sheet);
    BlankForm form;
    form.Areas = sheet.Areas();
    form.Page = sheet.TakeCanvas();
    if (design.Trait == SisterTrait::MovedBox)
        MoveOneBox(form.Page, form.Areas[form.Areas.size() / 2], sheet.LineWidth());
    form.Profile.Name = "Form";
    form.Profile.Active = true;
    form.Profile.DPI_X = form.Profile.DPI_Y = static_cast<std::int16_t>(dpi);
    for (const MarkArea& area : form.Areas)
        form.Profile.Boxes.push_back(
            PrintedBoxOf(BoxOf(area, sheet.LineWidth(), form.Profile.Boxes.size() + 1)));
    return form;
}

Canvas PaintStranger(StrangerKind kind, std::uint64_t seed, int dpi) {
    if (kind == StrangerKind::OtherForm)
        return PaintBlank({static_cast<FormKind>(seed % 5), seed + 500000, 0, SisterTrait::None}, dpi).Page;
    Sheet sheet(dpi, seed * 31 + 5, 1.0);
    Random& dice = sheet.Dice();
    double y = Head(sheet);
    const double pitch = kind == StrangerKind::Text ? dice.Between(5, 8) : dice.Between(6, 12);
    const int columns = 3 + static_cast<int>(dice.Next() % 6);
    const double across = 172.0 / columns;
    const double top = y;
    for (; y < 270; y += pitch) {
        if (kind == StrangerKind::Text) {
            sheet.Words(18, y, dice.Chance(0.1) ? 14 : 10, dice.Between(70, 172));
        } else if (kind == StrangerKind::Ovals) {
            sheet.Words(18, y + 1, 9, 50);
            for (int column = 2; column < columns; ++column)
                sheet.Oval(24 + column * across, y, sheet.Size());
        } else {
            sheet.Rule(18, y, 172);
            for (int column = 0; column < columns; ++column)
                sheet.Words(19 + column * across, y + pitch * 0.7, 8, across * 0.6);
        }
    }
    for (int column = 0; kind == StrangerKind::RuledTable && column <= columns; ++column)
        sheet.UprightRule(18 + column * across, top, y - top - pitch);
    return sheet.TakeCanvas();
}

}  // namespace tavrene::samples
