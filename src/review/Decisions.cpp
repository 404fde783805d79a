#include "review/Decisions.h"

#include <algorithm>
#include <utility>

namespace tavrene::review {

void Decisions::Settle() {
    if (const std::optional<FormMove> done = mover_.Settle())
        Tell(*done);
}

// What an earlier move left half done is settled first, since there is one note for all moves.
void Decisions::Move(const FormMove& move) {
    Settle();
    mover_.Move(move);
    decided_.back().push_back(Remembered(move));
    Tell(move);
}

bool Decisions::HasAny() const {
    return std::ranges::any_of(decided_, [](const auto& forms) { return !forms.empty(); });
}

Decisions::Decided Decisions::Remembered(const FormMove& move) const {
    const std::string& folder = mover_.FolderOf(move.decision);
    return {move, files_.Fingerprint(folder + move.Image), files_.Fingerprint(folder + move.Document)};
}

bool Decisions::IsAsItWas(const Decided& decided) const {
    const Decided now = Remembered(decided.move);
    return now.image == decided.image && now.document == decided.document;
}

Decisions::TakenBack Decisions::TakeBack(const WorkWatch& goesOn) {
    Settle();
    DropEmpty();
    TakenBack result;
    const std::vector<Decided> last = std::exchange(decided_.back(), {});
    std::size_t done = 0;
    for (; done < last.size() && goesOn(done, last.size()); ++done) {
        FormMove back = last[done].move;
        back.isBack = true;
        if (!IsAsItWas(last[done])) {
            result.failures.push_back("Form [" + app::BaseName(back.Document) + "] stays in " +
                                      mover_.FolderOf(back.decision) + ": it was changed there or is gone");
            continue;
        }
        try {
            mover_.Move(back);
            result.documents.push_back(back.Document);
            Tell(back);
        } catch (const app::FileError& error) {
            result.failures.emplace_back(error.what());
            decided_.back().push_back(last[done]);
        }
    }
    decided_.back().insert(decided_.back().end(), last.begin() + static_cast<std::ptrdiff_t>(done),
                           last.end());
    DropEmpty();
    return result;
}

void Decisions::DropEmpty() {
    while (!decided_.empty() && decided_.back().empty())
        decided_.pop_back();
}

void Decisions::Tell(const FormMove& move) {
    const char* const word = move.decision == Decision::Accept ? "accepted." : "rejected.";
    log_.LogProcessEvent("Form [" + app::BaseName(move.Document) +
                         (move.isBack ? "] brought back, no longer " : "] ") + word);
    mover_.Forget();
}

}  // namespace tavrene::review
