#include "forms/FormSheet.h"

#include <utility>

namespace tavrene::samples {

namespace {

constexpr double kBodyPoints = 9;

}  // namespace

FormSheet::FormSheet(std::string name) {
    form_.Name = std::move(name);
}

void FormSheet::Set(Typeface& face, double x, int y, double points, std::string_view text) {
    face.DrawText(form_.Page, {x * kFineness, static_cast<double>(y) * kFineness}, points, text);
}

void FormSheet::Text(int x, int y, double points, std::string_view text) {
    Set(plain_, x, y, points, text);
}

void FormSheet::BoldText(int x, int y, double points, std::string_view text) {
    Set(bold_, x, y, points, text);
}

void FormSheet::TextEndingAt(int x, int y, double points, std::string_view text) {
    Set(plain_, x - plain_.TextWidth(points, kProfileDpi, text), y, points, text);
}

void FormSheet::TextAround(int x, int y, double points, std::string_view text) {
    Set(plain_, x - plain_.TextWidth(points, kProfileDpi, text) / 2, y, points, text);
}

void FormSheet::Rule(int x, int y, int length, int thickness) {
    form_.Page.FillRect(x * kFineness, y * kFineness, length * kFineness, thickness * kFineness);
}

void FormSheet::Head(std::string_view sender, std::string_view title, std::string_view number,
                     std::string_view advice) {
    Text(kMargin, 128, 10, sender);
    TextEndingAt(kRight, 128, 8, number);
    BoldText(kMargin, 204, 20, title);
    Rule(kMargin, 226, kRight - kMargin, 4);
    Text(kMargin, 266, kBodyPoints, advice);
}

void FormSheet::Section(int y, std::string_view title) {
    BoldText(kMargin, y, 10.5, title);
    Rule(kMargin, y + 14, kRight - kMargin, 2);
}

void FormSheet::Field(int x, int y, int end, std::string_view label) {
    Text(x, y, kBodyPoints, label);
    const int start = x + static_cast<int>(plain_.TextWidth(kBodyPoints, kProfileDpi, label)) + 12;
    Rule(start, y + 5, end - start);
    form_.Lines.push_back({start, y, end - start});
}

void FormSheet::Question(bool oneAnswer) {
    ++question_;
    oneAnswer_ = oneAnswer;
}

void FormSheet::Box(int x, int y, std::string name) {
    const int side = kBoxSize * kFineness;
    form_.Page.DrawRect(x * kFineness, y * kFineness, side, side, kBoxLine * kFineness);
    form_.Boxes.push_back({std::move(name), x, y, question_, oneAnswer_});
}

void FormSheet::LabelledBox(int x, int y, std::string name, std::string_view label) {
    Box(x, y, std::move(name));
    Text(x + kBoxSize + 14, y + 23, kBodyPoints, label);
}

void FormSheet::Table(const AnswerTable& table) {
    int y = table.Y;
    for (std::size_t row = 0; row < table.Questions.size(); ++row) {
        const std::string number = "Q" + std::to_string(row + 1);
        Text(kMargin, y + 23, kBodyPoints, number + "   " + table.Questions[row]);
        Question(true);
        int x = kTableX;
        for (const char* const answer : table.Answers) {
            Box(x, y, number + " " + answer);
            x += table.ColumnPitch;
        }
        Rule(kMargin, y + table.RuleBelow, kRight - kMargin);
        y += table.RowPitch;
    }
}

void FormSheet::Pairs(const BoxPairs& pairs) {
    Question(false);
    int y = pairs.Y;
    for (const auto& [left, right] : pairs.Labels) {
        LabelledBox(kMargin + 10, y, pairs.Name + " " + left, left);
        LabelledBox(pairs.SecondX, y, pairs.Name + " " + right, right);
        y += pairs.RowPitch;
    }
}

void FormSheet::Foot(std::string_view thanks) {
    Rule(kMargin, 2190, kRight - kMargin, 2);
    Text(kMargin, 2222, 7.5, thanks);
    TextEndingAt(kRight, 2222, 7.5, "Page 1 of 1");
}

}  // namespace tavrene::samples
