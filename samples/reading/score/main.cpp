#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <optional>
#include <string>

#include "reading/ReadingScore.h"

namespace {

using namespace tavrene::samples;

struct Options {
    std::size_t Pages = 20;
    Seeds Which = Seeds::Odd;
    std::string Part;
    bool Tell = false;
};

std::optional<Options> ParseArguments(int count, char** arguments) {
    Options options;
    for (int index = 1; index < count; ++index) {
        const std::string argument = arguments[index];
        const int left = count - index - 1;
        if (argument == "--pages" && left >= 1)
            options.Pages = static_cast<std::size_t>(std::atoi(arguments[++index]));
        else if (argument == "--class" && left >= 1)
            options.Part = arguments[++index];
        else if (argument == "--even")
            options.Which = Seeds::Even;
        else if (argument == "--tell")
            options.Tell = true;
        else
            return std::nullopt;
    }
    return options;
}

void PrintRow(const ReadingRow& row) {
    const auto percent = [](std::size_t part, std::size_t of) {
        return of == 0 ? 0.0 : 100.0 * static_cast<double>(part) / static_cast<double>(of);
    };
    std::printf("%-40s %4zu | %6.1f %3zu %7.2f | %6.1f %3zu %7.2f | %5zu %6.1f\n", row.Class->Name.c_str(),
                row.Pages, percent(row.Described.Recognised, row.Pages), row.Described.Mistaken,
                percent(row.Described.Right, row.Described.Boxes), percent(row.Precise.Recognised, row.Pages),
                row.Precise.Mistaken, percent(row.Precise.Right, row.Precise.Boxes), row.DescribedErrors,
                percent(row.Flagged, row.DescribedErrors));
}

}  // namespace

int main(int count, char** arguments) {
    const std::optional<Options> options = ParseArguments(count, arguments);
    if (!options)
        return 2;
    const auto tell = [](const std::string& line) { std::cerr << line << '\n'; };
    for (const ReadingRow& row :
         ScoreReadings(options->Pages, options->Which, options->Part,
                       options->Tell ? std::function<void(const std::string&)>(tell) : nullptr))
        PrintRow(row);
    return 0;
}
