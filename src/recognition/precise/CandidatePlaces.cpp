#include "recognition/precise/CandidatePlaces.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <numeric>

namespace tavrene::recognition::precise {
namespace {

using Word = BitPlane::Word;

constexpr int kTile = 32;

// A row of a plane moved left by `shift` columns; rows beyond the plane are empty.
void CopyAhead(const BitPlane& plane, int row, int shift, std::vector<Word>& to) {
    const int words = plane.Words();
    std::fill(to.begin(), to.end(), Word{0});
    if (row < 0 || row >= plane.Height())
        return;
    const Word* const from = plane.Row(row);
    const int whole = shift / BitPlane::kWordBits;
    const auto rest = static_cast<unsigned>(shift % BitPlane::kWordBits);
    for (int index = 0; index + whole < words; ++index) {
        const Word low = from[index + whole] >> rest;
        const Word high = rest == 0 ? 0 : from[index + whole + 1] << (64U - rest);
        to[static_cast<std::size_t>(index)] = low | high;
    }
}

// Set at the lower left corner of every place with three corners of a box.
BitPlane ThreeCorners(const PageCorners& corners, int width, int height) {
    BitPlane places(corners.lowerLeft.Width(), corners.lowerLeft.Height());
    const auto words = static_cast<std::size_t>(places.Words());
    std::vector<Word> lowerRight(words);
    std::vector<Word> upperRight(words);
    for (int row = 0; row + height < places.Height(); ++row) {
        CopyAhead(corners.lowerRight, row, width, lowerRight);
        CopyAhead(corners.upperRight, row + height, width, upperRight);
        const Word* const lowerLeft = corners.lowerLeft.Row(row);
        // Up to the height of the guard rows this needs no test; the loop's bound keeps it inside.
        const Word* const upperLeft = corners.upperLeft.Row(row + height);
        Word* const to = places.Row(row);
        for (std::size_t index = 0; index < words; ++index) {
            const Word below = lowerLeft[index] & lowerRight[index];
            const Word above = upperLeft[index] & upperRight[index];
            to[index] = (below & (upperLeft[index] | upperRight[index])) |
                        (above & (lowerLeft[index] | lowerRight[index]));
        }
    }
    return places;
}

// Runs of set cells, put together across rows where they touch.
class Blobs {
  public:
    void AddRun(int first, int last, int row) {
        if (row != row_)
            NextRow(row);
        while (touching_ < before_.size() && before_[touching_].last < first - 1)
            ++touching_;
        int blob = -1;
        for (std::size_t k = touching_; k < before_.size() && before_[k].first <= last + 1; ++k)
            blob = Join(blob, Root(before_[k].blob));
        if (blob < 0) {
            blob = static_cast<int>(sums_.size());
            sums_.push_back({blob, 0, 0, 0});
        }
        const double cells = last - first + 1;
        Sum& sum = sums_[static_cast<std::size_t>(blob)];
        sum.cells += cells;
        sum.x += cells * (first + last) / 2.0;
        sum.y += cells * row;
        here_.push_back({first, last, blob});
    }

    std::vector<CellPoint> Middles() const {
        std::vector<CellPoint> middles;
        for (std::size_t blob = 0; blob < sums_.size(); ++blob) {
            const Sum& sum = sums_[blob];
            if (sum.parent == static_cast<int>(blob))
                middles.push_back({sum.x / sum.cells, sum.y / sum.cells});
        }
        return middles;
    }

  private:
    struct Run {
        int first;
        int last;
        int blob;
    };
    struct Sum {
        int parent;
        double cells;
        double x;
        double y;
    };

    void NextRow(int row) {
        before_.swap(here_);
        here_.clear();
        if (row != row_ + 1)
            before_.clear();
        row_ = row;
        touching_ = 0;
    }

    int Root(int blob) const {
        while (sums_[static_cast<std::size_t>(blob)].parent != blob)
            blob = sums_[static_cast<std::size_t>(blob)].parent;
        return blob;
    }

    int Join(int a, int b) {
        if (a < 0 || a == b)
            return b;
        Sum& to = sums_[static_cast<std::size_t>(a)];
        Sum& from = sums_[static_cast<std::size_t>(b)];
        to.cells += from.cells;
        to.x += from.x;
        to.y += from.y;
        from.parent = a;
        return a;
    }

    std::vector<Run> before_;
    std::vector<Run> here_;
    std::vector<Sum> sums_;
    std::size_t touching_ = 0;
    int row_ = std::numeric_limits<int>::min() / 2;
};

// Calls `add` with the first and last column of every run of set cells.
template <typename Add>
void VisitRuns(const Word* row, int words, Add add) {
    int start = -1;
    for (int index = 0; index < words; ++index) {
        Word word = row[index];
        int column = index * BitPlane::kWordBits;
        if (word == 0 && start < 0)
            continue;
        for (int left = BitPlane::kWordBits; left > 0;) {
            const int same = std::min(left, start < 0 ? std::countr_zero(word) : std::countr_one(word));
            column += same;
            left -= same;
            word = same == BitPlane::kWordBits ? 0 : word >> static_cast<unsigned>(same);
            if (left == 0)
                break;
            if (start < 0) {
                start = column;
            } else {
                add(start, column - 1);
                start = -1;
            }
        }
    }
    if (start >= 0)
        add(start, words * BitPlane::kWordBits - 1);
}

}  // namespace

CandidatePlaces::CandidatePlaces(const PageCorners& corners, int width, int height) {
    const BitPlane places = ThreeCorners(corners, width, height);
    near_ = BitPlane(places.Width(), places.Height());
    tilesAcross_ = places.Width() / kTile + 1;
    tilesDown_ = places.Height() / kTile + 1;
    Collect(places, width / 2.0, height / 2.0);
    FillTiles();
    const double area = static_cast<double>(places.Width()) * places.Height();
    coverage_ = area > 0 ? static_cast<double>(near_.Count()) / area : 0;
}

void CandidatePlaces::Collect(const BitPlane& places, double middleX, double middleY) {
    Blobs blobs;
    for (int row = 0; row < places.Height(); ++row)
        VisitRuns(places.Row(row), places.Words(),
                  [&blobs, row](int first, int last) { blobs.AddRun(first, last, row); });
    middles_ = blobs.Middles();
    for (CellPoint& middle : middles_) {
        middle = {middle.x + middleX, middle.y + middleY};
        const int column = static_cast<int>(std::lround(middle.x));
        const int row = static_cast<int>(std::lround(middle.y));
        for (int y = row - kNear; y <= row + kNear; ++y) {
            for (int x = column - kNear; x <= column + kNear; ++x)
                near_.Set(x, y);
        }
    }
}

void CandidatePlaces::FillTiles() {
    const auto tileOf = [this](const CellPoint& place) {
        const int across = std::clamp(static_cast<int>(place.x) / kTile, 0, tilesAcross_ - 1);
        const int down = std::clamp(static_cast<int>(place.y) / kTile, 0, tilesDown_ - 1);
        return static_cast<std::size_t>(down) * static_cast<std::size_t>(tilesAcross_) +
               static_cast<std::size_t>(across);
    };
    std::stable_sort(middles_.begin(), middles_.end(),
                     [&](const CellPoint& a, const CellPoint& b) { return tileOf(a) < tileOf(b); });
    tileStart_.assign(static_cast<std::size_t>(tilesAcross_ * tilesDown_) + 1, 0);
    for (const CellPoint& middle : middles_)
        ++tileStart_[tileOf(middle) + 1];
    std::partial_sum(tileStart_.begin(), tileStart_.end(), tileStart_.begin());
}

template <typename Visit>
void CandidatePlaces::VisitTiles(const CellPoint& place, double reach, Visit visit) const {
    const auto tile = [](double ordinate, int tiles) {
        return std::clamp(static_cast<int>(std::floor(ordinate / kTile)), 0, tiles - 1);
    };
    const int lastAcross = tile(place.x + reach, tilesAcross_);
    const int lastDown = tile(place.y + reach, tilesDown_);
    for (int down = tile(place.y - reach, tilesDown_); down <= lastDown; ++down) {
        const std::size_t row = static_cast<std::size_t>(down) * static_cast<std::size_t>(tilesAcross_);
        const int first = tileStart_[row + static_cast<std::size_t>(tile(place.x - reach, tilesAcross_))];
        const int last = tileStart_[row + static_cast<std::size_t>(lastAcross) + 1];
        for (int k = first; k < last; ++k)
            visit(middles_[static_cast<std::size_t>(k)]);
    }
}

std::optional<CellPoint> CandidatePlaces::Nearest(const CellPoint& place, double reach) const {
    double nearest = reach * reach;
    std::optional<CellPoint> found;
    VisitTiles(place, reach, [&](const CellPoint& middle) {
        const double dx = middle.x - place.x;
        const double dy = middle.y - place.y;
        if (dx * dx + dy * dy <= nearest) {
            nearest = dx * dx + dy * dy;
            found = middle;
        }
    });
    return found;
}

std::vector<CellPoint> CandidatePlaces::Around(const CellPoint& place, double reach) const {
    std::vector<CellPoint> around;
    VisitTiles(place, reach, [&](const CellPoint& middle) {
        if (std::abs(middle.x - place.x) <= reach && std::abs(middle.y - place.y) <= reach)
            around.push_back(middle);
    });
    return around;
}

}  // namespace tavrene::recognition::precise
