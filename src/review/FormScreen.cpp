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
    context_.view.Clear();
    ClearBoxes();
    context_.choice.SetChoice("");
}

void FormScreen::ClearPanels() {
    context_.person.SetPanel(Panel::Message, "");
    context_.person.SetPanel(Panel::ElapsedTime, "");
}

void FormScreen::ClearBoxes() {
    context_.rects.ClearRects();
    context_.rows.ClearRows();
    context_.rows.RemoveExtraColumns();
}

void FormScreen::ShowBoxes(const OpenForm& form) {
    ClearBoxes();
    context_.rows.AddValColumn();
    context_.inkRows.AddInkColumn();
    for (std::size_t k = 0; k < form.Marks.size(); ++k) {
        const int number = static_cast<int>(k) + 1;
        const FormBox& box = form.Boxes[k];
        context_.rows.AddRow(number, form.Marks[k].Name, ValOf(form.Marks[k]));
        context_.inkRows.SetInk(number, InkText(box), box.isDoubtful);
        if (box.rect)
            context_.rects.DrawRect(number, *box.rect, StyleOf(form.Marks[k]));
    }
}

// Their groups follow those of the rows, so that no row answers for them.
void FormScreen::ShowSkipped(const OpenForm& form) {
    int group = static_cast<int>(form.Marks.size());
    for (const imaging::PageRect& rect : form.SkippedRects)
        context_.rects.DrawRect(++group, rect, RectStyle::Skipped);
}

void FormScreen::ShowMark(const OpenForm& form, int number) {
    const ResultMark& mark = form.Marks[static_cast<std::size_t>(number) - 1];
    context_.inkRows.SetVal(number, ValOf(mark));
    context_.changingRects.ChangeRects(number, StyleOf(mark));
    context_.person.SetPanel(Panel::ElapsedTime, CheckedText(form, form.Marks.size()));
}

void FormScreen::ShowState(const OpenForm& form) {
    context_.person.SetPanel(Panel::Message,
                             "Image [" + form.Result.Image() + "], Profile [" + form.Profile.Name + "]");
    const std::size_t count = form.Profile.Boxes.size();
    context_.person.SetPanel(Panel::ElapsedTime,
                             form.Skipped == 0
                                 ? "OMRs:" + std::to_string(count)
                                 : CheckedText(form, count) + " Skip:" + std::to_string(form.Skipped));
}

}  // namespace tavrene::review
