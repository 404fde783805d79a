#include <array>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <optional>
#include <string>

#include "boxes/BoxScore.h"
#include "boxes/ScorePicture.h"

namespace {

using namespace tavrene::samples;

constexpr const char* kUsage =
    "Scores box finding on painted forms whose boxes are known.\n"
    "  tavrene-score-boxes [--sample N] [--pages TEXT]        table by class and thickness\n"
    "  tavrene-score-boxes --ledger [--sample N]              the same as lines for the tests: class, true\n"
    "                                                         boxes, found, false, parted by tabs\n"
    "  tavrene-score-boxes --markdown [--sample N]            the table of docs/box-finding.md\n"
    "  tavrene-score-boxes --list [TEXT]                      score of every page, with its number\n"
    "  tavrene-score-boxes --picture N FILE.png [--step K]    page N: right boxes green, missed blue,\n"
    "                                                         false red; with --step the segments after\n"
    "                                                         step K instead\n"
    "--sample N takes every N-th page; --pages TEXT those whose name holds TEXT.\n";

struct Options {
    int Sample = 1;
    std::string Pages;
    bool List = false;
    bool Ledger = false;
    bool Markdown = false;
    std::optional<std::size_t> Picture;
    std::string PictureFile;
    std::optional<int> Step;
};

// No options when the arguments make no sense.
std::optional<Options> ParseArguments(int count, char** arguments) {
    Options options;
    for (int index = 1; index < count; ++index) {
        const std::string argument = arguments[index];
        const int left = count - index - 1;
        if (argument == "--sample" && left >= 1) {
            options.Sample = std::atoi(arguments[++index]);
        } else if (argument == "--pages" && left >= 1) {
            options.Pages = arguments[++index];
        } else if (argument == "--step" && left >= 1) {
            options.Step = std::atoi(arguments[++index]);
        } else if (argument == "--picture" && left >= 2) {
            options.Picture = static_cast<std::size_t>(std::atoi(arguments[++index]));
            options.PictureFile = arguments[++index];
        } else if (argument == "--ledger") {
            options.Ledger = true;
        } else if (argument == "--markdown") {
            options.Markdown = true;
        } else if (argument == "--list") {
            options.List = true;
            if (left >= 1)
                options.Pages = arguments[++index];
        } else {
            return std::nullopt;
        }
    }
    return options;
}

PageScore Score(const BoxPagePlan& plan) {
    const BoxPage page = PaintPage(plan);
    return ScorePage(page.GroundTruth, FindOnPage(page).Second);
}

void PrintTally(const std::string& name, const Tally& tally) {
    std::printf("%-52s %6zu %6zu %6zu %8.2f %8.2f %6.1f\n", name.c_str(), tally.True, tally.Right,
                tally.False, tally.Recall(), tally.Precision(), tally.WorstEdge);
}

void PrintHead() {
    std::printf("%-52s %6s %6s %6s %8s %8s %6s\n", "class, outline", "boxes", "found", "false", "recall",
                "precis.", "edge");
}

void ListPages(const std::vector<BoxPagePlan>& plans, const std::string& part) {
    PrintHead();
    for (std::size_t number = 0; number < plans.size(); ++number) {
        const std::string name = plans[number].Name();
        if (name.find(part) == std::string::npos)
            continue;
        Tally tally;
        tally.Add(Score(plans[number]));
        PrintTally(std::to_string(number) + ": " + name, tally);
    }
}

void PrintTable(const std::vector<ScoreRow>& rows) {
    std::printf("%-44s %6s  %-15s %-15s %-22s\n", "", "", "rules", "first look", "with second look");
    std::printf("%-44s %6s  %7s %6s  %7s %6s  %7s %6s %6s\n", "class, outline", "boxes", "recall", "false",
                "recall", "false", "recall", "false", "edge");
    for (const ScoreRow& row : rows)
        std::printf("%-44s %6zu  %7.1f %6zu  %7.1f %6zu  %7.1f %6zu %6.1f\n", row.Name.c_str(),
                    row.First.True, row.Rules.Recall(), row.Rules.False, row.First.Recall(), row.First.False,
                    row.Second.Recall(), row.Second.False, row.Second.WorstEdge);
}

void PrintLedger(const std::vector<ScoreRow>& rows) {
    for (const ScoreRow& row : rows)
        std::printf("%s\t%zu\t%zu\t%zu\t%zu\t%zu\n", row.Name.c_str(), row.First.True, row.First.Right,
                    row.First.False, row.Second.Right, row.Second.False);
}

// Recall and false boxes; a page without boxes has no recall.
std::string Cell(const Tally& tally) {
    std::array<char, 16> recall{};
    std::snprintf(recall.data(), recall.size(), "%.1f", tally.Recall());
    return (tally.True == 0 ? "-" : std::string(recall.data())) + ", " + std::to_string(tally.False);
}

void PrintMarkdown(const std::vector<ScoreRow>& rows) {
    std::printf("| class, outline | boxes | rules: recall, false | first look | with the second look |\n");
    std::printf("|---|---|---|---|---|\n");
    for (const ScoreRow& row : rows)
        std::printf("| %s | %zu | %s | %s | %s |\n", row.Name.c_str(), row.First.True,
                    Cell(row.Rules).c_str(), Cell(row.First).c_str(), Cell(row.Second).c_str());
}

void Run(const Options& options) {
    const std::vector<BoxPagePlan> plans = PlanPages(options.Sample);
    if (options.Picture) {
        const BoxPage page = PaintPage(plans.at(*options.Picture));
        SavePicture(options.Step ? PictureOfSegments(page, *options.Step) : PictureOfScore(page),
                    options.PictureFile);
    } else if (options.List) {
        ListPages(plans, options.Pages);
    } else if (options.Markdown) {
        PrintMarkdown(ScoreTable(plans, options.Pages));
    } else if (options.Ledger) {
        PrintLedger(ScoreTable(plans, options.Pages));
    } else {
        PrintTable(ScoreTable(plans, options.Pages));
    }
}

}  // namespace

int main(int count, char** arguments) {
    const std::optional<Options> options = ParseArguments(count, arguments);
    if (!options) {
        std::cerr << kUsage;
        return 2;
    }
    try {
        Run(*options);
    } catch (const std::exception& error) {
        std::cerr << "score-boxes: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
