#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "app/Files.h"
#include "imaging/ImageDecoder.h"
#include "imaging/WorkGrid.h"

namespace tavrene::imaging {

/// One binarised page: bit 1 of the bitmap is ink and shown black; the grid holds the same pixels.
struct Page {
    Bitmap bitmap;
    WorkGrid grid;
    std::int16_t DPI_X = 0;  ///< Dots per inch; 0 when the file carries no resolution.
    std::int16_t DPI_Y = 0;
    ImageFormat format = ImageFormat::Tiff;  ///< Of the file that it was read from.
    bool inverted = false;                   ///< The file's bits were the other way round.
    int furtherPages = 0;                    ///< How many more the file has, if it is a TIFF.
};

/// Why a file is no page: its extension stands for no file type, no bitmap could be had of it (damaged,
/// mislabelled, missing, too large), it has more than two colours, or there is no image library to ask.
enum class PageError { UnknownType, NotABitmap, TooManyColors, NoLibrary };

/// The reason in words, for the log and the operator.
std::string_view ReasonOf(PageError error);

/// The file type that the extension of `path` stands for; none for other extensions, tiff and jpeg among
/// them.
std::optional<ImageFormat> FormatOfExtension(std::string_view path);

/// The file type by which the specimen image of a profile is read: JPEG or PNG by its extension, TIFF
/// otherwise.
ImageFormat SpecimenFormat(std::string_view path);

/// Makes a page of an image file's content. PNG, GIF and JPEG are reduced to two colours at level 128, a
/// transparent picture laid on white first; the other types must have two colours. Ink is what is dark, for
/// every type.
std::variant<Page, PageError> PageOf(std::span<const std::byte> content, ImageFormat format);

/// Reads a file as a page of the given type.
std::variant<Page, PageError> ReadPage(const app::Files& files, const std::string& path, ImageFormat format);

/// Reads a file as a page by the type that its extension stands for.
std::variant<Page, PageError> ReadPage(const app::Files& files, const std::string& path);

/// Reads a specimen image as a page.
std::variant<Page, PageError> ReadSpecimen(const app::Files& files, const std::string& path);

}  // namespace tavrene::imaging
