#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "painter/Canvas.h"

namespace tavrene::samples {

/// The printed text of forms: one face of the DejaVu fonts, drawn without hinting so that it is the same
/// everywhere.
class Typeface {
  public:
    enum class Style { Sans, SansBold, Serif, SerifBold };

    /// Throws std::runtime_error, naming the file, when the font is not installed.
    explicit Typeface(Style style);
    ~Typeface();
    Typeface(Typeface&&) noexcept;
    Typeface& operator=(Typeface&&) noexcept;
    Typeface(const Typeface&) = delete;
    Typeface& operator=(const Typeface&) = delete;

    /// Draws UTF-8 text with its base line starting at `origin`; `points` is the size at the canvas's
    /// resolution. Returns the place behind the text.
    Point DrawText(Canvas& canvas, Point origin, double points, std::string_view text, Shade shade = kBlack);

    /// The text's width in pixels at a resolution.
    double TextWidth(double points, int dpi, std::string_view text);

  private:
    struct Face;
    std::unique_ptr<Face> face_;
};

}  // namespace tavrene::samples
