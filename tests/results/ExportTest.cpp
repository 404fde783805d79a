#include <gtest/gtest.h>

#include "recognition/ResultDocument.h"
#include "results/CsvExport.h"
#include "results/Readers.h"
#include "results/XlsxExport.h"
#include "support/Faults.h"
#include "support/FaultyFiles.h"
#include "support/TempFolder.h"

namespace tavrene::results {
namespace {

using test::Has;
using test::Lines;
using test::ReadText;
using test::WriteText;
using Line = std::vector<std::string>;

bool GoOn(std::size_t, std::size_t) {
    return true;
}

// Ends the work when `calls` forms were told of.
Progress EndAfter(std::size_t calls) {
    return [calls](std::size_t done, std::size_t) { return done < calls; };
}

class ExportTest : public ::testing::Test {
  protected:
    struct Box {
        std::string name;
        bool checked = false;
    };

    void AddForm(const std::string& name, const std::string& profile, const std::vector<Box>& boxes) {
        std::vector<recognition::MarkReading> readings;
        for (const Box& box : boxes)
            readings.push_back({box.name, {}, {}, 0, box.checked});
        recognition::SaveResultDocument(files_, In(name + ".xml"), {profile, name + ".tif", "0", 87},
                                        readings);
    }

    std::string In(const std::string& name) const { return in_.File(name); }
    std::string Out(const std::string& name) const { return out_.File(name); }

    Results Read() { return ReadResults(files_, in_.Path() + "/", GoOn).value(); }

    bool SaveCsv(const CsvOptions& options = {}, const Progress& progress = GoOn) {
        return ExportCsv(files_, Read().Tables, groups_, out_.Path() + "/", options, progress);
    }
    bool SaveXlsx(const Progress& progress = GoOn) {
        return ExportXlsx(files_, Read().Tables, groups_, Out("book.xlsx"), progress);
    }

    // The CSV of a profile but for the column of dates, which it checks.
    Lines Csv(const std::string& name, char separator = ',') const {
        Lines lines = test::ReadCsv(Out(name), separator);
        const bool dated = lines[0][4] == "Date";
        for (std::size_t k = 0; dated && k < lines.size(); ++k) {
            EXPECT_EQ(lines[k][4].size(), k == 0 ? 4U : std::string("2024-03-05 14:05:09").size());
            lines[k].erase(lines[k].begin() + 4);
        }
        return lines;
    }

    test::TempFolder in_;
    test::TempFolder out_;
    test::FaultyFiles files_;
    GroupsOfProfiles groups_;
};

TEST_F(ExportTest, EveryProfileHasAFileWithALineAForm) {
    AddForm("form1", "Survey", {{"Q1", true}, {"Q2", false}});
    AddForm("form2", "Order", {{"A", false}});
    AddForm("form10", "Survey", {{"Q1", false}, {"Q2", true}});
    auto reviewed = recognition::ResultDocument::Load(files_, In("form10.xml"));
    reviewed.SetReviewed(true);
    reviewed.Save(files_, In("form10.xml"));
    const std::string before = ReadText(In("form10.xml"));

    ASSERT_TRUE(SaveCsv());
    EXPECT_EQ(files_.List(out_.Path(), "*"), (Line{"Order.csv", "Summary.csv", "Survey.csv"}));
    EXPECT_EQ(Csv("Survey.csv"), (Lines{{"Image", "Profile", "Reviewed", "Confidence", "Q1", "Q2"},
                                        {"form1.tif", "Survey", "0", "87", "1", "0"},
                                        {"form10.tif", "Survey", "1", "87", "0", "1"}}));
    EXPECT_EQ(Csv("Order.csv")[1], (Line{"form2.tif", "Order", "0", "87", "0"}));
    EXPECT_EQ(Csv("Summary.csv"), (Lines{{"Profile", "Group", "Box", "Checked", "Empty"},
                                         {"Survey", "", "Q1", "1", "1"},
                                         {"Survey", "", "Q2", "1", "1"},
                                         {"Order", "", "A", "0", "1"}}));
    EXPECT_EQ(ReadText(In("form10.xml")), before);
}

TEST_F(ExportTest, FormsOfAnOlderProfileKeepTheirBoxesApart) {
    AddForm("a", "P", {{"same", true}, {"gone", false}, {"same", false}});
    AddForm("b", "P", {{"same", false}, {"new", true}, {"same", true}, {"same", true}});
    AddForm("c", "P", {});
    ASSERT_TRUE(SaveCsv());
    EXPECT_EQ(
        Csv("P.csv"),
        (Lines{{"Image", "Profile", "Reviewed", "Confidence", "same", "gone", "same (2)", "new", "same (3)"},
               {"a.tif", "P", "0", "87", "1", "0", "0", "", ""},
               {"b.tif", "P", "0", "87", "0", "", "1", "1", "1"},
               {"c.tif", "P", "0", "87", "", "", "", "", ""}}));
    const Lines summary = Csv("Summary.csv");
    EXPECT_EQ(summary[1], (Line{"P", "", "same", "1", "1"}));
    EXPECT_EQ(summary[2], (Line{"P", "", "gone", "0", "1"}));
}

TEST_F(ExportTest, AGroupIsOneColumnOfTheMarksNames) {
    AddForm("a", "P", {{"id", true}, {"yes", true}, {"note", false}, {"no", false}});
    AddForm("b", "P", {{"id", false}, {"yes", true}, {"note", true}, {"no", true}});
    AddForm("c", "P", {{"id", false}, {"yes", false}, {"note", false}, {"no", false}});
    groups_["P"] = {{"Agreed", {"no", "yes", "perhaps"}}};
    ASSERT_TRUE(SaveCsv());
    EXPECT_EQ(Csv("P.csv"), (Lines{{"Image", "Profile", "Reviewed", "Confidence", "id", "Agreed", "note"},
                                   {"a.tif", "P", "0", "87", "1", "yes", "0"},
                                   {"b.tif", "P", "0", "87", "0", "yes|no", "1"},
                                   {"c.tif", "P", "0", "87", "0", "", "0"}}));
    EXPECT_EQ(Csv("Summary.csv")[2], (Line{"P", "Agreed", "yes", "2", "1"}));
}

TEST_F(ExportTest, CellsAreQuotedAndFormulasMadeHarmless) {
    const std::vector<Box> boxes = {{"=1+2"}, {"a,b;c"}, {"say \"x\""}, {"two\nlines"}, {"größe"}, {"-\"\t"}};
    AddForm("a", "@home", boxes);
    const Line wanted = {"'=1+2", "a,b;c", "say \"x\"", "two\nlines", "größe", "'-\"\t"};
    for (const char separator : {',', ';', '\t'}) {
        ASSERT_TRUE(SaveCsv({static_cast<Separator>(separator), separator == ';'}));
        EXPECT_EQ(ReadText(Out("@home.csv")).starts_with("\xEF\xBB\xBF"), separator == ';');
        const Lines lines = test::ReadCsv(Out("@home.csv"), separator);
        EXPECT_EQ(std::vector(lines[0].begin() + 5, lines[0].end()), wanted);
        EXPECT_EQ(lines[1][1], "'@home");
    }
    ASSERT_TRUE(SaveXlsx());
    const Lines sheet = test::ReadXlsx(Out("book.xlsx")).at("@home");
    EXPECT_EQ(sheet[0][5], "t:=1+2");
    EXPECT_EQ(sheet[1][1], "t:@home");
}

TEST_F(ExportTest, AWorkbookHoldsTheSameTables) {
    AddForm("a", "Survey", {{"Q1", true}, {"Q2", false}});
    AddForm("b", "Survey", {{"Q1", false}});
    AddForm("c", "Order", {{"A & <B>", true}});
    ASSERT_TRUE(SaveXlsx());
    const std::map<std::string, Lines> sheets = test::ReadXlsx(Out("book.xlsx"));
    ASSERT_EQ(sheets.size(), 3U);
    Lines survey = sheets.at("Survey");
    EXPECT_EQ(survey[0],
              (Line{"t:Image", "t:Profile", "t:Reviewed", "t:Confidence", "t:Date", "t:Q1", "t:Q2"}));
    EXPECT_TRUE(survey[1][4].starts_with("t:20"));
    survey[1].erase(survey[1].begin() + 4);
    EXPECT_EQ(survey[1], (Line{"t:a.tif", "t:Survey", "0", "87", "1", "0"}));
    EXPECT_EQ(survey[2].size(), 6U);
    EXPECT_EQ(sheets.at("Order")[0][5], "t:A & <B>");
    EXPECT_EQ(sheets.at("Summary")[3], (Line{"t:Order", "", "t:A & <B>", "1", "0"}));
}

TEST_F(ExportTest, NamesOfProfilesBecomeNamesOfFilesAndSheets) {
    const std::string longName(60, 'x');
    const Line profiles = {"Form", "form",     "summary",      "a/b:c",
                           "",     "'quoted'", longName + "1", longName + "2"};
    for (const std::string& profile : profiles)
        AddForm("form" + std::to_string(&profile - profiles.data()), profile, {{"Q", true}});
    const std::vector<ResultTable> tables = Read().Tables;
    EXPECT_EQ(CsvNames(tables),
              (Line{"Form.csv", "form (2).csv", "summary (2).csv", "a_b_c.csv", "No profile.csv",
                    "_quoted_.csv", longName + "1.csv", longName + "2.csv", "Summary.csv"}));
    ASSERT_TRUE(SaveCsv());
    ASSERT_TRUE(SaveXlsx());
    const std::map<std::string, Lines> sheets = test::ReadXlsx(Out("book.xlsx"));
    EXPECT_EQ(sheets.size(), profiles.size() + 1);
    EXPECT_EQ(sheets.count(longName.substr(0, 31)), 1U);
    EXPECT_EQ(sheets.at(longName.substr(0, 27) + " (2)")[1][1], "t:" + longName + "2");
}

TEST_F(ExportTest, DamagedDocumentsAreToldAndLeftOut) {
    AddForm("good", "P", {{"Q", true}});
    WriteText(In("cut.xml"), "<Tavrene Profile=\"P\" Image=\"cut.tif\"><OMRs");
    WriteText(In("other.XML"), "<Invoice/>");
    WriteText(In("good.tif"), "a picture");
    // Bytes that are no text would spoil the whole workbook.
    WriteText(In("odd.xml"),
              "<Tavrene Profile=\"P\" Image=\"o\xFF\xED\xA0\x80.tif\" Confidence=\"much\"><OMRs>"
              "<OMR Name=\"Q\" Checked=\"2\"/></OMRs></Tavrene>");
    const Results results = Read();
    ASSERT_EQ(results.Damaged.size(), 2U);
    EXPECT_EQ(results.Damaged[0].Document, "cut.xml");
    EXPECT_PRED2(Has, results.Damaged[0].Reason, "not XML");
    EXPECT_PRED2(Has, results.Damaged[1].Reason, "not Tavrene");
    ASSERT_TRUE(SaveCsv());
    ASSERT_TRUE(SaveXlsx());
    const std::string broken = "\uFFFD";
    EXPECT_EQ(Csv("P.csv")[2],
              (Line{"o" + broken + broken + broken + broken + ".tif", "P", "0", "much", "0"}));
    EXPECT_EQ(test::ReadXlsx(Out("book.xlsx")).at("P").size(), 3U);
}

TEST_F(ExportTest, AnEmptyFolderGivesAnEmptySummary) {
    ASSERT_TRUE(SaveCsv());
    EXPECT_EQ(ReadText(Out("Summary.csv")), "Profile,Group,Box,Checked,Empty\r\n");
    ASSERT_TRUE(SaveXlsx());
    EXPECT_EQ(test::ReadXlsx(Out("book.xlsx")).size(), 1U);
}

TEST_F(ExportTest, WhatIsEndedOrFailsLeavesTheOldFiles) {
    for (const char* name : {"a", "b", "c"})
        AddForm(name, name, {{"Q", true}});
    WriteText(Out("a.csv"), "old");
    WriteText(Out("book.xlsx"), "old");
    EXPECT_FALSE(ReadResults(files_, in_.Path() + "/", EndAfter(2)));
    EXPECT_FALSE(SaveCsv({}, EndAfter(2)));
    EXPECT_FALSE(SaveXlsx(EndAfter(2)));
    files_.refuse = [](const std::string& operation, const std::string&) { return operation == "write"; };
    EXPECT_TRUE(Has(test::FaultOf([this] { SaveXlsx(); }), "book.xlsx"));
    files_.refuse = [](const std::string& operation, const std::string& path) {
        return operation == "write" && path.ends_with("c.csv");
    };
    EXPECT_TRUE(Has(test::FaultOf([this] { SaveCsv(); }), "c.csv"));
    EXPECT_EQ(files_.List(out_.Path(), ".*").size() + files_.List(out_.Path(), "*").size(), 2U);
    EXPECT_EQ(ReadText(Out("a.csv")) + ReadText(Out("book.xlsx")), "oldold");
}

TEST_F(ExportTest, ATableBeyondASheetIsRefusedWhole) {
    ResultTable table{"P", {}, std::vector<FormRow>(1)};
    table.Boxes.resize(16'380, {"Q"});
    const std::vector<ResultTable> tables = {table};
    const auto save = [&] { ExportXlsx(files_, tables, groups_, Out("book.xlsx"), GoOn); };
    EXPECT_TRUE(Has(test::FaultOf(save), "room for 16384 columns"));
    EXPECT_FALSE(files_.FileExists(Out("book.xlsx")));
}

}  // namespace
}  // namespace tavrene::results
