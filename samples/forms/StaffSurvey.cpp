#include <array>
#include <string>

#include "forms/Forms.h"

namespace tavrene::samples {

namespace {

constexpr int kPitch = 60;  // between rows of boxes

// One answer of a row of boxes, each named by its label behind `name`.
void DrawChoice(FormSheet& sheet, int y, std::string_view question, const std::string& name, int pitch,
                std::span<const char* const> labels) {
    sheet.Text(kMargin, y + 23, 9, question);
    sheet.Question(true);
    int x = 350;
    for (const char* const label : labels) {
        sheet.LabelledBox(x, y, name + " " + label, label);
        x += pitch;
    }
}

void DrawWork(FormSheet& sheet) {
    constexpr std::array departments = {"office", "production", "warehouse", "sales", "service"};
    constexpr std::array years = {"under 1 year", "1-5 years", "6-15 years", "over 15 years"};
    constexpr std::array times = {"full time", "part time", "temporary"};
    sheet.Section(396, "1   About your work");
    DrawChoice(sheet, 446, "Department", "Dept", 236, departments);
    DrawChoice(sheet, 446 + kPitch, "With us for", "Service", 300, years);
    DrawChoice(sheet, 446 + 2 * kPitch, "Working", "Time", 300, times);
}

void DrawScaleHead(FormSheet& sheet, int x, int y) {
    constexpr std::array<std::array<const char*, 2>, 5> heads = {
        {{"strongly", "disagree"}, {"", "disagree"}, {"", "neutral"}, {"", "agree"}, {"strongly", "agree"}}};
    for (const auto& head : heads) {
        sheet.TextAround(x, y - 24, 7.5, head[0]);
        sheet.TextAround(x, y, 7.5, head[1]);
        x += 132;
    }
}

void DrawStatements(FormSheet& sheet) {
    constexpr std::array statements = {"My work is interesting.",        "I have the tools that I need.",
                                       "I know what is expected of me.", "My workload is fair.",
                                       "My manager listens to me.",      "Good work is noticed here.",
                                       "I can learn and move on.",       "I feel safe at work."};
    constexpr std::array answers = {"strongly disagree", "disagree", "neutral", "agree", "strongly agree"};
    sheet.Section(690, "2   How far do you agree?");
    DrawScaleHead(sheet, 904, 768);
    sheet.Table({792, kPitch, 132, 44, statements, answers});
}

void DrawOffers(FormSheet& sheet) {
    constexpr std::array<std::array<const char*, 2>, 5> offers = {{{"canteen", "sports group"},
                                                                   {"bus ticket", "language course"},
                                                                   {"child care", "flexible hours"},
                                                                   {"health check", "work from home"},
                                                                   {"pension plan", "parking"}}};
    sheet.Section(1350, "3   Which of these do you use?");
    sheet.Pairs({1394, kPitch, 760, "Uses", offers});
}

}  // namespace

PrintedForm StaffSurvey() {
    FormSheet sheet("StaffSurvey");
    sheet.Head("Personnel Office", "Staff Survey", "Form ST-04",
               "Please mark one box in each row. Your answers are treated in confidence.");
    sheet.Field(kMargin, 332, 980, "Team");
    sheet.Field(1030, 332, kRight, "Date");
    DrawWork(sheet);
    DrawStatements(sheet);
    DrawOffers(sheet);
    sheet.Field(kMargin, 1800, kRight, "What should we do better?");
    for (int y = 1870; y < 2100; y += 65)
        sheet.Rule(kMargin, y, kRight - kMargin);
    sheet.Foot("Thank you. Please put this sheet into the box at the entrance.");
    return sheet.Take();
}

}  // namespace tavrene::samples
