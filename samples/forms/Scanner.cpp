#include "forms/Scanner.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tavrene::samples {

namespace {

/// Where on the page a place of the scan lies.
class Placement {
  public:
    Placement(const Canvas& page, const ScanSettings& settings, Point middle)
        : settings_(settings),
          middle_(middle),
          finer_(static_cast<double>(page.Dpi()) / settings.Dpi),
          sine_(std::sin(settings.SkewDegrees * std::numbers::pi / 180)),
          cosine_(std::cos(settings.SkewDegrees * std::numbers::pi / 180)) {}

    Point OnPage(double x, double y) const {
        const double offX = x - settings_.ShiftX - middle_.x + settings_.Bend * std::sin(y / middle_.y * 2.2);
        const double offY = y - settings_.ShiftY - middle_.y + settings_.Bend * std::sin(x / middle_.x * 2.2);
        return {finer_ * (middle_.x + (offX * cosine_ + offY * sine_) / settings_.StretchX),
                finer_ * (middle_.y + (offY * cosine_ - offX * sine_) / settings_.StretchY)};
    }

  private:
    const ScanSettings& settings_;
    Point middle_;
    double finer_;
    double sine_;
    double cosine_;
};

/// The mean of the page below pixel (x, y) of the scan, of `reads` x `reads` places.
Shade MeanBelow(const Canvas& page, const Placement& placement, int x, int y, int reads) {
    int sum = 0;
    for (int down = 0; down < reads; ++down)
        for (int right = 0; right < reads; ++right) {
            const Point place = placement.OnPage(x + (right + 0.5) / reads, y + (down + 0.5) / reads);
            sum += page.At(static_cast<int>(std::floor(place.x)), static_cast<int>(std::floor(place.y)));
        }
    return static_cast<Shade>(sum / (reads * reads));
}

}  // namespace

Canvas TakeScan(const Canvas& page, const ScanSettings& settings) {
    const double coarser = static_cast<double>(settings.Dpi) / page.Dpi();
    Canvas scan(static_cast<int>(std::lround(page.Width() * coarser)),
                static_cast<int>(std::lround(page.Height() * coarser)), settings.Dpi);
    const Placement placement(page, settings, {scan.Width() / 2.0, scan.Height() / 2.0});
    for (int y = 0; y < scan.Height(); ++y)
        for (int x = 0; x < scan.Width(); ++x)
            scan.Set(x, y, MeanBelow(page, placement, x, y, page.Dpi() / settings.Dpi));
    return scan;
}

Canvas Develop(const Canvas& print, const Canvas& pen, Shade paper, Shade ink) {
    Canvas channel(print.Width(), print.Height(), print.Dpi());
    for (int y = 0; y < print.Height(); ++y)
        for (int x = 0; x < print.Width(); ++x) {
            const int inked = ink + (kWhite - ink) * pen.At(x, y) / kWhite;
            channel.Set(x, y, static_cast<Shade>(paper * print.At(x, y) / kWhite * inked / kWhite));
        }
    return channel;
}

void AddNoise(Canvas& scan, Random& random, double noise) {
    for (int y = 0; y < scan.Height(); ++y)
        for (int x = 0; x < scan.Width(); ++x)
            scan.Set(x, y, static_cast<Shade>(std::clamp(scan.At(x, y) + random.Wobble(noise), 0.0, 255.0)));
}

void ThinOut(Canvas& scan, Random& random, double share) {
    const Canvas whole = scan;
    const auto isDark = [&whole](int x, int y) { return whole.At(x, y) < 128; };
    for (int y = 0; y < scan.Height(); ++y)
        for (int x = 0; x < scan.Width(); ++x) {
            const bool inside = isDark(x - 1, y) && isDark(x + 1, y) && isDark(x, y - 1) && isDark(x, y + 1);
            if (isDark(x, y) && !inside && random.Chance(share))
                scan.Set(x, y, kWhite);
        }
}

}  // namespace tavrene::samples
