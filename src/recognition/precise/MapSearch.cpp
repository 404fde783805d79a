#include "recognition/precise/MapSearch.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

namespace tavrene::recognition::precise {
namespace {

constexpr std::size_t kSampled = 16;
constexpr std::size_t kPairs = 24;
constexpr std::size_t kMostMaps = 3000;
constexpr std::size_t kMostPerPair = kMostMaps / kPairs;
constexpr std::size_t kMostCandidates = 64;  // of a box
constexpr std::size_t kKept = 8;
constexpr std::size_t kFitted = 96;
constexpr double kLeastShare = 0.3;  // of the sample: less is not worth a fit
constexpr double kSameMap = 4;       // cells between maps that are taken for one
constexpr double kFitReach[] = {6, 4.5, 3.5};

// A map as matching tries it, with what it says against it: turn and stretch, 1 where the reach ends.
struct Trial {
    PageMap map;
    double distortion = 0;
    double hits = 0;
    double Merit() const { return hits - distortion; }
};

double Distance(const CellPoint& a, const CellPoint& b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

// Boxes spread over the page: each is the one farthest from those before it.
std::vector<SoughtBox> SpreadSample(std::span<const SoughtBox> boxes, const CellPoint& middle) {
    std::vector<double> away(boxes.size(), std::numeric_limits<double>::max());
    std::vector<SoughtBox> sample;
    std::size_t next = 0;
    for (std::size_t k = 1; k < boxes.size(); ++k) {
        if (Distance(boxes[k].place, middle) > Distance(boxes[next].place, middle))
            next = k;
    }
    while (sample.size() < std::min(kSampled, boxes.size())) {
        sample.push_back(boxes[next]);
        for (std::size_t k = 0; k < boxes.size(); ++k)
            away[k] = std::min(away[k], Distance(boxes[k].place, sample.back().place));
        next = static_cast<std::size_t>(std::max_element(away.begin(), away.end()) - away.begin());
    }
    return sample;
}

class Search {
  public:
    Search(std::vector<SoughtBox> sample, const CellPoint& middle, const PageReach& reach)
        : sample_(std::move(sample)), middle_(middle), reach_(reach) {}

    void Run() {
        for (const SoughtBox& box : sample_)
            TryShifts(box);
        for (const auto& [a, b] : DistantPairs())
            TryPair(sample_[a], sample_[b]);
    }

    const std::vector<Trial>& Best() const { return best_; }
    std::size_t Tried() const { return tried_; }

  private:
    // The nearest ones: on ruled paper every square of the grid may be a box.
    std::vector<CellPoint> CandidatesOf(const SoughtBox& box) const {
        const double turned = (reach_.turn + reach_.stretch) * Distance(box.place, middle_);
        std::vector<CellPoint> places = box.candidates->Around(box.place, reach_.shift + turned);
        if (places.size() > kMostCandidates) {
            std::nth_element(places.begin(), places.begin() + kMostCandidates, places.end(),
                             [&box](const CellPoint& a, const CellPoint& b) {
                                 return Distance(a, box.place) < Distance(b, box.place);
                             });
            places.resize(kMostCandidates);
        }
        return places;
    }

    void TryShifts(const SoughtBox& box) {
        for (const CellPoint& seen : box.candidates->Around(box.place, reach_.shift)) {
            Trial trial;
            trial.map.middle = middle_;
            trial.map.shiftX = seen.x - box.place.x;
            trial.map.shiftY = seen.y - box.place.y;
            trial.distortion = 0.5 * std::hypot(trial.map.shiftX, trial.map.shiftY) / reach_.shift;
            Try(trial);
        }
    }

    std::vector<std::pair<std::size_t, std::size_t>> DistantPairs() const {
        std::vector<std::pair<std::size_t, std::size_t>> pairs;
        for (std::size_t a = 0; a < sample_.size(); ++a) {
            for (std::size_t b = a + 1; b < sample_.size(); ++b)
                pairs.emplace_back(a, b);
        }
        const auto farther = [this](const auto& one, const auto& other) {
            return Distance(sample_[one.first].place, sample_[one.second].place) >
                   Distance(sample_[other.first].place, sample_[other.second].place);
        };
        const std::size_t kept = std::min(kPairs, pairs.size());
        std::partial_sort(pairs.begin(), pairs.begin() + static_cast<std::ptrdiff_t>(kept), pairs.end(),
                          farther);
        pairs.resize(kept);
        return pairs;
    }

    // The least turn and stretch that explain where the second box is seen from the first.
    std::optional<Trial> Explain(const SoughtBox& a, const CellPoint& seenA, const SoughtBox& b,
                                 const CellPoint& seenB) const {
        const double dx = b.place.x - a.place.x;
        const double dy = b.place.y - a.place.y;
        const double ex = seenB.x - seenA.x - dx;
        const double ey = seenB.y - seenA.y - dy;
        // ex = stretchX dx - turn dy and ey = stretchY dy + turn dx leave one unknown free. The smallest sum
        // of squares solves the two by two system of their products.
        const double square = dx * dx + dy * dy;
        const double xy = -dx * dy;
        const double determinant = square * square - xy * xy;
        if (determinant <= 0)
            return std::nullopt;
        const double p = (ex * square - ey * xy) / determinant;
        const double q = (ey * square - ex * xy) / determinant;
        const double turn = -p * dy + q * dx;
        Trial trial;
        trial.map.middle = middle_;
        trial.map.xByX = p * dx;
        trial.map.yByY = q * dy;
        trial.map.xByY = -turn;
        trial.map.yByX = turn;
        const CellPoint mapped = trial.map(a.place);
        trial.map.shiftX = seenA.x - mapped.x;
        trial.map.shiftY = seenA.y - mapped.y;
        if (!IsWithin(trial.map, reach_))
            return std::nullopt;
        trial.distortion = 0.5 * std::abs(turn) / reach_.turn +
                           0.5 * std::hypot(trial.map.xByX, trial.map.yByY) / reach_.stretch +
                           0.25 * std::hypot(trial.map.shiftX, trial.map.shiftY) / reach_.shift;
        return trial;
    }

    void TryPair(const SoughtBox& a, const SoughtBox& b) {
        std::vector<Trial> trials;
        const std::vector<CellPoint> seenB = CandidatesOf(b);
        if (seenB.empty())
            return;
        for (const CellPoint& seen : CandidatesOf(a)) {
            for (const CellPoint& other : seenB) {
                if (const std::optional<Trial> trial = Explain(a, seen, b, other))
                    trials.push_back(*trial);
            }
        }
        const auto easier = [](const Trial& one, const Trial& other) {
            return one.distortion < other.distortion;
        };
        if (trials.size() > kMostPerPair) {
            std::nth_element(trials.begin(), trials.begin() + kMostPerPair, trials.end(), easier);
            trials.resize(kMostPerPair);
        }
        for (Trial& trial : trials)
            Try(trial);
    }

    // Counts the sampled boxes that have a candidate where the map puts them, as long as it may still win.
    void Try(Trial& trial) {
        ++tried_;
        const double floor = kLeastShare * static_cast<double>(sample_.size());
        const double worst = best_.size() < kKept ? floor : std::max(floor, best_.back().Merit());
        double left = static_cast<double>(sample_.size()) - trial.distortion;
        for (const SoughtBox& box : sample_) {
            const CellPoint place = trial.map(box.place);
            if (box.candidates->IsNear(place.x, place.y))
                ++trial.hits;
            else if (--left < worst)
                return;
        }
        Keep(trial);
    }

    bool IsSame(const Trial& a, const Trial& b) const {
        const std::size_t ends = std::min<std::size_t>(sample_.size(), 4);
        for (std::size_t k = 0; k < ends; ++k) {
            if (Distance(a.map(sample_[k].place), b.map(sample_[k].place)) > kSameMap)
                return false;
        }
        return true;
    }

    void Keep(const Trial& trial) {
        const auto same = std::find_if(best_.begin(), best_.end(),
                                       [&](const Trial& other) { return IsSame(trial, other); });
        if (same != best_.end()) {
            if (same->Merit() >= trial.Merit())
                return;
            best_.erase(same);
        }
        const auto place = std::find_if(best_.begin(), best_.end(), [&trial](const Trial& other) {
            return other.Merit() < trial.Merit();
        });
        best_.insert(place, trial);
        if (best_.size() > kKept)
            best_.pop_back();
    }

    std::vector<SoughtBox> sample_;
    CellPoint middle_;
    PageReach reach_;
    std::vector<Trial> best_;
    std::size_t tried_ = 0;
};

PageMap Fitted(std::span<const SoughtBox> boxes, PageMap map, const PageReach& reach) {
    const std::size_t step = (boxes.size() + kFitted - 1) / kFitted;
    std::vector<Sighting> sightings;
    for (const double fitReach : kFitReach) {
        sightings.clear();
        for (std::size_t k = 0; k < boxes.size(); k += step) {
            if (const auto seen = boxes[k].candidates->Nearest(map(boxes[k].place), fitReach))
                sightings.push_back({boxes[k].place, *seen, 1});
        }
        map = FitMap(map.middle, sightings, reach.shift);
    }
    return map;
}

}  // namespace

std::vector<Alignment> SearchMaps(std::span<const SoughtBox> boxes, const CellPoint& middle,
                                  const PageReach& reach) {
    std::vector<Alignment> alignments;
    if (boxes.empty())
        return alignments;
    Search search(SpreadSample(boxes, middle), middle, reach);
    search.Run();
    for (const Trial& trial : search.Best()) {
        const PageMap map = Fitted(boxes, trial.map, reach);
        if (!IsWithin(map, reach))
            continue;
        Alignment alignment = Align(boxes, map);
        alignment.tried = search.Tried();
        if (alignment.share > 0.5)
            alignments.push_back(std::move(alignment));
    }
    std::stable_sort(alignments.begin(), alignments.end(),
                     [](const Alignment& a, const Alignment& b) { return a.bound > b.bound; });
    return alignments;
}

}  // namespace tavrene::recognition::precise
