#include "reading/ReadingClasses.h"

#include <cstdio>

namespace tavrene::samples {
namespace {

std::string Number(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%g", value);
    return text;
}

class Rows {
  public:
    ReadingClass& Add(const std::string& name) {
        ReadingClass row;
        row.Name = name;
        rows_.push_back(row);
        return rows_.back();
    }

    // A row for each value of one thing that scanners do; those up to `promised` are.
    template <typename Set>
    void AddCurve(const std::string& name, const std::string& unit, const std::vector<double>& values,
                  double promised, Set set) {
        for (const double value : values) {
            ReadingClass& row = Add(name + " " + Number(value) + unit);
            row.Curve = name;
            row.At = value;
            row.Promised = value <= promised;
            set(row.Wear, value);
        }
    }

    std::vector<ReadingClass> Take() { return std::move(rows_); }

  private:
    std::vector<ReadingClass> rows_;
};

void AddGeometry(Rows& rows) {
    rows.Add("clean").Promised = true;
    rows.AddCurve("tilt", "°", {0.5, 1, 1.5, 2, 2.5, 3, 3.5}, 2,
                  [](ScanWear& wear, double value) { wear.TiltDegrees = value; });
    rows.AddCurve("shift", " mm", {2, 5, 10, 12, 15}, 10, [](ScanWear& wear, double value) {
        wear.ShiftX = value * 0.7;
        wear.ShiftY = value * 0.7;
    });
    rows.AddCurve("stretch", " % one way", {1, 2, 3, 4}, 3,
                  [](ScanWear& wear, double value) { wear.StretchY = value / 100; });
    rows.AddCurve("stretch both", " %", {1, 2, 3, 4}, 0, [](ScanWear& wear, double value) {
        wear.StretchX = value / 100;
        wear.StretchY = value / 100;
    });
    rows.AddCurve("bend", " mm", {0.25, 0.5, 1, 1.5}, 0.5,
                  [](ScanWear& wear, double value) { wear.Bend = value; });
    ReadingClass& turned = rows.Add("upside down, tilt 1°");
    turned.Wear.UpsideDown = true;
    turned.Wear.TiltDegrees = 1;
    turned.Promised = true;
}

void AddPrint(Rows& rows) {
    rows.AddCurve("thin", " %", {20, 40, 60}, 40,
                  [](ScanWear& wear, double value) { wear.Thin = value / 100; });
    rows.AddCurve("fat", " px", {1}, 1,
                  [](ScanWear& wear, double value) { wear.Fat = static_cast<int>(value); });
    rows.AddCurve("noise", " %", {0.5, 1, 2, 3}, 3,
                  [](ScanWear& wear, double value) { wear.Noise = value / 100; });
    rows.AddCurve("lost and doubled lines", "", {2, 6}, 0,
                  [](ScanWear& wear, double value) { wear.DroppedLines = static_cast<int>(value); });
    rows.AddCurve("black edges", " mm", {3, 8}, 0,
                  [](ScanWear& wear, double value) { wear.BlackEdges = value; });
    rows.Add("holes").Wear.Holes = true;
    rows.Add("stamps over boxes").Stamps = true;
    rows.Add("marks over outlines").OverOutlines = true;
    rows.AddCurve("grey through JPEG, quality", "", {75, 30}, 0,
                  [](ScanWear& wear, double value) { wear.JpegQuality = static_cast<int>(value); });
    rows.Add("letters in the boxes").Kind = FormKind::Letters;
    rows.Add("mixed").Mixed = true;
}

void AddResolutions(Rows& rows) {
    for (const int dpi : {100, 150, 300, 400, 600}) {
        for (const bool same : {true, false}) {
            ReadingClass& row =
                rows.Add(std::to_string(dpi) + " dpi, tilt 0.7°" + (same ? "" : ", profile of 200 dpi"));
            row.ScanDpi = dpi;
            row.ProfileDpi = same ? dpi : 200;
            row.Wear.TiltDegrees = 0.7;
        }
    }
    rows.Add("no resolution told").ToldDpi = 0;
    rows.Add("wrong resolution told, 96 for 200 dpi").ToldDpi = 96;
    ReadingClass& unknown = rows.Add("150 dpi, none told, profile of 200 dpi");
    unknown.ScanDpi = 150;
    unknown.ToldDpi = 0;
}

void AddProfiles(Rows& rows) {
    for (int boxes = 1; boxes <= 6; ++boxes) {
        ReadingClass& row = rows.Add("profile of " + std::to_string(boxes) +
                                     (boxes == 1 ? " box" : " boxes") + ", tilt 0.7°");
        row.Kind = FormKind::Few;
        row.Boxes = boxes;
        row.Wear.TiltDegrees = 0.7;
        row.Wear.ShiftX = 2;
    }
    for (const double tilt : {0.0, 1.0, 2.0}) {
        ReadingClass& row = rows.Add("one column, tilt " + Number(tilt) + "°");
        row.Kind = FormKind::OneColumn;
        row.Wear.TiltDegrees = tilt;
    }
    rows.Add("sister: a box moved").Sister = SisterTrait::MovedBox;
    rows.Add("sister: one more row").Sister = SisterTrait::OneMoreRow;
    rows.Add("sister: 4.5 % larger").Sister = SisterTrait::Larger;
    rows.Add("stranger: text").Stranger = StrangerKind::Text;
    rows.Add("stranger: ruled table").Stranger = StrangerKind::RuledTable;
    rows.Add("stranger: ballot with ovals").Stranger = StrangerKind::Ovals;
    rows.Add("stranger: another form").Stranger = StrangerKind::OtherForm;
}

std::vector<ReadingClass> AllRows() {
    Rows rows;
    AddGeometry(rows);
    AddPrint(rows);
    AddResolutions(rows);
    AddProfiles(rows);
    return rows.Take();
}

}  // namespace

std::span<const ReadingClass> ReadingClasses() {
    static const std::vector<ReadingClass> rows = AllRows();
    return rows;
}

ScanWear MixedWear(Random& dice) {
    ScanWear wear;
    wear.TiltDegrees = dice.Between(0, 1.5);
    wear.ShiftX = dice.Between(0, 6);
    wear.ShiftY = dice.Between(0, 6);
    wear.StretchX = dice.Between(0, 0.012);
    wear.StretchY = dice.Between(0, 0.012);
    wear.Bend = dice.Between(0, 0.4);
    if (dice.Chance(0.5))
        wear.Thin = dice.Between(0, 0.4);
    else if (dice.Chance(0.3))
        wear.Fat = 1;
    wear.Noise = dice.Chance(0.5) ? dice.Between(0, 0.01) : 0;
    wear.BlackEdges = dice.Chance(0.3) ? dice.Between(1, 6) : 0;
    wear.Holes = dice.Chance(0.4);
    wear.UpsideDown = dice.Chance(0.1);
    return wear;
}

}  // namespace tavrene::samples
