#include "boxes/ScorePicture.h"

#include <cmath>

#include "boxes/BoxScore.h"
#include "painter/ImageFiles.h"

namespace tavrene::samples {
namespace {

using imaging::FlipVertically;
using imaging::WorkGrid;

struct Colour {
    Shade Red;
    Shade Green;
    Shade Blue;
};

constexpr Shade kInkShade = 170;
constexpr Colour kRightColour{0, 160, 0};
constexpr Colour kMissedColour{0, 0, 255};
constexpr Colour kFalseColour{230, 0, 0};

ColourPicture GreyPicture(const WorkGrid& grid) {
    const Canvas white(grid.Width(), grid.Rows(), 100);
    ColourPicture picture{white, white, white};
    for (int row = 0; row < grid.Rows(); ++row) {
        for (int column = 0; column < grid.Width(); ++column) {
            if (!grid.IsInk(column, row))
                continue;
            const int y = FlipVertically(grid.Rows() - 1, row);
            for (Canvas* const canvas : {&picture.Red, &picture.Green, &picture.Blue})
                canvas->Set(column, y, kInkShade);
        }
    }
    return picture;
}

void SetColour(ColourPicture& picture, int column, int row, const Colour& colour) {
    const int y = FlipVertically(picture.Red.Height() - 1, row);
    picture.Red.Set(column, y, colour.Red);
    picture.Green.Set(column, y, colour.Green);
    picture.Blue.Set(column, y, colour.Blue);
}

// An outline in the grid frame; a segment is one without extent in one direction.
void DrawOutline(ColourPicture& picture, const TrueBox& box, const Colour& colour) {
    const auto left = static_cast<int>(std::lround(box.L));
    const auto right = static_cast<int>(std::lround(box.R));
    const auto bottom = static_cast<int>(std::lround(box.T));
    const auto top = static_cast<int>(std::lround(box.B));
    for (int column = left; column <= right; ++column) {
        SetColour(picture, column, bottom, colour);
        SetColour(picture, column, top, colour);
    }
    for (int row = bottom; row <= top; ++row) {
        SetColour(picture, left, row, colour);
        SetColour(picture, right, row, colour);
    }
}

template <typename Rectangle>
TrueBox EdgesOf(const Rectangle& found) {
    return {static_cast<double>(found.L), static_cast<double>(found.T), static_cast<double>(found.R),
            static_cast<double>(found.B)};
}

}  // namespace

ColourPicture PictureOfScore(const BoxPage& page) {
    ColourPicture picture = GreyPicture(page.Grid);
    const PageScore score = ScorePage(page.GroundTruth, FindOnPage(page).Second);
    for (const boxes::BoxRect& box : score.Right)
        DrawOutline(picture, EdgesOf(box), kRightColour);
    for (const TrueBox& box : score.Missed)
        DrawOutline(picture, box, kMissedColour);
    for (const boxes::BoxRect& box : score.False)
        DrawOutline(picture, EdgesOf(box), kFalseColour);
    return picture;
}

ColourPicture PictureOfSegments(const BoxPage& page, int steps) {
    const boxes::BoxAnalysis analysis = AnalyseSteps(page, steps);
    ColourPicture picture = GreyPicture(analysis.WorkGrid);
    for (const boxes::LineSeg& segment : analysis.Segments)
        DrawOutline(picture, EdgesOf(segment), segment.IsVertical() ? kMissedColour : kFalseColour);
    return picture;
}

void SavePicture(const ColourPicture& picture, const std::string& path) {
    SaveImage(ToColour(picture.Red, picture.Green, picture.Blue), imaging::ImageFormat::Png, path);
}

}  // namespace tavrene::samples
