#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "painter/Canvas.h"
#include "painter/Typeface.h"

namespace tavrene::samples {

/// Forms are laid out in units of a pixel at the resolution of their profiles and painted three times as
/// fine, so that every box edge falls on a whole pixel of a blank and a scan can be taken at other
/// resolutions and angles.
constexpr int kProfileDpi = 200;
constexpr int kFineness = 3;
constexpr int kPageWidth = 1654;  // A4
constexpr int kPageHeight = 2339;
constexpr int kMargin = 130;
constexpr int kRight = kPageWidth - kMargin;
constexpr int kTableX = 890;  // the first answer of a table
constexpr int kBoxSize = 28;
constexpr int kBoxLine = 2;

/// A printed check box; outer edges in layout units, page frame. Boxes of one `Question` exclude each other
/// when it allows one answer only.
struct FormBox {
    std::string Name;
    int X = 0;
    int Y = 0;
    int Question = 0;
    bool OneAnswer = true;
};

/// A line to write on: its left end in layout units, on the base line.
struct WritingLine {
    int X = 0;
    int Y = 0;
    int Length = 0;
};

/// A printed form: the picture and what is on it, boxes from the top, left to right within a row.
struct PrintedForm {
    std::string Name;
    Canvas Page{kPageWidth * kFineness, kPageHeight* kFineness, kProfileDpi* kFineness};
    std::vector<FormBox> Boxes;
    std::vector<WritingLine> Lines;
};

/// One question a row, one answer each: the boxes of "Q1" stand in a row under the answers, "Q1 never".
struct AnswerTable {
    int Y = 0;  ///< Top of the first row of boxes.
    int RowPitch = 0;
    int ColumnPitch = 0;
    int RuleBelow = 0;  ///< From the top of a row to the line that ends it.
    std::span<const char* const> Questions;
    std::span<const char* const> Answers;
};

/// Two columns of labelled boxes of which any may be marked; a box is named by its label behind `Name`.
struct BoxPairs {
    int Y = 0;
    int RowPitch = 0;
    int SecondX = 0;
    std::string Name;
    std::span<const std::array<const char*, 2>> Labels;
};

/// Sets the type and rulings of a form. All places and lengths are layout units, text is placed by its base
/// line.
class FormSheet {
  public:
    explicit FormSheet(std::string name);

    void Text(int x, int y, double points, std::string_view text);
    void BoldText(int x, int y, double points, std::string_view text);
    void TextEndingAt(int x, int y, double points, std::string_view text);
    void TextAround(int x, int y, double points, std::string_view text);

    void Rule(int x, int y, int length, int thickness = 1);

    /// The head of the page: who asks, the title, the form's number and what to do.
    void Head(std::string_view sender, std::string_view title, std::string_view number,
              std::string_view advice);

    void Section(int y, std::string_view title);

    /// A label and a line to write on, up to `end`.
    void Field(int x, int y, int end, std::string_view label);

    /// Starts the next question; the boxes that follow belong to it.
    void Question(bool oneAnswer);

    void Box(int x, int y, std::string name);

    /// A box with its label to the right.
    void LabelledBox(int x, int y, std::string name, std::string_view label);

    void Table(const AnswerTable& table);
    void Pairs(const BoxPairs& pairs);

    /// The last line of the page.
    void Foot(std::string_view thanks);

    PrintedForm Take() { return std::move(form_); }

  private:
    void Set(Typeface& face, double x, int y, double points, std::string_view text);

    Typeface plain_{Typeface::Style::Sans};
    Typeface bold_{Typeface::Style::SansBold};
    PrintedForm form_;
    int question_ = 0;
    bool oneAnswer_ = true;
};

}  // namespace tavrene::samples
