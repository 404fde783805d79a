#pragma once

#include <span>
#include <string>

#include "imaging/Bitmap.h"

namespace tavrene::samples {

/// A page of a PDF with one picture, "/Im0", and what it paints.
struct PdfPage {
    double width = 0;  ///< In points of 1/72 inch.
    double height = 0;
    std::string entries;   ///< More of the page's dictionary: "/Rotate 90".
    std::string contents;  ///< What the page paints, in the language of PDF.
    std::string picture;   ///< The dictionary of the picture without brackets, type and length.
    std::string data;      ///< Its stream.
};

/// Paints the picture from edge to edge.
std::string WholePage(const PdfPage& page);

/// A page as a scanner writes it: a one-bit picture in Group 4, from edge to edge, at its own resolution.
PdfPage ScannedPage(const imaging::Bitmap& picture);

/// The file; `trailer` goes into its trailer.
std::string PdfOf(std::span<const PdfPage> pages, const std::string& trailer = {});

}  // namespace tavrene::samples
