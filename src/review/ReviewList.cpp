#include "review/ReviewList.h"

#include <algorithm>
#include <exception>
#include <map>
#include <set>
#include <string_view>
#include <utility>

#include "app/Reason.h"
#include "recognition/ResultDocument.h"

namespace tavrene::review {

ReviewList::ReviewList(const ReviewContext& context, const app::WorkingFolders& folders, DoubtFinder& doubts)
    : context_(context), folders_(folders), doubts_(doubts) {}

void ReviewList::Fill(std::span<const profiles::ProfileRecord> profiles) {
    std::vector<std::string> names;
    for (const profiles::ProfileRecord& profile : profiles)
        names.push_back(profile.Name);
    context_.side.choice.ShowProfiles(names);
    entries_.clear();
    places_.clear();
    lines_.clear();
    uncountable_.clear();
    doubts_.Begin();
    context_.side.lines.ShowLines({});
    ShowCounts();
    folder_ = context_.files.Fingerprint(folders_.ProcessOut);
    for (const std::string& document : context_.files.List(folders_.ProcessOut, "*.xml")) {
        entries_.push_back(Read(document));
        if (entries_.back().line)
            lines_.push_back(*entries_.back().line);
    }
    NotePlaces();
    context_.side.lines.ShowLines(lines_);
    const auto missing = std::count_if(entries_.begin(), entries_.end(), [](const Entry& entry) {
        return !entry.line && !entry.image.empty();
    });
    if (missing > 0)
        context_.person.SetPanel(app::Panel::Message,
                                 "Warning: Images referred in <" + std::to_string(missing) +
                                     "> Forms were missing and hence not loaded. Please refer process log.");
    ShowCounts();
}

ReviewList::Entry ReviewList::Read(const std::string& document) {
    const std::string path = folders_.ProcessOut + document;
    uncountable_.erase(document);
    Entry entry{document, context_.files.Fingerprint(path), {}, std::nullopt};
    try {
        const auto result = recognition::ResultDocument::Load(context_.files, path);
        entry.image = folders_.ProcessOut + result.Image();
        if (context_.files.FileExists(entry.image))
            entry.line = ReviewLine{app::BaseName(document), document, result.IsReviewed(),
                                    result.Confidence(), result.Profile()};
        else
            context_.log.LogProcessEvent("Review: Image <" + entry.image + "> does not exist.");
    } catch (const std::exception& error) {
        context_.log.LogProcessEvent(std::string("Review: Form left out: ") + app::ReasonOf(error));
    }
    if (entry.line)
        entry.line->Doubts = KnownDoubts(entry);
    return entry;
}

FormOnDisk ReviewList::OnDisk(const Entry& entry) const {
    return {entry.document, entry.fingerprint, entry.image, entry.line->Profile};
}

std::optional<int> ReviewList::KnownDoubts(const Entry& entry) {
    const FormDoubts* const known = entry.line->Reviewed ? nullptr : doubts_.Known(OnDisk(entry));
    return known == nullptr ? std::nullopt : std::optional(static_cast<int>(known->size()));
}

// Thousands of forms that are looked up one by one must not each be searched among all.
void ReviewList::NotePlaces() {
    places_.clear();
    for (std::size_t k = 0; k < entries_.size(); ++k)
        places_.emplace(entries_[k].document, k);
}

FormOnDisk ReviewList::FormOf(const std::string& document) const {
    return OnDisk(EntryOf(document));
}

void ReviewList::RequireAsItWas(const std::string& document) const {
    if (!IsAsItWas(document))
        throw app::FileError("Form [" + app::BaseName(document) +
                             "] stays as it is: it was changed by somebody else, or is gone");
}

bool ReviewList::IsAsItWas(const std::string& document) const {
    const auto place = places_.find(document);
    return place != places_.end() && entries_[place->second].line && IsCurrent(entries_[place->second]);
}

std::vector<std::pair<std::string, FormDoubts>> ReviewList::InDoubt() {
    std::vector<std::pair<std::string, FormDoubts>> forms;
    for (const Entry& entry : entries_) {
        if (!entry.line || entry.line->Doubts.value_or(0) == 0)
            continue;
        if (const FormDoubts* const doubts = doubts_.Known(OnDisk(entry)))
            forms.emplace_back(entry.document, *doubts);
    }
    return forms;
}

void ReviewList::SetDoubts(const std::string& document, FormDoubts doubts) {
    const std::optional<std::size_t> index = IndexOf(document);
    if (!index)
        return;
    ReviewLine& line = lines_[*index];
    line.Doubts = line.Reviewed ? std::nullopt : std::optional(static_cast<int>(doubts.size()));
    doubts_.Set(OnDisk(TakeOver(*index)), std::move(doubts));
}

// What this program has written is no change by somebody else.
const ReviewList::Entry& ReviewList::TakeOver(std::size_t index) {
    Entry& entry = EntryOf(lines_[index].Document);
    entry.fingerprint = context_.files.Fingerprint(folders_.ProcessOut + entry.document);
    entry.line = lines_[index];
    context_.side.lines.ChangeLine(index, lines_[index]);
    return entry;
}

bool ReviewList::CountNext() {
    for (std::size_t line = 0; line < lines_.size(); ++line) {
        if (IsUncounted(lines_[line])) {
            Count(line);
            return true;
        }
    }
    doubts_.Keep();
    return false;
}

std::size_t ReviewList::Uncounted() const {
    return static_cast<std::size_t>(
        std::ranges::count_if(lines_, [this](const ReviewLine& line) { return IsUncounted(line); }));
}

int ReviewList::CountOf(std::size_t line) {
    if (IsUncounted(lines_.at(line)))
        Count(line);
    return lines_[line].Doubts.value_or(0);
}

bool ReviewList::IsUncounted(const ReviewLine& line) const {
    return !line.Doubts && !line.Reviewed && !uncountable_.contains(line.Document);
}

void ReviewList::Count(std::size_t line) {
    Entry& entry = EntryOf(lines_[line].Document);
    const FormDoubts* const found = doubts_.Find(OnDisk(entry));
    if (found == nullptr) {
        uncountable_.insert(entry.document);
        return;
    }
    lines_[line].Doubts = entry.line->Doubts = static_cast<int>(found->size());
    context_.side.lines.ChangeLine(line, lines_[line]);
}

bool ReviewList::IsCurrent(const Entry& entry) const {
    if (context_.files.Fingerprint(folders_.ProcessOut + entry.document) != entry.fingerprint)
        return false;
    return entry.image.empty() || context_.files.FileExists(entry.image) == entry.line.has_value();
}

// Counts of another threshold or way of reading are none.
void ReviewList::FollowRules() {
    if (!doubts_.HaveRulesChanged())
        return;
    uncountable_.clear();
    for (std::size_t line = 0; line < lines_.size(); ++line) {
        Entry& entry = EntryOf(lines_[line].Document);
        lines_[line].Doubts = entry.line->Doubts = KnownDoubts(entry);
        context_.side.lines.ChangeLine(line, lines_[line]);
    }
}

void ReviewList::Follow() {
    FollowRules();
    // A form is opened within a frame's time, and a folder of thousands is not listed in one.
    const std::string folder = context_.files.Fingerprint(folders_.ProcessOut);
    if (folder == folder_)
        return;
    std::vector<std::string> documents;
    try {
        documents = context_.files.List(folders_.ProcessOut, "*.xml");
    } catch (const app::FileError&) {
        return;
    }
    folder_ = folder;
    std::map<std::string, Entry> known;
    for (Entry& entry : entries_)
        known.emplace(entry.document, std::move(entry));
    entries_.clear();
    std::vector<ReviewLine> lines;
    for (const std::string& document : documents) {
        const auto old = known.find(document);
        entries_.push_back(old != known.end() && IsCurrent(old->second) ? old->second : Read(document));
        if (entries_.back().line)
            lines.push_back(*entries_.back().line);
    }
    NotePlaces();
    ShowDifference(lines);
    ShowCounts();
}

// Line by line, for a list that is shown anew would lose selection and place. Both are in the folder's order.
void ReviewList::ShowDifference(const std::vector<ReviewLine>& wanted) {
    std::set<std::string_view> documents;
    for (const ReviewLine& line : wanted)
        documents.insert(line.Document);
    std::size_t k = 0;
    for (; k < wanted.size(); ++k) {
        while (k < lines_.size() && !documents.contains(lines_[k].Document))
            RemoveAt(k);
        if (k == lines_.size() || lines_[k].Document != wanted[k].Document) {
            lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(k), wanted[k]);
            context_.side.lines.InsertLine(k, wanted[k]);
        } else if (lines_[k] != wanted[k]) {
            lines_[k] = wanted[k];
            context_.side.lines.ChangeLine(k, wanted[k]);
        }
    }
    while (lines_.size() > k)
        RemoveAt(k);
}

std::set<std::string> ReviewList::Images() const {
    std::set<std::string> images;
    for (const Entry& entry : entries_)
        if (entry.line)
            images.insert(app::FileName(entry.image));
    return images;
}

std::optional<std::size_t> ReviewList::IndexOf(const std::string& document) const {
    const auto found = std::find_if(lines_.begin(), lines_.end(), [&document](const ReviewLine& line) {
        return line.Document == document;
    });
    if (found == lines_.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - lines_.begin());
}

void ReviewList::Change(const std::string& document, bool reviewed, const std::string& confidence) {
    const std::optional<std::size_t> index = IndexOf(document);
    if (!index)
        return;
    lines_[*index].Reviewed = reviewed;
    lines_[*index].Confidence = confidence;
    lines_[*index].Doubts.reset();
    TakeOver(*index);
}

void ReviewList::Saved(const std::string& document) {
    if (const std::optional<std::size_t> index = IndexOf(document))
        TakeOver(*index);
}

void ReviewList::Remove(const std::string& document) {
    if (const std::optional<std::size_t> index = IndexOf(document))
        RemoveAt(*index);
}

void ReviewList::RemoveAt(std::size_t index) {
    lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(index));
    context_.side.lines.RemoveLine(index);
}

void ReviewList::ShowCounts() const {
    const auto reviewed =
        std::count_if(lines_.begin(), lines_.end(), [](const ReviewLine& line) { return line.Reviewed; });
    context_.person.SetPanel(
        app::Panel::File, "Reviewed: " + std::to_string(reviewed) + " of " + std::to_string(lines_.size()));
}

}  // namespace tavrene::review
