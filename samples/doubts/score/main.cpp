#include <cstdlib>
#include <exception>
#include <iostream>
#include <string>

#include "doubts/DoubtScore.h"

namespace {

using namespace tavrene::samples;

constexpr const char* kUsage =
    "Scores the doubts about painted forms whose marks are known.\n"
    "  tavrene-score-doubts [--pages N] [--from N] [--step N] [--alone] [--tell]\n"
    "One line a class, fields parted by tabs: name, forms, boxes, misread, of these in doubt, in doubt at "
    "all.\n"
    "--from is the first seed, --step how far the next one is; --alone asks for no second opinion; --tell "
    "gives a line for every box instead.\n";

}  // namespace

int main(int count, char** arguments) {
    ScoreWish wish;
    bool tells = false;
    for (int k = 1; k < count; ++k) {
        const std::string argument = arguments[k];
        const auto number = [&] { return std::strtoul(arguments[++k], nullptr, 10); };
        if (argument == "--tell") {
            tells = true;
        } else if (argument == "--alone") {
            wish.SecondOpinion = false;
        } else if (argument == "--pages" && k + 1 < count) {
            wish.Pages = number();
        } else if (argument == "--from" && k + 1 < count) {
            wish.First = number();
        } else if (argument == "--step" && k + 1 < count) {
            wish.Step = number();
        } else {
            std::cerr << kUsage;
            return 2;
        }
    }
    try {
        for (const DoubtClass& kind : DoubtClasses()) {
            const DoubtTally tally =
                tells ? ScoreDoubts(kind, wish, [](const std::string& line) { std::cout << line << '\n'; })
                      : ScoreDoubts(kind, wish);
            (tells ? std::cerr : std::cout)
                << kind.Name << '\t' << tally.Forms << '\t' << tally.Boxes << '\t' << tally.Misread << '\t'
                << tally.MisreadInDoubt << '\t' << tally.InDoubt << std::endl;
        }
    } catch (const std::exception& error) {
        std::cerr << "score-doubts: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
