#include "review/FormScreen.h"

#include <array>
#include <cstdio>

#include "review/FormReading.h"

namespace tavrene::review {
namespace {

using app::Panel;
using imaging::RectStyle;
using recognition::ResultMark;

RectStyle StyleOf(const ResultMark& mark) {
    return mark.Checked ? RectStyle::Checked : RectStyle::Unchecked;
}

const char* ValOf(const ResultMark& mark) {
    return mark.Checked ? "1" : "0";
}

std::string InkText(const FormBox& box) {
    if (!box.ink)
        return {};
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.1f%%", *box.ink);
    return text.data();
}

std::string CheckedText(const OpenForm& form, std::size_t count) {
    return "Checked:" + std::to_string(CountChecked(form)) + " of " + std::to_string(count);
}

}  // namespace

void FormScreen::Clear() {
    context_.page.Clear();
    context_.rows.ClearRows(profiles::BoxColumns::Name);
    context_.side.choice.TakeAway();
}

void FormScreen::ClearPanels() {
    context_.person.SetPanel(Panel::Message, "");
    context_.person.SetPanel(Panel::ElapsedTime, "");
}

void FormScreen::ClearBoxes() {
    context_.page.ClearRects();
    context_.rows.ClearRows(profiles::BoxColumns::Name);
}

void FormScreen::ShowBoxes(const OpenForm& form) {
    context_.page.ClearRects();
    context_.rows.ClearRows(profiles::BoxColumns::NameValInk);
    context_.page.TurnPage(form.IsUpsideDown);
    for (int number = 1; static_cast<std::size_t>(number) <= form.Marks.size(); ++number)
        PutBox(form, number);
}

void FormScreen::PutBox(const OpenForm& form, int number) {
    const auto k = static_cast<std::size_t>(number) - 1;
    const ResultMark& mark = form.Marks[k];
    const FormBox& box = form.Boxes[k];
    context_.rows.PutRow(number, {mark.Name, ValOf(mark), InkText(box), box.read == !mark.Checked,
                                  box.doubt ? std::string(TextOf(*box.doubt)) : std::string()});
    if (box.rect)
        context_.page.PutRect(number, *box.rect, StyleOf(mark));
}

// Their groups follow those of the rows, so that no row answers for them.
void FormScreen::ShowSkipped(const OpenForm& form) {
    int group = static_cast<int>(form.Marks.size());
    for (const imaging::PageRect& rect : form.SkippedRects)
        context_.page.PutRect(++group, rect, RectStyle::Skipped);
}

void FormScreen::ShowMark(const OpenForm& form, int number) {
    PutBox(form, number);
    context_.person.SetPanel(Panel::ElapsedTime, CheckedText(form, form.Marks.size()));
}

void FormScreen::ShowState(const OpenForm& form) {
    context_.person.SetPanel(Panel::Message,
                             "Image [" + form.Result.Image() + "], Profile [" + form.Profile.Name + "]");
    const std::size_t count = form.HasProfile ? form.Profile.Boxes.size() : form.Marks.size();
    context_.person.SetPanel(Panel::ElapsedTime,
                             form.Skipped == 0
                                 ? "OMRs:" + std::to_string(count)
                                 : CheckedText(form, count) + " Skip:" + std::to_string(form.Skipped));
}

}  // namespace tavrene::review
