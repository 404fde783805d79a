#include <array>
#include <string>

#include "forms/Forms.h"

namespace tavrene::samples {

namespace {

constexpr int kMargin = 130;
constexpr int kRight = kPageWidth - kMargin;
constexpr int kPitch = 60;  // between rows of boxes

void DrawWork(FormSheet& sheet) {
    sheet.Section(396, "1   About your work");
    constexpr std::array departments = {"office", "production", "warehouse", "sales", "service"};
    sheet.Text(kMargin, 469, 9, "Department");
    sheet.Question(true);
    for (std::size_t i = 0; i < departments.size(); ++i)
        sheet.LabelledBox(350 + 236 * static_cast<int>(i), 446, std::string("Dept ") + departments[i],
                          departments[i]);

    constexpr std::array years = {"under 1 year", "1-5 years", "6-15 years", "over 15 years"};
    sheet.Text(kMargin, 469 + kPitch, 9, "With us for");
    sheet.Question(true);
    for (std::size_t i = 0; i < years.size(); ++i)
        sheet.LabelledBox(350 + 300 * static_cast<int>(i), 446 + kPitch, std::string("Service ") + years[i],
                          years[i]);

    constexpr std::array times = {"full time", "part time", "temporary"};
    sheet.Text(kMargin, 469 + 2 * kPitch, 9, "Working");
    sheet.Question(true);
    for (std::size_t i = 0; i < times.size(); ++i)
        sheet.LabelledBox(350 + 300 * static_cast<int>(i), 446 + 2 * kPitch, std::string("Time ") + times[i],
                          times[i]);
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
    for (std::size_t row = 0; row < statements.size(); ++row) {
        const int y = 792 + kPitch * static_cast<int>(row);
        const std::string number = std::to_string(row + 1);
        sheet.Text(kMargin, y + 23, 9, "Q" + number + "   " + statements[row]);
        sheet.Question(true);
        for (std::size_t column = 0; column < answers.size(); ++column)
            sheet.Box(890 + 132 * static_cast<int>(column), y, "Q" + number + " " + answers[column]);
        sheet.Rule(kMargin, y + 44, kRight - kMargin);
    }
}

void DrawOffers(FormSheet& sheet) {
    constexpr std::array<std::array<const char*, 2>, 5> offers = {{{"canteen", "sports group"},
                                                                   {"bus ticket", "language course"},
                                                                   {"child care", "flexible hours"},
                                                                   {"health check", "work from home"},
                                                                   {"pension plan", "parking"}}};
    sheet.Section(1350, "3   Which of these do you use?");
    sheet.Question(false);
    int y = 1394;
    for (const auto& row : offers) {
        sheet.LabelledBox(kMargin + 10, y, std::string("Uses ") + row[0], row[0]);
        sheet.LabelledBox(760, y, std::string("Uses ") + row[1], row[1]);
        y += kPitch;
    }
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
    sheet.Rule(kMargin, 2190, kRight - kMargin, 2);
    sheet.Text(kMargin, 2222, 7.5, "Thank you. Please put this sheet into the box at the entrance.");
    sheet.TextEndingAt(kRight, 2222, 7.5, "Page 1 of 1");
    return sheet.Take();
}

}  // namespace tavrene::samples
