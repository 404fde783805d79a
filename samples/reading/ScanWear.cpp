#include "reading/ScanWear.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <variant>
#include <vector>

#include "app/Files.h"
#include "app/TemporaryFolder.h"
#include "boxes/BoxSheet.h"
#include "boxes/PageWear.h"
#include "painter/ImageFiles.h"

namespace tavrene::samples {
namespace {

using imaging::WorkGrid;

// Where on the sheet a place of the scan lies.
class Way {
  public:
    Way(const Canvas& sheet, const ScanWear& wear, Random& dice)
        : wear_(wear),
          middleX_(sheet.Width() / 2.0),
          middleY_(sheet.Height() / 2.0),
          perMm_(sheet.Dpi() / 25.4),
          cosine_(std::cos(wear.TiltDegrees * std::numbers::pi / 180)),
          sine_(std::sin(wear.TiltDegrees * std::numbers::pi / 180)) {
        const double phaseX = dice.Between(0, 2 * std::numbers::pi);
        const double phaseY = dice.Between(0, 2 * std::numbers::pi);
        const double period = sheet.Height() * dice.Between(0.9, 1.6);
        bendByY_ = Wave(sheet.Height(), period, phaseX);
        bendByX_ = Wave(sheet.Width(), period, phaseY);
    }

    Point OnSheet(int x, int y) const {
        const double offX = x - middleX_ - wear_.ShiftX * perMm_ + bendByY_[static_cast<std::size_t>(y)];
        const double offY = y - middleY_ - wear_.ShiftY * perMm_ + bendByX_[static_cast<std::size_t>(x)];
        return {middleX_ + (offX * cosine_ + offY * sine_) / (1 + wear_.StretchX),
                middleY_ + (offY * cosine_ - offX * sine_) / (1 + wear_.StretchY)};
    }

  private:
    std::vector<double> Wave(int length, double period, double phase) const {
        std::vector<double> wave;
        for (int k = 0; k < length; ++k)
            wave.push_back(wear_.Bend * perMm_ * std::sin(2 * std::numbers::pi * k / period + phase));
        return wave;
    }

    const ScanWear& wear_;
    double middleX_;
    double middleY_;
    double perMm_;
    double cosine_;
    double sine_;
    std::vector<double> bendByX_;
    std::vector<double> bendByY_;
};

Shade Between(const Canvas& sheet, const Point& place) {
    const auto x = static_cast<int>(std::floor(place.x));
    const auto y = static_cast<int>(std::floor(place.y));
    const double right = place.x - x;
    const double down = place.y - y;
    const double upper = (1 - right) * sheet.At(x, y) + right * sheet.At(x + 1, y);
    const double lower = (1 - right) * sheet.At(x, y + 1) + right * sheet.At(x + 1, y + 1);
    return static_cast<Shade>(std::lround((1 - down) * upper + down * lower));
}

bool MovesNothing(const ScanWear& wear) {
    return wear.TiltDegrees == 0 && wear.ShiftX == 0 && wear.ShiftY == 0 && wear.StretchX == 0 &&
           wear.StretchY == 0 && wear.Bend == 0;
}

Canvas Moved(const Canvas& sheet, const ScanWear& wear, Random& dice) {
    const Way way(sheet, wear, dice);
    if (MovesNothing(wear))
        return sheet;
    Canvas moved(sheet.Width(), sheet.Height(), sheet.Dpi());
    for (int y = 0; y < moved.Height(); ++y) {
        for (int x = 0; x < moved.Width(); ++x)
            moved.Set(x, y, Between(sheet, way.OnSheet(x, y)));
    }
    return moved;
}

void AddEdgesAndHoles(Canvas& page, const ScanWear& wear, Random& dice) {
    const double perMm = page.Dpi() / 25.4;
    if (wear.BlackEdges > 0) {
        const auto width = static_cast<int>(wear.BlackEdges * perMm);
        page.FillRect(0, 0, width, page.Height());
        page.FillRect(0, dice.Chance(0.5) ? 0 : page.Height() - width, page.Width(), width);
    }
    for (const double share : {0.36, 0.63}) {
        if (wear.Holes)
            page.FillDisc({8 * perMm, share * page.Height()}, 3 * perMm);
    }
}

void ThinOut(WorkGrid& grid, double share, Random& dice) {
    const WorkGrid whole = grid.Clone();
    for (int row = 0; row < grid.Rows(); ++row) {
        for (int column = 0; column < grid.Width(); ++column) {
            if (!whole.IsInk(column, row))
                continue;
            const bool edge = !whole.IsInk(column - 1, row) || !whole.IsInk(column + 1, row) ||
                              !whole.IsInk(column, row - 1) || !whole.IsInk(column, row + 1);
            if (edge && dice.Chance(share))
                grid.SetInk(column, row, false);
        }
    }
}

// Loses some lines and doubles as many others.
void DropLines(WorkGrid& grid, int count, Random& dice) {
    std::vector<int> sources;
    for (int row = 0; row < grid.Rows(); ++row)
        sources.push_back(row);
    for (int k = 0; k < count; ++k) {
        const auto lost = static_cast<std::ptrdiff_t>(dice.Between(0, grid.Rows() - 1));
        sources.erase(sources.begin() + lost);
        const auto doubled = static_cast<std::ptrdiff_t>(dice.Between(0, grid.Rows() - 1));
        sources.insert(sources.begin() + doubled, sources[static_cast<std::size_t>(doubled)]);
    }
    const WorkGrid whole = grid.Clone();
    for (int row = 0; row < grid.Rows(); ++row)
        std::ranges::copy(whole.Row(sources[static_cast<std::size_t>(row)]), grid.Row(row).begin());
}

WorkGrid Turned(const WorkGrid& grid) {
    WorkGrid turned(grid.Width(), grid.Columns(), grid.Rows());
    for (int row = 0; row < grid.Rows(); ++row) {
        for (int column = 0; column < grid.Width(); ++column) {
            if (grid.IsInk(column, row))
                turned.SetInk(grid.Width() - 1 - column, grid.Rows() - 1 - row);
        }
    }
    return turned;
}

// Through a real file: grey paper, pale ink, what the format does to edges, and the program's own threshold.
WorkGrid ThroughJpeg(Canvas page, int quality, Random& dice) {
    const double paper = dice.Between(190, 245);
    const double ink = dice.Between(20, 80);
    for (int y = 0; y < page.Height(); ++y) {
        for (int x = 0; x < page.Width(); ++x) {
            const double shade = ink + (paper - ink) * page.At(x, y) / kWhite + dice.Wobble(16);
            page.Set(x, y, static_cast<Shade>(std::clamp(shade, 0.0, 255.0)));
        }
    }
    const app::TemporaryFolder folder("tavrene-scan");
    const std::string file = folder.File("page.jpg");
    SaveImage(ToGrey(page), imaging::ImageFormat::Jpeg, file, quality);
    auto read = imaging::ReadPage(app::DiskFiles(), file, imaging::ImageFormat::Jpeg);
    return std::move(std::get<imaging::Page>(read).grid);
}

imaging::Page PageOf(WorkGrid grid, int dpi) {
    imaging::Page page;
    page.grid = std::move(grid);
    page.DPI_X = page.DPI_Y = static_cast<std::int16_t>(dpi);
    return page;
}

}  // namespace

imaging::Page CleanScan(const Canvas& sheet) {
    return PageOf(ToGrid(sheet), sheet.Dpi());
}

imaging::Page Scan(const Canvas& sheet, const ScanWear& wear, Random& dice) {
    Canvas page = Moved(sheet, wear, dice);
    AddEdgesAndHoles(page, wear, dice);
    WorkGrid grid = wear.JpegQuality > 0 ? ThroughJpeg(page, wear.JpegQuality, dice) : ToGrid(page);
    for (int k = 0; k < wear.Fat; ++k)
        Dilate(grid);
    if (wear.Thin > 0)
        ThinOut(grid, wear.Thin, dice);
    if (wear.DroppedLines > 0)
        DropLines(grid, wear.DroppedLines, dice);
    if (wear.Noise > 0)
        AddSpecks(grid, dice, wear.Noise);
    return PageOf(wear.UpsideDown ? Turned(grid) : std::move(grid), sheet.Dpi());
}

}  // namespace tavrene::samples
