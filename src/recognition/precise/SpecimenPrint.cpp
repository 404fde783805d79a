#include "recognition/precise/SpecimenPrint.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>

#include "recognition/FormScale.h"
#include "recognition/MarkReading.h"
#include "recognition/precise/BoxRefinement.h"
#include "recognition/precise/CellPage.h"
#include "recognition/precise/PreciseMark.h"

namespace tavrene::recognition {
namespace {

using precise::BitPlane;
using precise::CellPoint;

constexpr std::size_t kPoints = 1500;
constexpr std::size_t kLeastPoints = 200;
constexpr int kTile = 32;               // cells
constexpr double kMargin = 0.02;        // of the page on each side: there lie the scanner's shadows
constexpr double kOutlineShare = 0.72;  // of an outline that must be there for a box to lie on the print
// Pixels of the profile.
constexpr int kReach = 4;
constexpr std::size_t kBorder = 4;  // what of a box is its printed line and the play around it
constexpr int kLine = 3;
constexpr double kPrintedInside = 2;  // percent: less is dirt of the specimen

// Where the profile's boxes are printed.
BitPlane BoxesOf(const precise::CellPage& page, const imaging::Page& specimen,
                 const profiles::ProfileRecord& profile, const FormScale& scale) {
    constexpr int around = 2;  // cells
    BitPlane boxes(page.Cells().Width(), page.Cells().Height());
    for (const profiles::PrintedBox& box : profile.Boxes) {
        const GridRect place = PlaceOf(specimen.grid, box, scale, {});
        // A document can tell of boxes that are far larger than any page.
        const int top = std::min(place.row1 / page.Factor() + around, boxes.Height() - 1);
        const int right = std::min(place.col1 / page.Factor() + around, boxes.Width() - 1);
        for (int row = std::max(0, place.row0 / page.Factor() - around); row <= top; ++row) {
            for (int column = std::max(0, place.col0 / page.Factor() - around); column <= right; ++column)
                boxes.Set(column, row);
        }
    }
    return boxes;
}

// The ink of a page by tile, without its margins and what is to be left out.
std::vector<std::vector<CellPoint>> InkByTile(const BitPlane& cells, const BitPlane& leftOut) {
    const int across = cells.Width() / kTile + 1;
    std::vector<std::vector<CellPoint>> tiles(static_cast<std::size_t>(across) *
                                              static_cast<std::size_t>(cells.Height() / kTile + 1));
    const auto marginX = static_cast<int>(kMargin * cells.Width());
    const auto marginY = static_cast<int>(kMargin * cells.Height());
    const BitPlane solid = Eroded2(cells);
    for (int row = marginY; row < cells.Height() - marginY; ++row) {
        for (int index = 0; index < cells.Words(); ++index) {
            BitPlane::Word word = cells.Row(row)[index] & ~solid.Row(row)[index] & ~leftOut.Row(row)[index];
            for (; word != 0; word &= word - 1) {
                const int column = index * BitPlane::kWordBits + std::countr_zero(word);
                const int tile = row / kTile * across + column / kTile;
                if (column >= marginX && column < cells.Width() - marginX)
                    tiles[static_cast<std::size_t>(tile)].push_back(
                        {static_cast<double>(column), static_cast<double>(row)});
            }
        }
    }
    return tiles;
}

// The most points a tile may give so that all together are about `kPoints`.
std::size_t FairPart(const std::vector<std::vector<CellPoint>>& tiles) {
    std::size_t part = 1;
    for (std::size_t sum = 0; part < kPoints; ++part) {
        sum = 0;
        for (const auto& tile : tiles)
            sum += std::min(tile.size(), part);
        if (sum >= kPoints)
            break;
    }
    return part;
}

// In the frame and pixels of the profile, also when the specimen was scanned anew at another resolution.
std::vector<CellPoint> SpreadPoints(const precise::CellPage& page, const BitPlane& leftOut, int height,
                                    const FormScale& scale) {
    const std::vector<std::vector<CellPoint>> tiles = InkByTile(page.Cells(), leftOut);
    const std::size_t part = FairPart(tiles);
    std::vector<CellPoint> points;
    for (const auto& tile : tiles) {
        const std::size_t taken = std::min(tile.size(), part);
        for (std::size_t k = 0; k < taken; ++k) {
            const CellPoint& cell = tile[k * tile.size() / taken];
            const double y = imaging::FlipVertically(double(height), page.ToPixels(cell.y));
            points.push_back({page.ToPixels(cell.x) / scale.sx, y / scale.sy});
        }
    }
    return points;
}

// Print is spread a little by a fat scan, and a box is found to the pixel, not better.
BitPlane LetterIn(const BitPlane& pixels, const GridRect& place, const imaging::Page& specimen, int line) {
    constexpr int around = 2;  // pixels of 200 dpi
    const int reach = specimen.DPI_X > 0 ? std::clamp(around * specimen.DPI_X / 200, 1, 8) : around;
    BitPlane box(place.col1 - place.col0 + 1, place.row1 - place.row0 + 1);
    for (int row = line; row < box.Height() - line; ++row) {
        for (int column = line; column < box.Width() - line; ++column) {
            if (pixels.Has(place.col0 + column, place.row0 + row))
                box.Set(column, row);
        }
    }
    return Dilated(box, reach);
}

}  // namespace

SpecimenPrint TakePrint(const imaging::Page& specimen, const profiles::ProfileRecord& profile) {
    SpecimenPrint print;
    const BitPlane pixels = WithoutNoise(precise::PlaneOf(specimen.grid));
    precise::CellPages pages(pixels);
    const FormScale scale = ScaleBetween(specimen, profile);
    const precise::CellPage& page = pages.ForBoxesOf(precise::TypicalBox(profile, scale));
    // The boxes have been matched before the print is asked: two forms with the same boxes differ elsewhere.
    const int height = specimen.grid.Rows();
    print.points = SpreadPoints(page, BoxesOf(page, specimen, profile, scale), height, scale);
    if (print.points.size() < kLeastPoints)
        print.points =
            SpreadPoints(page, BitPlane(page.Cells().Width(), page.Cells().Height()), height, scale);
    // A specimen that was scanned anew, and finer, has the profile's pixel several times.
    const auto onSpecimen = [&scale](double pixelsOfProfile) {
        return std::max(1, static_cast<int>(std::lround(pixelsOfProfile * scale.sx)));
    };
    precise::OutlineFinder finder(pixels, onSpecimen(1));
    std::size_t lying = 0;
    for (const profiles::PrintedBox& box : profile.Boxes) {
        const GridRect place = PlaceOf(specimen.grid, box, scale, {});
        if (finder.Find(place, onSpecimen(kReach)).ratio >= kOutlineShare)
            ++lying;
        print.beside.push_back(InkBeside(specimen.grid, place));
        auto& inside = print.inside.emplace_back();
        for (std::size_t k = 0; k < inside.size(); ++k)
            inside[k] = precise::FillInside(pixels, place, onSpecimen(static_cast<double>(k + 1)));
        print.letters.push_back(inside[kBorder - 1] >= kPrintedInside
                                    ? LetterIn(pixels, place, specimen, onSpecimen(kLine))
                                    : BitPlane());
    }
    print.belongs = 2 * lying > profile.Boxes.size() && !print.points.empty();
    return print;
}

}  // namespace tavrene::recognition
