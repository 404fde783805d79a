#include "forms/FormSheet.h"

#include <utility>

namespace tavrene::samples {

namespace {

constexpr int kMargin = 130;
constexpr int kRight = kPageWidth - kMargin;
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

}  // namespace tavrene::samples
