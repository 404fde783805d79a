#include "review/ReviewList.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "recognition/ResultDocument.h"

namespace tavrene::review {

ReviewList::ReviewList(const ReviewContext& context, const app::WorkingFolders& folders)
    : context_(context), folders_(folders) {}

void ReviewList::Fill(std::span<const profiles::ProfileRecord> profiles) {
    std::vector<std::string> names;
    for (const profiles::ProfileRecord& profile : profiles)
        names.push_back(profile.Name);
    context_.choice.ShowProfiles(names);
    lines_.clear();
    reviewed_ = 0;
    missing_ = 0;
    context_.lines.ShowLines({});
    ShowCounts();
    ReadLines();
    context_.lines.ShowLines(lines_);
    if (missing_ > 0)
        context_.person.SetPanel(app::Panel::Message,
                                 "Warning: Images referred in <" + std::to_string(missing_) +
                                     "> Forms were missing and hence not loaded. Please refer process log.");
    ShowCounts();
}

void ReviewList::ReadLines() {
    for (const std::string& document : context_.files.List(folders_.ProcessOut, "*.xml")) {
        try {
            std::optional<ReviewLine> line = ReadLine(document);
            if (!line)
                continue;
            reviewed_ += line->Reviewed ? 1 : 0;
            lines_.push_back(*std::move(line));
        } catch (const std::exception& error) {
            context_.log.LogProcessEvent(std::string("Review: Form left out: ") + error.what());
        }
    }
}

std::optional<ReviewLine> ReviewList::ReadLine(const std::string& document) {
    const auto result = recognition::ResultDocument::Load(context_.files, folders_.ProcessOut + document);
    const std::string image = folders_.ProcessOut + result.Image();
    if (!context_.files.FileExists(image)) {
        ++missing_;
        context_.log.LogProcessEvent("Review: Image <" + image + "> does not exist.");
        return std::nullopt;
    }
    return ReviewLine{app::BaseName(document), document, result.IsReviewed(), result.Confidence()};
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
    ReviewLine& line = lines_[*index];
    reviewed_ += reviewed ? 1 : 0;
    reviewed_ -= line.Reviewed ? 1 : 0;
    line.Reviewed = reviewed;
    line.Confidence = confidence;
    context_.lines.ChangeLine(*index, line);
}

void ReviewList::Remove(const std::string& document) {
    const std::optional<std::size_t> index = IndexOf(document);
    if (!index)
        return;
    reviewed_ -= lines_[*index].Reviewed ? 1 : 0;
    lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(*index));
    context_.lines.RemoveLine(*index);
}

void ReviewList::ShowCounts() const {
    context_.person.SetPanel(
        app::Panel::File, "Reviewed: " + std::to_string(reviewed_) + " of " + std::to_string(lines_.size()));
}

}  // namespace tavrene::review
