#pragma once

#include "imaging/PageReader.h"
#include "painter/Canvas.h"
#include "painter/Random.h"

namespace tavrene::samples {

/// What a scanner makes of a sheet. Lengths in millimetres.
struct ScanWear {
    double TiltDegrees = 0;
    double ShiftX = 0;
    double ShiftY = 0;
    double StretchX = 0;  ///< 0.03 is 3 % longer.
    double StretchY = 0;
    double Bend = 0;        ///< How far a slow bend moves a place at most.
    double Thin = 0;        ///< Share of the outermost ink pixels that are gone.
    int Fat = 0;            ///< Pixels added all around.
    double Noise = 0;       ///< Share of all pixels turned over.
    int DroppedLines = 0;   ///< Scan lines lost, as many doubled.
    double BlackEdges = 0;  ///< Width of the shadow on two edges.
    bool Holes = false;     ///< Two punched holes, seen black.
    bool UpsideDown = false;
    int JpegQuality = 0;  ///< 0: two colours. Else grey paper through a JPEG file of this quality.
};

/// The sheet as the scanner gives it, binarised as the program does. The scan tells the resolution of the
/// canvas.
imaging::Page Scan(const Canvas& sheet, const ScanWear& wear, Random& dice);

/// A scan as it is, without any wear: a specimen.
imaging::Page CleanScan(const Canvas& sheet);

}  // namespace tavrene::samples
