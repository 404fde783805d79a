#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>

#include "boxes/BoxScore.h"
#include "support/SourceFolder.h"

namespace tavrene::test {
namespace {

// Every so many pages of the ground-truth set; the ledger was written with the same number.
constexpr int kSample = 13;

struct LedgerLine {
    std::size_t True = 0;
    std::size_t Right = 0;
    std::size_t False = 0;
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
        fields >> line.True >> line.Right >> line.False;
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
        EXPECT_EQ(row.Sum.True, line.True) << "the pages have changed: write the ledger anew";
        EXPECT_GE(row.Sum.Right, line.Right);
        EXPECT_LE(row.Sum.False, line.False);
    }
}

}  // namespace
}  // namespace tavrene::test
