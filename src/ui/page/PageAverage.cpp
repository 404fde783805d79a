#include "ui/page/PageAverage.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <vector>

namespace tavrene::ui {
namespace {

constexpr std::array<std::uint8_t, 256> kBitCounts = [] {
    std::array<std::uint8_t, 256> counts{};
    for (std::size_t byte = 0; byte < counts.size(); ++byte)
        counts[byte] = static_cast<std::uint8_t>(std::popcount(byte));
    return counts;
}();

// A place along a row or column of pixels: behind so many whole ones and a part of the next.
struct Edge {
    int whole;
    int part;
};
constexpr int kPixel = 256;  // parts

std::vector<Edge> EdgesOf(int pixels, int spaces) {
    std::vector<Edge> edges;
    for (int k = 0; k <= spaces; ++k) {
        const std::int64_t parts = std::int64_t{kPixel} * pixels * k / spaces;
        edges.push_back({static_cast<int>(parts / kPixel), static_cast<int>(parts % kPixel)});
    }
    return edges;
}

// Sums up the ink of a row of one-bit pixels. No branch depends on what is on the page.
class RowSums {
  public:
    explicit RowSums(int pixels) : bits_(Size(pixels)), before_(Size(pixels)) {}

    // Ink between each edge and the next, in parts of a pixel.
    void Sum(const uchar* bits, const std::vector<Edge>& edges, std::vector<int>& ink) {
        std::copy_n(bits, bits_.size() - 1, bits_.begin());
        for (std::size_t byte = 1; byte < bits_.size(); ++byte)
            before_[byte] = before_[byte - 1] + kBitCounts[bits_[byte - 1]];
        int last = 0;
        for (std::size_t k = 0; k < ink.size(); ++k) {
            const int sum = UpTo(edges[k + 1]);
            ink[k] = sum - last;
            last = sum;
        }
    }

  private:
    // One more than the row has: its end can be the end of its last byte.
    static std::size_t Size(int pixels) { return static_cast<std::size_t>(pixels + 7) / 8 + 1; }

    int UpTo(const Edge& edge) const {
        const auto byte = static_cast<std::size_t>(edge.whole) / 8;
        const unsigned rest = static_cast<unsigned>(bits_[byte]) << 1U;
        const int bit = 8 - edge.whole % 8;
        const int cut = static_cast<int>((rest >> bit) & 1U);
        return (before_[byte] + kBitCounts[rest >> (bit + 1)]) * kPixel + cut * edge.part;
    }

    std::vector<uchar> bits_;
    std::vector<int> before_;  // pixels of ink in all bytes before that one
};

}  // namespace

QImage Averaged(const QImage& page, const QSize& size) {
    QImage averaged(size, QImage::Format_Grayscale8);
    const std::vector<Edge> columns = EdgesOf(page.width(), size.width());
    const std::vector<Edge> rows = EdgesOf(page.height(), size.height());
    const double area =
        static_cast<double>(page.width()) / size.width() * page.height() / size.height() * kPixel * kPixel;
    std::vector<int> ink(columns.size() - 1);
    std::vector<std::int64_t> sums(ink.size());
    RowSums rowSums(page.width());
    int summed = -1;
    for (int y = 0; y < size.height(); ++y) {
        const Edge top = rows[static_cast<std::size_t>(y)];
        const Edge bottom = rows[static_cast<std::size_t>(y) + 1];
        std::fill(sums.begin(), sums.end(), 0);
        for (int row = top.whole; row < bottom.whole + (bottom.part > 0 ? 1 : 0); ++row) {
            if (row != summed)
                rowSums.Sum(page.constScanLine(row), columns, ink);
            summed = row;
            const int height =
                (row == bottom.whole ? bottom.part : kPixel) - (row == top.whole ? top.part : 0);
            for (std::size_t k = 0; k < ink.size(); ++k)
                sums[k] += std::int64_t{height} * ink[k];
        }
        std::transform(sums.begin(), sums.end(), averaged.scanLine(y), [area](std::int64_t sum) {
            return static_cast<uchar>(255 -
                                      static_cast<int>(255 * std::min(1.0, static_cast<double>(sum) / area)));
        });
    }
    return averaged;
}

}  // namespace tavrene::ui
