#include <array>
#include <string>

#include "forms/Forms.h"

namespace tavrene::samples {

namespace {

constexpr int kPitch = 58;  // between rows of boxes

void DrawPerson(FormSheet& sheet) {
    sheet.Section(400, "1   About you");
    sheet.Text(kMargin, 465, 9, "You are");
    sheet.Question(true);
    sheet.LabelledBox(410, 442, "Sex female", "female");
    sheet.LabelledBox(690, 442, "Sex male", "male");
    sheet.LabelledBox(970, 442, "Sex other", "other");
    sheet.Text(kMargin, 465 + kPitch, 9, "Your age");
    sheet.Question(true);
    sheet.LabelledBox(410, 442 + kPitch, "Age under 18", "under 18");
    sheet.LabelledBox(690, 442 + kPitch, "Age 18-39", "18 – 39");
    sheet.LabelledBox(970, 442 + kPitch, "Age 40-64", "40 – 64");
    sheet.LabelledBox(1250, 442 + kPitch, "Age 65 or over", "65 or over");
    sheet.Text(kMargin, 465 + 2 * kPitch, 9, "This visit is");
    sheet.Question(true);
    sheet.LabelledBox(410, 442 + 2 * kPitch, "Visit first", "my first visit");
    sheet.LabelledBox(690, 442 + 2 * kPitch, "Visit follow-up", "a follow-up visit");
}

void DrawComplaints(FormSheet& sheet) {
    constexpr std::array complaints = {
        "Headache",  "Back or neck pain",   "Trouble sleeping", "Tiredness in the day",
        "Dizziness", "Shortness of breath", "Loss of appetite"};
    constexpr std::array answers = {"never", "rarely", "often", "always"};
    sheet.Section(680, "2   How often have you had these in the last four weeks?");
    for (std::size_t column = 0; column < answers.size(); ++column)
        sheet.TextAround(904 + 160 * static_cast<int>(column), 736, 8.5, answers[column]);
    sheet.Table({758, kPitch, 160, 43, complaints, answers});
}

void DrawTreatments(FormSheet& sheet) {
    constexpr std::array<std::array<const char*, 2>, 5> treatments = {
        {{"diabetes", "arthritis"},
         {"asthma", "migraine"},
         {"high blood pressure", "depression"},
         {"heart disease", "a thyroid disorder"},
         {"allergies", "cancer"}}};
    sheet.Section(1240, "3   Are you being treated, or have you been treated, for any of these?");
    sheet.Pairs({1282, kPitch, 810, "Treated", treatments});
}

void DrawAgreement(FormSheet& sheet) {
    sheet.Section(1640, "4   Your agreement");
    const auto ask = [&sheet](int y, const std::string& name, std::string_view question) {
        sheet.Text(kMargin, y + 23, 9, question);
        sheet.Question(true);
        sheet.LabelledBox(1050, y, name + " yes", "yes");
        sheet.LabelledBox(1250, y, name + " no", "no");
    };
    ask(1682, "Contact", "May we contact you about your answers?");
    ask(1682 + kPitch, "Research", "May we use your answers, without your name, in research?");
}

}  // namespace

PrintedForm PatientQuestionnaire() {
    FormSheet sheet("PatientQuestionnaire");
    sheet.Head("Health Centre", "Patient Questionnaire", "Form PQ-12",
               "Please mark the boxes that apply to you. Use a black or blue pen.");
    sheet.Field(kMargin, 332, 980, "Name");
    sheet.Field(1030, 332, kRight, "Date");
    DrawPerson(sheet);
    DrawComplaints(sheet);
    DrawTreatments(sheet);
    DrawAgreement(sheet);
    sheet.Field(kMargin, 1880, kRight, "Anything else that we should know?");
    sheet.Rule(kMargin, 1950, kRight - kMargin);
    sheet.Rule(kMargin, 2015, kRight - kMargin);
    sheet.Field(kMargin, 2120, 860, "Signature");
    sheet.Foot("Thank you. Please hand this sheet in at the desk.");
    return sheet.Take();
}

}  // namespace tavrene::samples
