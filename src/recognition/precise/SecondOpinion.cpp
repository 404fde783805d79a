#include "recognition/precise/SecondOpinion.h"

#include <algorithm>

namespace tavrene::recognition {

SecondOpinion CompareReadings(int winner, std::span<const MarkReading> marks, const PreciseReading& precise) {
    SecondOpinion opinion;
    opinion.onlyPrecise = winner < 0 && precise.winner >= 0;
    opinion.otherProfile = winner >= 0 && precise.winner != winner;
    if (winner < 0 || opinion.otherProfile)
        return opinion;
    for (std::size_t k = 0; k < std::min(marks.size(), precise.marks.size()); ++k) {
        if (marks[k].Checked != precise.marks[k].Checked)
            opinion.boxes.push_back(k);
    }
    return opinion;
}

}  // namespace tavrene::recognition
