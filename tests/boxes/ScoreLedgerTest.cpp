#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>

#include "boxes/BoxScore.h"
#include "support/SourceFolder.h"

namespace tavrene::test {
namespace {

// Every so many pages of the ground-truth set; the ledger was written with the same number.
constexpr int kSample = 37;

struct LedgerLine {
    std::size_t True = 0;
    std::size_t Right = 0;
    std::size_t False = 0;
    std::size_t RightInAll = 0;  // With everything that the second look offers.
    std::size_t FalseInAll = 0;
};

std::map<std::string, LedgerLine> ReadLedger() {
    std::map<std::string, LedgerLine> ledger;
    std::ifstream file(test::SourceFolder() + "/tests/boxes/ledger.tsv");
    for (std::string text; std::getline(file, text);) {
        if (text.empty() || text.front() == '#')
            continue;
        std::istringstream fields(text);
        std::string name;
        LedgerLine line;
        std::getline(fields, name, '\t');
        fields >> line.True >> line.Right >> line.False >> line.RightInAll >> line.FalseInAll;
        ledger[name] = line;
    }
    return ledger;
}

TEST(ScoreLedger, NoClassFindsLessThanBefore) {
    const std::map<std::string, LedgerLine> ledger = ReadLedger();
    const std::vector<samples::ScoreRow> rows = samples::ScoreTable(samples::PlanPages(kSample));
    ASSERT_EQ(ledger.size(), rows.size());
    for (const samples::ScoreRow& row : rows) {
        SCOPED_TRACE(row.Name);
        ASSERT_TRUE(ledger.contains(row.Name));
        const LedgerLine& line = ledger.at(row.Name);
        EXPECT_EQ(row.First.True, line.True) << "the pages have changed: write the ledger anew";
        EXPECT_GE(row.First.Right, line.Right);
        EXPECT_LE(row.First.False, line.False);
        EXPECT_GE(row.Second.Right, line.RightInAll);
        EXPECT_LE(row.Second.False, line.FalseInAll);
    }
}

}  // namespace
}  // namespace tavrene::test
