#include "forms/Filling.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace tavrene::samples {

namespace {

DrawMark MarkOf(Habit habit, Random& random) {
    constexpr std::array<DrawMark, 6> marks = {DrawTick, DrawCross,   DrawDot,
                                               DrawDash, DrawFilling, DrawScribble};
    constexpr std::array<DrawMark, 4> common = {DrawTick, DrawCross, DrawTick, DrawScribble};
    if (habit == Habit::Mixed)
        return common.at(random.Next() % common.size());
    return marks.at(static_cast<std::size_t>(habit) - 1);
}

MarkArea AreaOf(const FormBox& box) {
    return {static_cast<double>(box.X) * kFineness, static_cast<double>(box.Y) * kFineness,
            static_cast<double>(kBoxSize) * kFineness, static_cast<double>(kBoxSize) * kFineness};
}

/// Which of the `count` boxes of one question are marked.
std::vector<bool> Answer(Random& random, std::size_t count, bool oneAnswer) {
    std::vector<bool> marked(count, false);
    if (oneAnswer)
        marked[random.Next() % count] = true;
    else
        std::generate(marked.begin(), marked.end(), [&random] { return random.Chance(0.35); });
    return marked;
}

/// Which boxes of the form are marked, in its order.
std::vector<bool> AnswerAll(Random& random, const std::vector<FormBox>& boxes) {
    std::vector<bool> marked;
    while (marked.size() < boxes.size()) {
        const auto first = boxes.begin() + static_cast<std::ptrdiff_t>(marked.size());
        const auto last = std::find_if(
            first, boxes.end(), [first](const FormBox& box) { return box.Question != first->Question; });
        const auto count = static_cast<std::size_t>(std::distance(first, last));
        const std::vector<bool> answer = Answer(random, count, first->OneAnswer);
        marked.insert(marked.end(), answer.begin(), answer.end());
    }
    return marked;
}

void WriteOnLines(const PrintedForm& form, Random& random, const Pen& pen, Canvas& page) {
    for (const WritingLine& line : form.Lines) {
        const Point start{(line.X + 12.0) * kFineness, (line.Y - 2.0) * kFineness};
        const double length = line.Length * kFineness * random.Between(0.35, 0.6);
        DrawHandwriting(page, random, start, length, random.Between(13, 16) * kFineness, pen);
    }
}

/// One person at work on one form.
class Writer {
  public:
    Writer(const PrintedForm& form, const Respondent& respondent)
        : respondent_(respondent),
          random_(respondent.Seed),
          pen_(respondent.Tool),
          filling_{Canvas(form.Page.Width(), form.Page.Height(), form.Page.Dpi()), {}} {
        pen_.width *= kFineness;
    }

    Filling Fill(const PrintedForm& form) {
        if (respondent_.Marks == Habit::None)
            return std::move(filling_);
        const std::vector<bool> marked = AnswerAll(random_, form.Boxes);
        for (std::size_t i = 0; i < form.Boxes.size(); ++i)
            if (TreatBox(form.Boxes[i], marked[i]))
                filling_.CheckedBoxes.push_back(form.Boxes[i].Name);
        WriteOnLines(form, random_, pen_, filling_.Page);
        return std::move(filling_);
    }

  private:
    /// Returns whether a person takes the box for checked.
    bool TreatBox(const FormBox& box, bool marked) {
        const auto odd = std::find_if(respondent_.OddMarks.begin(), respondent_.OddMarks.end(),
                                      [&box](const OddMark& mark) { return mark.Box == box.Name; });
        MarkArea area = AreaOf(box);
        if (odd != respondent_.OddMarks.end()) {
            area.x += odd->Aside * area.width;
            for (const DrawMark draw : odd->Strokes)
                draw(filling_.Page, random_, area, pen_);
            return odd->Means;
        }
        if (marked) {
            area.x += random_.Wobble(respondent_.Carelessness) * area.width;
            area.y += random_.Wobble(respondent_.Carelessness) * area.height;
            MarkOf(respondent_.Marks, random_)(filling_.Page, random_, area, pen_);
        } else if (random_.Chance(respondent_.Slips)) {
            const Point place{area.x + area.width * random_.Between(0.2, 0.8),
                              area.y + area.height * random_.Between(0.2, 0.8)};
            filling_.Page.FillDisc(place, pen_.width / 2, pen_.shade);
        }
        return marked;
    }

    const Respondent& respondent_;
    Random random_;
    Pen pen_;
    Filling filling_;
};

}  // namespace

Filling FillIn(const PrintedForm& form, const Respondent& respondent) {
    return Writer(form, respondent).Fill(form);
}

}  // namespace tavrene::samples
