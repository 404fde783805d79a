#pragma once

#include <poppler/Object.h>
#include <poppler/OutputDev.h>

#include <exception>
#include <optional>

#include "imaging/Bitmap.h"

namespace tavrene::intake {

/// Watches what a page of a PDF paints, without painting it, and keeps the picture where the page is nothing
/// but one. Whatever lies below a picture that covers the page does not count (scanning programs put the
/// recognised text there), nor does invisible text.
///
/// The page has to be shown at `kDpi`; sizes are in points, y runs down.
class PagePicture final : public OutputDev {
  public:
    static constexpr double kDpi = 72;

    PagePicture(double pageWidth, double pageHeight) : pageWidth_(pageWidth), pageHeight_(pageHeight) {}

    /// The picture upright, with its resolution; none when the page shows anything else as well. Throws what
    /// `DecodePicture` throws.
    std::optional<imaging::Bitmap> Take();

    bool upsideDown() override { return true; }
    bool useDrawChar() override { return true; }
    bool interpretType3Chars() override { return true; }

    void stroke(GfxState*) override { Painted(); }
    void fill(GfxState* state) override { Filled(state); }
    void eoFill(GfxState* state) override { Filled(state); }
    void clip(GfxState* state) override;
    void eoClip(GfxState* state) override { clip(state); }
    void clipToStrokePath(GfxState*) override { Painted(); }
    void drawChar(GfxState* state, double, double, double, double, double, double, CharCode, int,
                  const Unicode*, int) override;
    void drawImageMask(GfxState* state, Object* reference, Stream* stream, int width, int height, bool invert,
                       bool interpolate, bool isInline) override;
    void drawImage(GfxState* state, Object* reference, Stream* stream, int width, int height,
                   GfxImageColorMap* colors, bool interpolate, const int* maskColors, bool isInline) override;
    void drawMaskedImage(GfxState*, Object*, Stream*, int, int, GfxImageColorMap*, bool, Stream*, int, int,
                         bool, bool) override {
        Painted();
    }
    void drawSoftMaskedImage(GfxState*, Object*, Stream*, int, int, GfxImageColorMap*, bool, Stream*, int,
                             int, GfxImageColorMap*, bool) override {
        Painted();
    }
    void setSoftMaskFromImageMask(GfxState*, Object*, Stream*, int, int, bool, bool, double*) override {
        SpoiltForGood();
    }
    void beginTransparencyGroup(GfxState*, const double*, GfxColorSpace*, bool, bool, bool) override {
        SpoiltForGood();
    }
    void setSoftMask(GfxState*, const double*, bool, Function*, GfxColor*) override { SpoiltForGood(); }

  private:
    void Painted() { isPainted_ = true; }
    // What is seen then depends on more than the order of painting.
    void SpoiltForGood() { isSpoilt_ = true; }
    void Filled(GfxState* state);
    bool MayBeAStencil(const GfxState& state) const;
    bool CoversPage(const GfxState& state) const;
    template <typename Decode>
    bool Keep(const GfxState& state, const Decode& decode);

    double pageWidth_;
    double pageHeight_;
    bool isPainted_ = false;  ///< Something shows beside the picture.
    bool isSpoilt_ = false;
    std::optional<imaging::Bitmap> picture_;
    std::exception_ptr fault_;  ///< Kept until the library, which knows no exceptions, is done with the page.
};

}  // namespace tavrene::intake
