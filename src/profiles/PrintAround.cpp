#include "profiles/PrintAround.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

namespace tavrene::profiles {
namespace {

using imaging::PageRect;

// A box's words begin within so many widths of it, and go on while no gap is wider than so many heights of
// the box, which is about as high as a line.
constexpr double kReach = 3;
constexpr double kWordGap = 1.2;

// Nothing else stands at the left of a table's row, where the reader may have missed a word.
constexpr double kRowWordGap = 3;

// The head of a column stands within so many heights of its box; its lines follow each other closely. Boxes
// of one column are not further apart than that.
constexpr double kHeadReach = 2.5;
constexpr double kLineGap = 0.8;
constexpr double kColumnGap = 6;

constexpr double kEndless = std::numeric_limits<double>::max();

double MiddleX(const PageRect& place) {
    return place.left + place.width / 2;
}

double MiddleY(const PageRect& place) {
    return place.top + place.height / 2;
}

double Bottom(const PageRect& place) {
    return place.top + place.height;
}

bool IsOnLine(const PageRect& box, const PageRect& other) {
    return std::abs(MiddleY(other) - MiddleY(box)) < box.height * 3 / 4;
}

bool HasMiddleOf(const PageRect& box, const PageRect& other) {
    return std::abs(MiddleX(other) - MiddleX(box)) < box.width / 2 &&
           std::abs(MiddleY(other) - MiddleY(box)) < box.height / 2;
}

// How far off a box something begins and ends at one side.
std::pair<double, double> AtSide(const PageRect& box, const PageRect& other, PrintAround::Side side) {
    if (side == PrintAround::Side::Right)
        return {other.left - box.left - box.width, other.left + other.width - box.left - box.width};
    return {box.left - other.left - other.width, box.left - other.left};
}

std::string Joined(const std::vector<const PrintedWord*>& words) {
    std::string text;
    for (const PrintedWord* const word : words)
        text += (text.empty() ? "" : " ") + word->text;
    return text;
}

}  // namespace

PrintAround::PrintAround(std::vector<PageRect> boxes, std::vector<PrintedWord> words)
    : boxes_(std::move(boxes)), words_(std::move(words)) {
    // The outline of a box may have been taken for a letter.
    std::erase_if(words_, [this](const PrintedWord& word) {
        return std::ranges::any_of(boxes_, [&](const PageRect& box) { return HasMiddleOf(box, word.place); });
    });
}

std::optional<std::size_t> PrintAround::Next(std::size_t box, Side side) const {
    std::optional<std::size_t> next;
    double nearest = kEndless;
    for (std::size_t other = 0; other < boxes_.size(); ++other)
        if (const double from = AtSide(boxes_[box], boxes_[other], side).first;
            IsOnLine(boxes_[box], boxes_[other]) && from > 0 && from < nearest) {
            next = other;
            nearest = from;
        }
    return next;
}

// Up to the next box, the nearest ones first.
std::vector<PrintAround::Found> PrintAround::OnLine(std::size_t box, Side side) const {
    const PageRect& place = boxes_[box];
    const std::optional<std::size_t> next = Next(box, side);
    const double end = next ? AtSide(place, boxes_[*next], side).first : kEndless;
    std::vector<Found> found;
    for (const PrintedWord& word : words_)
        if (const auto [from, to] = AtSide(place, word.place, side);
            IsOnLine(place, word.place) && from > -place.width / 4 && to - place.width / 4 < end)
            found.push_back({&word, from, to});
    std::ranges::sort(found, {}, &Found::from);
    return found;
}

std::string PrintAround::WordsWithin(std::size_t box, Side side, double reach, double gap) const {
    std::vector<const PrintedWord*> taken;
    double most = reach;
    for (const Found& one : OnLine(box, side)) {
        if (one.from > most)
            break;
        taken.push_back(one.word);
        most = one.to + gap;
    }
    if (side == Side::Left)
        std::ranges::reverse(taken);
    return Joined(taken);
}

std::string PrintAround::Beside(std::size_t box, Side side) const {
    return WordsWithin(box, side, kReach * boxes_[box].width, kWordGap * boxes_[box].height);
}

// The next one in the same column.
std::optional<std::size_t> PrintAround::Above(std::size_t box) const {
    const PageRect& place = boxes_[box];
    std::optional<std::size_t> above;
    double nearest = kColumnGap * place.height;
    for (std::size_t other = 0; other < boxes_.size(); ++other) {
        const double off = place.top - Bottom(boxes_[other]);
        if (off > 0 && off < nearest && std::abs(MiddleX(boxes_[other]) - MiddleX(place)) < place.width / 2) {
            above = other;
            nearest = off;
        }
    }
    return above;
}

// Words above a box that are nearer to it than to its neighbours, in one line or some.
std::string PrintAround::HeadOf(std::size_t box) const {
    const PageRect& place = boxes_[box];
    double half = kEndless;
    for (const Side side : {Side::Left, Side::Right})
        if (const std::optional<std::size_t> next = Next(box, side))
            half = std::min(half, std::abs(MiddleX(boxes_[*next]) - MiddleX(place)) / 2);
    std::vector<const PrintedWord*> words;
    for (const PrintedWord& word : words_)
        if (Bottom(word.place) < place.top + place.height / 4 &&
            std::abs(MiddleX(word.place) - MiddleX(place)) < half)
            words.push_back(&word);
    std::ranges::sort(words, std::greater(), [](const auto* word) { return Bottom(word->place); });
    std::string head;
    double edge = place.top;
    double gap = kHeadReach * place.height;
    for (std::size_t at = 0; at < words.size() && edge - Bottom(words[at]->place) < gap;) {
        std::vector<const PrintedWord*> line = {words[at]};
        while (++at < words.size() && IsOnLine(line.front()->place, words[at]->place))
            line.push_back(words[at]);
        for (const PrintedWord* const word : line)
            edge = std::min(edge, word->place.top);
        std::ranges::sort(line, {}, [](const auto* word) { return word->place.left; });
        head.insert(0, Joined(line) + (head.empty() ? "" : " "));
        gap = kLineGap * place.height;
    }
    return head;
}

// Lower boxes have the head of the column that they stand in.
std::vector<std::string> PrintAround::Heads() const {
    std::vector<std::size_t> downwards(boxes_.size());
    std::iota(downwards.begin(), downwards.end(), 0U);
    std::ranges::sort(downwards, {}, [this](std::size_t box) { return boxes_[box].top; });
    std::vector<std::string> heads(boxes_.size());
    for (const std::size_t box : downwards) {
        heads[box] = HeadOf(box);
        if (const std::optional<std::size_t> above = Above(box); heads[box].empty() && above)
            heads[box] = heads[*above];
    }
    return heads;
}

// Boxes on one line, from the left, as far as no words part them.
std::vector<std::vector<std::size_t>> PrintAround::Rows() const {
    std::vector<std::vector<std::size_t>> rows;
    for (std::size_t box = 0; box < boxes_.size(); ++box) {
        if (Next(box, Side::Left) && OnLine(box, Side::Left).empty())
            continue;
        std::vector<std::size_t>& row = rows.emplace_back();
        row.push_back(box);
        for (auto next = Next(box, Side::Right); next && OnLine(*next, Side::Left).empty();
             next = Next(*next, Side::Right))
            row.push_back(*next);
    }
    return rows;
}

std::vector<std::string> PrintAround::InTables() const {
    const std::vector<std::string> heads = Heads();
    std::vector<std::string> names(boxes_.size());
    for (const std::vector<std::size_t>& row : Rows()) {
        const std::size_t first = row.front();
        const std::string text = WordsWithin(first, Side::Left, kEndless, kRowWordGap * boxes_[first].height);
        const bool hasHeads = std::ranges::none_of(row, [&](std::size_t box) { return heads[box].empty(); });
        if (row.size() < 2 || text.empty() || !hasHeads)
            continue;
        for (const std::size_t box : row)
            names[box] = text + ' ' + heads[box];
    }
    return names;
}

}  // namespace tavrene::profiles
