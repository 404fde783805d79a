#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <vector>

#include "batch/Options.h"
#include "support/SourceFolder.h"
#include "support/TempFolder.h"

namespace tavrene::batch {
namespace {

std::optional<Options> Read(std::vector<std::string> words) {
    std::vector<char*> arguments;
    words.insert(words.begin(), "tavrene-batch");
    for (std::string& word : words)
        arguments.push_back(word.data());
    // The C library expects an end to the list.
    arguments.push_back(nullptr);
    return ReadOptions(std::span(arguments).first(arguments.size() - 1));
}

TEST(OptionsTest, TakesTheFolderWhereverItStandsAndRefusesTheRest) {
    const auto read = Read({"--settings", "s.ini", "forms/.//", "--export=/x/../tables/", "--jobs", "12",
                            "--precise", "--doubts", "--watch", "--json"});
    ASSERT_TRUE(read);
    const std::string here = std::filesystem::current_path().string() + "/";
    EXPECT_EQ(read->folder + "|" + read->settings + "|" + read->exportTo,
              here + "forms|" + here + "s.ini|/tables");
    EXPECT_EQ(read->jobs, 12);
    EXPECT_EQ(Read({"forms", "--claim=5"})->patience, 5);
    EXPECT_EQ(Read({"forms", "--claim"})->patience, 60);
    EXPECT_TRUE(read->precise && read->doubts && read->watch && read->json);
    EXPECT_TRUE(Read({"--help"})->help);
    EXPECT_TRUE(Read({"--version", "a", "b"})->version);
    for (const std::vector<std::string>& wrong : {std::vector<std::string>{},
                                                  {"a", "b"},
                                                  {"a", "--watch", "--claim"},
                                                  {"a", "--groups"},
                                                  {"a", "--nonsense"},
                                                  {"a", "--settings"},
                                                  {"a", "--settings="},
                                                  {"a", "--jobs", "0"},
                                                  {"a", "--jobs=2x"},
                                                  {"a", "--export", ""}})
        EXPECT_FALSE(Read(wrong)) << (wrong.empty() ? "" : wrong.back());
}

TEST(OptionsTest, TheManPageTellsOfEachOption) {
    std::string page = test::ReadText(test::SourceFolder() + "/packaging/tavrene-batch.1.in");
    std::erase(page, '\\');
    int options = 0;
    std::istringstream words(kUsage);
    for (std::string word; words >> word;) {
        if (!word.starts_with("--") || word.size() < 4)
            continue;
        ++options;
        word.resize(std::min(word.find_first_not_of("abcdefghijklmnopqrstuvwxyz", 2), word.size()));
        EXPECT_NE(page.find(word), std::string::npos) << word;
    }
    EXPECT_GT(options, 10);
}

}  // namespace
}  // namespace tavrene::batch
