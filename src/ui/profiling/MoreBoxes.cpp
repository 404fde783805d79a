#include "ui/profiling/MoreBoxes.h"

#include <algorithm>
#include <variant>

#include "app/Counted.h"
#include "boxes/second/CandidateChoice.h"
#include "imaging/PageReader.h"
#include "profiles/OmrsOfBoxes.h"
#include "ui/base/EscapeWatch.h"
#include "ui/base/Shown.h"
#include "ui/commands/CandidateTexts.h"

namespace tavrene::ui {
namespace {

constexpr int kProgressSteps = 100;

imaging::PageRect PlaceOf(const profiles::OmrBox& box) {
    return {static_cast<double>(box.L), static_cast<double>(box.T), static_cast<double>(box.R - box.L),
            static_cast<double>(box.B - box.T)};
}

// Of candidates, or of what is no likely box.
template <typename Found>
std::vector<boxes::BoxRect> RectsOf(const std::vector<Found>& found) {
    std::vector<boxes::BoxRect> rects;
    rects.reserve(found.size());
    for (const Found& one : found)
        rects.push_back(one.Box);
    return rects;
}

}  // namespace

MoreBoxes::MoreBoxes(const MoreBoxesContext& context,
                     const std::function<void(const std::function<void()>&)>& take)
    : context_(context) {
    context_.pane.SetListener({[this, take](int id) { take([this, id] { PointAt(id); }); },
                               [this, take](int id) { take([this, id] { Take(id); }); },
                               [this, take] { take([this] { TakeAll(); }); }, [this] { Close(); },
                               [this](bool shown) {
                                   std::erase_if(shown_, [](const Shown& one) { return one.isUnlikely; });
                                   unlikelyLeft_ = !shown;
                                   if (shown)
                                       AddShown(RectsOf(look_.Unlikely), true);
                                   Show();
                               }});
}

// While a candidate is the one that stands out on the page, no command means another box.
void MoreBoxes::PointAt(int id) {
    context_.editor.Select(0);
    context_.page.Emphasise(-id);
}

std::string MoreBoxes::DeskKey() const {
    return context_.profile.IsOpen ? context_.profile.Path + '\n' + context_.profile.Image : "";
}

// False when the specimen cannot be read.
bool MoreBoxes::Look() {
    const auto read = imaging::ReadSpecimen(context_.files, context_.profile.Image);
    const auto* const page = std::get_if<imaging::Page>(&read);
    if (page == nullptr)
        return false;
    pageHeight_ = page->grid.Rows();
    const EscapeWatch escape;
    context_.person.SetProgressRange(kProgressSteps);
    look_ = boxes::LookAgain(page->grid, profiles::BoxesOfOmrs(context_.profile.BoxList, pageHeight_),
                             boxes::SizesOf(context_.state.settings), [&](double share) {
                                 context_.person.SetProgress(static_cast<int>(share * kProgressSteps));
                                 context_.person.RunPendingEvents();
                                 return !escape.WasPressed();
                             });
    context_.person.SetProgress(0);
    return true;
}

std::string MoreBoxes::Offer() {
    if (!context_.profile.IsOpen || !Look())
        return {};
    return commands::OfferOf(context_.profile.Count, look_);
}

void MoreBoxes::Find() {
    Close();
    context_.person.SetPanel(app::Panel::Message, "Looking for more boxes... Esc stops.");
    if (!Look()) {
        context_.person.SetPanel(app::Panel::Message, "The specimen image cannot be read as an image.");
        return;
    }
    desk_ = DeskKey();
    AddShown(RectsOf(look_.Candidates), false);
    const std::size_t likely = shown_.size();
    AddShown(RectsOf(look_.Unlikely), true);
    const std::size_t unlikely = shown_.size() - likely;
    shown_.resize(likely);
    unlikelyLeft_ = unlikely > 0;
    context_.pane.SetUnlikely(static_cast<int>(unlikely));
    context_.person.SetPanel(app::Panel::Message, commands::OutcomeOf(likely, look_));
    if (likely + unlikely == 0) {
        desk_.clear();
        return;
    }
    Show();
    context_.pane.TakeFocus();
}

// What lies over a box of the profile or over another one that is shown is left out: one of the two is taken.
void MoreBoxes::AddShown(const std::vector<boxes::BoxRect>& boxes, bool unlikely) {
    int id = 0;
    std::vector<profiles::OmrBox> known = context_.profile.BoxList;
    for (const Shown& one : shown_) {
        id = std::max(id, one.id);
        known.push_back(one.box);
    }
    std::vector<boxes::BoxRect> there = profiles::BoxesOfOmrs(known, pageHeight_);
    for (const boxes::BoxRect& box : boxes) {
        if (std::ranges::any_of(there, [&box](const auto& other) { return boxes::Overlap(box, other); }))
            continue;
        there.push_back(box);
        shown_.push_back({++id, profiles::OmrsOfBoxes({&box, 1}, pageHeight_).front(), unlikely});
    }
}

void MoreBoxes::HideRects() {
    for (int id = 1; id <= static_cast<int>(look_.Candidates.size() + look_.Unlikely.size()); ++id)
        context_.page.RemoveRect(-id);
}

void MoreBoxes::Show() {
    HideRects();
    std::vector<CandidatePane::Row> rows;
    for (const Shown& one : shown_) {
        context_.page.PutRect(-one.id, PlaceOf(one.box), imaging::RectStyle::Candidate);
        rows.push_back({one.id, ui::Shown(commands::RowOf(one.box) + (one.isUnlikely ? " (print?)" : ""))});
    }
    const auto likely = std::ranges::count(shown_, false, &Shown::isUnlikely);
    context_.pane.ShowRows(ui::Shown(commands::HeadingOf(static_cast<std::size_t>(likely), look_)), rows);
}

bool MoreBoxes::Clicked(int group) {
    if (group >= 0)
        return false;
    Take(-group);
    return true;
}

void MoreBoxes::Take(int id) {
    const auto taken =
        std::find_if(shown_.begin(), shown_.end(), [id](const Shown& one) { return one.id == id; });
    if (taken == shown_.end())
        return;
    const profiles::OmrBox box = taken->box;
    shown_.erase(taken);
    context_.editor.AddBoxes({box});
    if (shown_.empty() && !unlikelyLeft_)
        Close();
    else
        Show();
}

void MoreBoxes::TakeAll() {
    std::vector<profiles::OmrBox> boxes;
    for (const Shown& one : shown_)
        boxes.push_back(one.box);
    Close();
    if (context_.editor.AddBoxes(boxes))
        context_.person.SetPanel(app::Panel::Message, app::Counted(boxes.size(), "box", "boxes") + " added.");
}

bool MoreBoxes::Close() {
    if (desk_.empty())
        return false;
    HideRects();
    shown_.clear();
    desk_.clear();
    context_.pane.ShowRows({}, {});
    return true;
}

void MoreBoxes::Update() {
    if (!desk_.empty() && desk_ != DeskKey())
        Close();
}

}  // namespace tavrene::ui
