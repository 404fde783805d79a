#include "review/DoubtSheet.h"

#include <algorithm>
#include <exception>
#include <set>
#include <tuple>
#include <utility>

#include "app/Reason.h"
#include "profiles/BoxGroups.h"

namespace tavrene::review {
namespace {

std::vector<SheetBox> BoxesInDoubt(const std::string& document, const FormDoubts& doubts) {
    std::vector<SheetBox> boxes;
    for (const DoubtfulBox& box : doubts)
        boxes.push_back({document, box.row, box.isChecked, box.reason, box.ink});
    return boxes;
}

// What looks alike lies together, and what is most likely to be wrong before the rest: of the marks those
// with little ink, of the empty boxes those with much.
auto Doubtfulness(const SheetBox& box) {
    return std::tuple(box.Reason, box.IsChecked ? box.Ink : -box.Ink);
}

// Gives the number of marks that the person sees otherwise.
int Correct(OpenForm& form, std::span<const SheetBox> judged) {
    int corrected = 0;
    for (const SheetBox& box : judged) {
        recognition::ResultMark& mark = form.Marks.at(static_cast<std::size_t>(box.Row) - 1);
        corrected += mark.Checked == box.IsChecked ? 0 : 1;
        mark.Checked = box.IsChecked;
    }
    return corrected;
}

}  // namespace

DoubtSheet::DoubtSheet(const ReviewContext& context, const app::WorkingFolders& folders,
                       const std::vector<profiles::ProfileRecord>& profiles, ReviewList& list,
                       DoubtFinder& doubts)
    : context_(context),
      folders_(folders),
      profiles_(profiles),
      list_(list),
      doubts_(doubts),
      saver_(context, folders, list) {}

std::vector<std::string> DoubtSheet::BoxNames() const {
    std::set<std::string> used;
    for (const ReviewLine& line : list_.Lines())
        used.insert(line.Profile);
    std::vector<std::string> names;
    std::set<std::string> known;
    for (const profiles::ProfileRecord& profile : profiles_)
        if (used.contains(profile.Name))
            for (const std::string& name : profiles::NamesOf(profile))
                if (known.insert(name).second)
                    names.push_back(name);
    return names;
}

std::vector<SheetBox> DoubtSheet::Begin(const std::string& boxName) {
    boxName_ = boxName;
    left_.clear();
    for (const ReviewLine& line : list_.Lines())
        if (!boxName_.empty() || list_.IsUncounted(line))
            left_.push_back(line.Document);
    std::vector<SheetBox> known;
    if (boxName_.empty())
        for (const auto& [document, doubts] : list_.InDoubt())
            std::ranges::copy(BoxesInDoubt(document, doubts), std::back_inserter(known));
    std::ranges::stable_sort(known, {}, Doubtfulness);
    return known;
}

std::optional<std::vector<SheetBox>> DoubtSheet::LookAtNext() {
    if (left_.empty())
        return std::nullopt;
    const std::string document = std::move(left_.front());
    left_.pop_front();
    return boxName_.empty() ? BoxesOf(document) : BoxesOfName(document);
}

std::vector<SheetBox> DoubtSheet::BoxesOf(const std::string& document) {
    const std::optional<std::size_t> line = list_.IndexOf(document);
    if (!line || list_.CountOf(*line) == 0)
        return {};
    const FormDoubts* const doubts = list_.DoubtsOf(document);
    return doubts == nullptr ? std::vector<SheetBox>() : BoxesInDoubt(document, *doubts);
}

// A document that cannot be read has no boxes: opening the form tells what is wrong with it.
std::vector<SheetBox> DoubtSheet::BoxesOfName(const std::string& document) {
    std::vector<SheetBox> boxes;
    try {
        const std::vector<recognition::ResultMark> marks = Load(document).Marks;
        for (std::size_t k = 0; k < marks.size(); ++k)
            if (marks[k].Name == boxName_)
                boxes.push_back({document, static_cast<int>(k) + 1, marks[k].Checked});
    } catch (const std::exception&) {
        return {};
    }
    return boxes;
}

std::optional<LookedAt> DoubtSheet::PictureOf(const std::string& document) {
    return list_.IsAsItWas(document) ? doubts_.LookAt(list_.FormOf(document)) : std::nullopt;
}

// As much of it as saving takes.
OpenForm DoubtSheet::Load(const std::string& document) const {
    OpenForm form;
    form.Name = app::BaseName(document);
    form.Document = document;
    form.Result = recognition::ResultDocument::Load(context_.files, folders_.ProcessOut + document);
    form.Marks = form.Result.Marks();
    form.Profile.Name = form.SavedProfile = form.Result.Profile();
    return form;
}

DoubtSheet::Outcome DoubtSheet::Confirm(std::span<const SheetBox> judged) {
    std::vector<SheetBox> sorted(judged.begin(), judged.end());
    std::ranges::stable_sort(sorted, {}, &SheetBox::Document);
    Outcome outcome;
    for (auto from = sorted.begin(); from != sorted.end();) {
        const auto to = std::find_if(from, sorted.end(),
                                     [&](const SheetBox& box) { return box.Document != from->Document; });
        try {
            ConfirmForm({from, to}, outcome);
        } catch (const std::exception& error) {
            outcome.failures.emplace_back(app::ReasonOf(error));
        }
        from = to;
    }
    return outcome;
}

void DoubtSheet::ConfirmForm(std::span<const SheetBox> judged, Outcome& outcome) {
    const std::string& document = judged.front().Document;
    list_.RequireAsItWas(document);
    OpenForm form = Load(document);
    const int corrected = Correct(form, judged);
    const FormDoubts* known = form.Result.IsReviewed() ? nullptr : list_.DoubtsOf(document);
    if (known == nullptr && corrected > 0 && !form.Result.IsReviewed())
        known = doubts_.Find(list_.FormOf(document));
    FormDoubts left = known == nullptr ? FormDoubts() : *known;
    for (const SheetBox& box : judged)
        std::erase_if(left, [&box](const DoubtfulBox& doubt) { return doubt.row == box.Row; });
    // To have looked at one box of a form that nothing is doubted of is no review of it.
    const bool isReviewed = known != nullptr && !known->empty() && left.empty();
    if (isReviewed)
        saver_.SaveReviewed(form);
    else if (corrected > 0)
        saver_.SaveCorrected(form);
    // What cannot be read is not free of doubt because one of its boxes was corrected.
    if (known != nullptr || form.Result.IsReviewed())
        list_.SetDoubts(document, std::move(left));
    else
        list_.Saved(document);
    outcome.reviewed += isReviewed ? 1 : 0;
    outcome.corrected += corrected;
    outcome.done.push_back(document);
}

}  // namespace tavrene::review
