#include "painter/Typeface.h"

#include <ft2build.h>

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include FT_FREETYPE_H

namespace tavrene::samples {

namespace {

constexpr double kUnitsPerPixel = 64;  // the font library counts in 64ths

std::string FontFile(Typeface::Style style) {
    const std::string folder = "/usr/share/fonts/truetype/dejavu/";
    switch (style) {
        case Typeface::Style::SansBold:
            return folder + "DejaVuSans-Bold.ttf";
        case Typeface::Style::Serif:
            return folder + "DejaVuSerif.ttf";
        case Typeface::Style::SerifBold:
            return folder + "DejaVuSerif-Bold.ttf";
        case Typeface::Style::Sans:
            break;
    }
    return folder + "DejaVuSans.ttf";
}

/// Takes the first character off valid UTF-8 text.
char32_t TakeCharacter(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text.front());
    std::size_t length = 1;
    char32_t code = lead;
    if (lead >= 0xE0U) {
        length = 3;
        code = lead & 0x0FU;
    } else if (lead >= 0xC0U) {
        length = 2;
        code = lead & 0x1FU;
    }
    for (std::size_t i = 1; i < length && i < text.size(); ++i)
        code = (code << 6U) | (static_cast<unsigned char>(text[i]) & 0x3FU);
    text.remove_prefix(std::min(length, text.size()));
    return code;
}

void DrawGlyph(Canvas& canvas, const FT_GlyphSlotRec& slot, Point pen, Shade shade) {
    const int left = static_cast<int>(std::lround(pen.x)) + slot.bitmap_left;
    const int top = static_cast<int>(std::lround(pen.y)) - slot.bitmap_top;
    const auto width = static_cast<int>(slot.bitmap.width);
    for (int y = 0; y < static_cast<int>(slot.bitmap.rows); ++y)
        for (int x = 0; x < width; ++x) {
            const int cover = slot.bitmap.buffer[y * slot.bitmap.pitch + x];
            canvas.Darken(left + x, top + y, static_cast<Shade>(kWhite - cover * (kWhite - shade) / 255));
        }
}

}  // namespace

struct Typeface::Face {
    FT_Library library = nullptr;
    FT_Face face = nullptr;

    ~Face() {
        FT_Done_Face(face);
        FT_Done_FreeType(library);
    }

    /// Loads the glyph of a character at a size; its width in pixels is returned.
    double Load(char32_t character, double points, int dpi, FT_Int32 flags) const {
        FT_Set_Char_Size(face, 0, std::lround(points * kUnitsPerPixel), 0, static_cast<FT_UInt>(dpi));
        if (FT_Load_Char(face, character, flags | static_cast<FT_Int32>(FT_LOAD_NO_HINTING)) != 0)
            throw std::runtime_error("A character of the text has no glyph.");
        return static_cast<double>(face->glyph->advance.x) / kUnitsPerPixel;
    }
};

Typeface::Typeface(Style style) : face_(std::make_unique<Face>()) {
    const std::string file = FontFile(style);
    if (FT_Init_FreeType(&face_->library) != 0)
        throw std::runtime_error("The font library cannot be started.");
    if (FT_New_Face(face_->library, file.c_str(), 0, &face_->face) != 0)
        throw std::runtime_error("The font " + file + " cannot be read.");
}

Typeface::~Typeface() = default;
Typeface::Typeface(Typeface&&) noexcept = default;
Typeface& Typeface::operator=(Typeface&&) noexcept = default;

Point Typeface::DrawText(Canvas& canvas, Point origin, double points, std::string_view text, Shade shade) {
    Point pen = origin;
    while (!text.empty()) {
        const double advance = face_->Load(TakeCharacter(text), points, canvas.Dpi(), FT_LOAD_RENDER);
        DrawGlyph(canvas, *face_->face->glyph, pen, shade);
        pen.x += advance;
    }
    return pen;
}

double Typeface::TextWidth(double points, int dpi, std::string_view text) {
    double width = 0;
    while (!text.empty())
        width += face_->Load(TakeCharacter(text), points, dpi, FT_LOAD_DEFAULT);
    return width;
}

}  // namespace tavrene::samples
