#pragma once

#include "painter/Canvas.h"
#include "painter/Random.h"

namespace tavrene::samples {

/// How a page lies on the scanner's glass and what the scanner makes of it.
struct ScanSettings {
    int Dpi = 200;
    double ShiftX = 0;  ///< Pixels of the scan, to the right.
    double ShiftY = 0;  ///< Pixels of the scan, downwards.
    double StretchX = 1;
    double StretchY = 1;
    double SkewDegrees = 0;  ///< Clockwise, about the middle of the page; 180 is upside down.
    double Bend = 0;         ///< How many pixels of the scan a slow bend of the paper moves a place at most.
    double Noise = 0;        ///< Largest error of a grey value.
    int Specks = 0;
    double Thin = 0;  ///< Share of the outermost dark pixels that are lost.
};

/// A colour by its three grey values.
struct Tint {
    Shade Red = kBlack;
    Shade Green = kBlack;
    Shade Blue = kBlack;
};

/// The page at the scan's resolution, as large as an unmoved scan; what lies beyond the page is white. Every
/// pixel is the mean of the paper below it. Noise and specks are not added here.
Canvas TakeScan(const Canvas& page, const ScanSettings& settings);

/// One channel of a scan from print and pen: paper of grey value `paper`, black print, ink of grey value
/// `ink`.
Canvas Develop(const Canvas& print, const Canvas& pen, Shade paper, Shade ink);

/// Shakes every grey value by up to `noise`.
void AddNoise(Canvas& scan, Random& random, double noise);

/// Takes away a share of the dark pixels that have a light one beside them.
void ThinOut(Canvas& scan, Random& random, double share);

}  // namespace tavrene::samples
