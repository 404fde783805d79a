#include "reading/ReadingReport.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <istream>
#include <sstream>

namespace tavrene::samples {
namespace {

double Percent(std::size_t part, std::size_t of) {
    return of == 0 ? 0.0 : 100.0 * static_cast<double>(part) / static_cast<double>(of);
}

std::string Number(double value, int digits) {
    char text[32];
    std::snprintf(text, sizeof text, "%.*f", digits, value);
    return text;
}

// Percent, or a dash where there is nothing to be a part of.
std::string Share(std::size_t part, std::size_t of, int digits) {
    return of == 0 ? "–" : part == of ? "100" : Number(Percent(part, of), digits);
}

void Add(ReadingTally& sum, const ReadingTally& tally) {
    sum.Recognised += tally.Recognised;
    sum.Mistaken += tally.Mistaken;
    sum.Boxes += tally.Boxes;
    sum.Right += tally.Right;
}

template <typename Belongs>
ReadingRow SumOf(std::span<const ReadingRow> rows, Belongs belongs) {
    ReadingRow sum;
    for (const ReadingRow& row : rows) {
        if (!belongs(*row.Class))
            continue;
        sum.Pages += row.Pages;
        sum.Boxes += row.Boxes;
        Add(sum.Plain, row.Plain);
        Add(sum.Precise, row.Precise);
        sum.PlainErrors += row.PlainErrors;
        sum.Flagged += row.Flagged;
    }
    return sum;
}

std::string TableLine(const std::string& name, const ReadingRow& row, bool stranger) {
    const auto fields = [&](const ReadingTally& tally) {
        return (stranger ? "–" : Share(tally.Recognised, row.Pages, 1)) + " | " +
               std::to_string(tally.Mistaken) + " | " + Share(tally.Right, tally.Boxes, 2);
    };
    return "| " + name + " | " + std::to_string(row.Pages) + " | " + fields(row.Plain) + " | " +
           fields(row.Precise) + " | " + Share(row.Flagged, row.PlainErrors, 1) + " |\n";
}

// One small figure: the share of all boxes that are read right, unrecognised forms included.
class Figure {
  public:
    Figure(std::ostream& out, double left, double top, double last)
        : out_(out), left_(left), top_(top), last_(last) {}

    void Frame(const std::string& title) {
        out_ << "<rect x='" << left_ << "' y='" << top_ << "' width='" << kWidth << "' height='" << kHeight
             << "' fill='none' stroke='#999'/>\n<text x='" << left_ << "' y='" << top_ - 6 << "'>" << title
             << "</text>\n<text x='" << left_ + kWidth << "' y='" << top_ + kHeight + 14
             << "' text-anchor='end'>" << Number(last_, last_ == std::floor(last_) ? 0 : 1) << "</text>\n";
    }

    void Line(std::span<const ReadingRow* const> rows, bool precise) {
        out_ << "<polyline fill='none' stroke-width='2' stroke='" << (precise ? "#1565c0" : "#c62828") << "'"
             << (precise ? "" : " stroke-dasharray='5 3'") << " points='";
        for (const ReadingRow* const row : rows) {
            const std::size_t right = precise ? row->Precise.Right : row->Plain.Right;
            out_ << left_ + kWidth * row->Class->At / last_ << ','
                 << top_ + kHeight * (1 - Percent(right, row->Boxes) / 100) << ' ';
        }
        out_ << "'/>\n";
    }

    static constexpr double kWidth = 180;
    static constexpr double kHeight = 110;

  private:
    std::ostream& out_;
    double left_;
    double top_;
    double last_;
};

}  // namespace

std::string LineOf(const ReadingRow& row) {
    std::ostringstream line;
    line << row.Class->Name << '\t' << row.Pages << '\t' << row.Boxes;
    for (const ReadingTally* const tally : {&row.Plain, &row.Precise})
        line << '\t' << tally->Recognised << '\t' << tally->Mistaken << '\t' << tally->Boxes << '\t'
             << tally->Right;
    line << '\t' << row.PlainErrors << '\t' << row.Flagged;
    return line.str();
}

std::vector<ReadingRow> RowsFrom(std::istream& lines) {
    std::vector<ReadingRow> rows;
    for (std::string text; std::getline(lines, text);) {
        std::istringstream fields(text);
        std::string name;
        std::getline(fields, name, '\t');
        const auto known = std::ranges::find_if(
            ReadingClasses(), [&name](const ReadingClass& kind) { return kind.Name == name; });
        if (known == ReadingClasses().end())
            continue;
        ReadingRow row;
        row.Class = &*known;
        fields >> row.Pages >> row.Boxes;
        for (ReadingTally* const tally : {&row.Plain, &row.Precise})
            fields >> tally->Recognised >> tally->Mistaken >> tally->Boxes >> tally->Right;
        fields >> row.PlainErrors >> row.Flagged;
        rows.push_back(row);
    }
    return rows;
}

std::string TableOf(std::span<const ReadingRow> rows) {
    std::string text =
        "| pages | number | plain: forms | mistaken | boxes | precise: forms | mistaken | boxes | "
        "flagged |\n"
        "|---|---|---|---|---|---|---|---|---|\n";
    const auto isForm = [](const ReadingClass& kind) { return !kind.Stranger; };
    const auto isStranger = [](const ReadingClass& kind) { return kind.Stranger.has_value(); };
    const auto isPromised = [](const ReadingClass& kind) { return kind.Promised; };
    text += TableLine("**all forms**", SumOf(rows, isForm), false);
    text += TableLine("**the promised classes (\\*)**", SumOf(rows, isPromised), false);
    text += TableLine("**all strangers**", SumOf(rows, isStranger), true);
    for (const ReadingRow& row : rows)
        text += TableLine(row.Class->Name + (row.Class->Promised ? " \\*" : ""), row,
                          row.Class->Stranger.has_value());
    return text;
}

std::string CurvesOf(std::span<const ReadingRow> rows) {
    constexpr int across = 3;
    const std::vector<std::string> curves = {"tilt", "shift", "stretch", "bend", "thin", "noise"};
    const std::vector<std::string> units = {"tilt, degrees", "shift, mm", "stretch one way, %",
                                            "bend, mm",      "thin, %",   "noise, %"};
    std::ostringstream out;
    out << "<svg xmlns='http://www.w3.org/2000/svg' width='680' height='340' font-family='sans-serif' "
           "font-size='11'>\n<rect width='100%' height='100%' fill='white'/>\n"
           "<text x='20' y='16'>boxes read right, of all boxes, 0 to 100 %: precise (blue), plain (red, "
           "dashed)</text>\n";
    for (std::size_t k = 0; k < curves.size(); ++k) {
        std::vector<const ReadingRow*> points;
        for (const ReadingRow& row : rows) {
            if (row.Class->Curve == curves[k] || row.Class->Name == "clean")
                points.push_back(&row);
        }
        if (points.size() < 2)
            continue;
        Figure figure(out, 20 + static_cast<double>(k % across) * 220,
                      50 + static_cast<double>(k / across) * 150, points.back()->Class->At);
        figure.Frame(units[k]);
        figure.Line(points, false);
        figure.Line(points, true);
    }
    out << "</svg>\n";
    return out.str();
}

}  // namespace tavrene::samples
