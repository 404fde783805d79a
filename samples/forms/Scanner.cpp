#include "forms/Scanner.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tavrene::samples {

Canvas TakeScan(const Canvas& page, const ScanSettings& settings) {
    const double scale = static_cast<double>(settings.Dpi) / page.Dpi();
    Canvas scan(static_cast<int>(std::lround(page.Width() * scale)),
                static_cast<int>(std::lround(page.Height() * scale)), settings.Dpi);
    const int reads = page.Dpi() / settings.Dpi;  // per pixel and direction
    const double angle = settings.SkewDegrees * std::numbers::pi / 180;
    const Point middle{scan.Width() / 2.0, scan.Height() / 2.0};
    for (int y = 0; y < scan.Height(); ++y)
        for (int x = 0; x < scan.Width(); ++x) {
            int sum = 0;
            for (int read = 0; read < reads * reads; ++read) {
                const double offX = x + (read % reads + 0.5) / reads - settings.ShiftX - middle.x;
                const double offY = y + (read / reads + 0.5) / reads - settings.ShiftY - middle.y;
                const double pageX =
                    middle.x + (offX * std::cos(angle) + offY * std::sin(angle)) / settings.StretchX;
                const double pageY =
                    middle.y + (offY * std::cos(angle) - offX * std::sin(angle)) / settings.StretchY;
                sum += page.At(static_cast<int>(std::floor(pageX / scale)),
                               static_cast<int>(std::floor(pageY / scale)));
            }
            scan.Set(x, y, static_cast<Shade>(sum / (reads * reads)));
        }
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

}  // namespace tavrene::samples
