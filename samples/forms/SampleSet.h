#pragma once

#include <string>
#include <vector>

#include "forms/Filling.h"
#include "forms/Scanner.h"
#include "imaging/Bitmap.h"
#include "painter/ImageFiles.h"

namespace tavrene::samples {

/// What kind of picture the scanner makes.
enum class Depth { OneBit, Grey, Colour };

struct Look {
    Depth Bits = Depth::OneBit;
    imaging::ImageFormat Format = imaging::ImageFormat::Tiff;
    Photometric Order = Photometric::MinIsWhite;  ///< Of one-bit pictures.
    Tint Paper{kWhite, kWhite, kWhite};
    Tint Ink{kBlack, kBlack, kBlack};
    int Quality = 60;      ///< Of JPEG.
    double KeptShare = 1;  ///< Of the file; less than 1 is a damaged file.
};

/// One scan of the sample folder.
struct Sample {
    std::string File{};  ///< Name of the scan.
    std::string Form{};
    Respondent Who{};
    ScanSettings Scan{};
    Look Picture{};
    std::string Outcome{};      ///< "unclassified", "unreadable", or empty: the form's own name.
    std::string BeyondRules{};  ///< As in the truth file.
};

/// All scans, in the order of the truth file.
std::vector<Sample> AllSamples();

/// The scan's picture.
imaging::Bitmap PaintSample(const Sample& sample, const PrintedForm& form, const Filling& filling);

}  // namespace tavrene::samples
