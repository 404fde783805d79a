#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <string>

#include "reading/ReadingReport.h"

namespace {

using namespace tavrene::samples;

constexpr const char* kUsage =
    "Scores both readings on painted scans whose marks are known.\n"
    "  tavrene-score-reading [--pages N] [--strangers N] [--class TEXT] [--from N] [--even] [--tell]\n"
    "                                     one line a class, fields parted by tabs: name, pages, boxes; "
    "plain:\n"
    "                                     forms recognised, mistaken, boxes of these, right; the same "
    "precise;\n"
    "                                     errors of the plain reading, and how many the other one flags\n"
    "  tavrene-score-reading --table FILE   the lines of FILE as a table\n"
    "  tavrene-score-reading --curves FILE  the same as a picture (SVG)\n"
    "--from leaves out the first N pages of every class; --even takes the seeds on which the constants were\n"
    "chosen; --tell names every page that goes wrong.\n";

struct Options {
    std::size_t Pages = 16;
    std::size_t Strangers = 16;
    SeedRange Seeds;
    std::string Part;
    std::string Table;
    std::string Curves;
    bool Tell = false;
};

// No options when the arguments make no sense.
std::optional<Options> ParseArguments(int count, char** arguments) {
    Options options;
    for (int index = 1; index < count; ++index) {
        const std::string argument = arguments[index];
        const int left = count - index - 1;
        if (argument == "--even") {
            options.Seeds.Even = true;
        } else if (argument == "--tell") {
            options.Tell = true;
        } else if (left < 1) {
            return std::nullopt;
        } else if (argument == "--pages") {
            options.Pages = static_cast<std::size_t>(std::atoi(arguments[++index]));
        } else if (argument == "--strangers") {
            options.Strangers = static_cast<std::size_t>(std::atoi(arguments[++index]));
        } else if (argument == "--from") {
            options.Seeds.First = static_cast<std::size_t>(std::atoi(arguments[++index]));
        } else if (argument == "--class") {
            options.Part = arguments[++index];
        } else if (argument == "--table") {
            options.Table = arguments[++index];
        } else if (argument == "--curves") {
            options.Curves = arguments[++index];
        } else {
            return std::nullopt;
        }
    }
    return options;
}

std::vector<ReadingRow> RowsOf(const std::string& path) {
    std::ifstream file(path);
    if (!file)
        throw std::runtime_error("there is no file " + path);
    return RowsFrom(file);
}

void Score(const Options& options) {
    const auto tell = [](const std::string& line) { std::cerr << line << '\n'; };
    for (const ReadingClass& kind : ReadingClasses()) {
        if (kind.Name.find(options.Part) == std::string::npos)
            continue;
        const std::size_t pages = kind.Stranger ? options.Strangers : options.Pages;
        const ReadingRow row =
            ScoreClass(kind, pages, options.Seeds,
                       options.Tell ? std::function<void(const std::string&)>(tell) : nullptr);
        std::cout << LineOf(row) << std::endl;  // at once: the whole takes a while
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
        if (!options->Table.empty())
            std::cout << TableOf(RowsOf(options->Table));
        else if (!options->Curves.empty())
            std::cout << CurvesOf(RowsOf(options->Curves));
        else
            Score(*options);
    } catch (const std::exception& error) {
        std::cerr << "score-reading: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
