#include "intake/PagePicture.h"

#include <poppler/GfxState.h>
#include <poppler/Stream.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "imaging/ImageHeader.h"
#include "imaging/ScanPicture.h"
#include "intake/PictureStream.h"

namespace tavrene::intake {
namespace {

// How far the edges of picture and page may lie apart, as a share of the page: scanners round their sizes.
constexpr double kEdgeTolerance = 0.01;

// Of the device's unit: what rounding leaves of a straight angle.
constexpr double kStraight = 0.001;

struct Vector {
    double x = 0;
    double y = 0;
};

double Length(const Vector& v) {
    return std::hypot(v.x, v.y);
}

// Where a picture lies on the page: the way of its lines and the way from line to line, in device units.
struct Place {
    Vector along;
    Vector down;
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
};

Place PlaceOf(const GfxState& state) {
    const double* const m = state.getCTM();
    const auto [left, right] = std::minmax({m[4], m[4] + m[0], m[4] + m[2], m[4] + m[0] + m[2]});
    const auto [top, bottom] = std::minmax({m[5], m[5] + m[1], m[5] + m[3], m[5] + m[1] + m[3]});
    return {{m[0], m[1]}, {-m[2], -m[3]}, left, top, right, bottom};
}

bool IsNone(double part, const Vector& whole) {
    return std::abs(part) <= kStraight * Length(whole);
}

// How a picture is turned to look as on the page; none where the page has it askew.
std::optional<imaging::Turn> TurnOf(const Place& place) {
    const bool level = IsNone(place.along.y, place.along) && IsNone(place.down.x, place.down);
    const bool upended = IsNone(place.along.x, place.along) && IsNone(place.down.y, place.down);
    if (level) {
        const bool backwards = place.along.x < 0;
        const bool upsideDown = place.down.y < 0;
        return imaging::Turn{backwards != upsideDown, upsideDown ? 2 : 0};
    }
    if (upended) {
        const bool mirrored = (place.along.y > 0) == (place.down.x > 0);
        return imaging::Turn{mirrored, place.down.x < 0 ? 1 : 3};
    }
    return std::nullopt;
}

bool IsPlain(const GfxState& state) {
    return state.getFillOpacity() >= 1.0 && state.getBlendMode() == gfxBlendNormal;
}

bool FillsWith(const GfxState& state, GfxColorComp level) {
    GfxRGB color;
    state.getFillRGB(&color);
    return color.r == level && color.g == level && color.b == level;
}

// An upright rectangle on the page, as most programs clip to.
bool IsUprightRectangle(const GfxState& state) {
    const GfxPath* const path = state.getPath();
    if (path->getNumSubpaths() != 1)
        return false;
    const GfxSubpath* const outline = path->getSubpath(0);
    const int points = outline->getNumPoints();
    if (points < 4 || points > 5)
        return false;
    for (int k = 0; k + 1 < points; ++k) {
        Vector a;
        Vector b;
        state.transform(outline->getX(k), outline->getY(k), &a.x, &a.y);
        state.transform(outline->getX(k + 1), outline->getY(k + 1), &b.x, &b.y);
        const Vector side{b.x - a.x, b.y - a.y};
        if (outline->getCurve(k) || !(IsNone(side.x, side) || IsNone(side.y, side)))
            return false;
    }
    return true;
}

}  // namespace

std::optional<imaging::Bitmap> PagePicture::Take() {
    if (fault_)
        std::rethrow_exception(fault_);
    if (isPainted_ || isSpoilt_)
        return std::nullopt;
    return std::exchange(picture_, std::nullopt);
}

void PagePicture::clip(GfxState* state) {
    if (!IsUprightRectangle(*state))
        SpoiltForGood();
}

// White on white paper does not show.
void PagePicture::Filled(GfxState* state) {
    if (picture_ || isPainted_ || !FillsWith(*state, gfxColorComp1))
        Painted();
}

void PagePicture::drawChar(GfxState* state, double, double, double, double, double, double, CharCode, int,
                           const Unicode*, int) {
    constexpr int kInvisible = 3;
    constexpr int kOnlyClips = 7;
    if (state->getRender() == kOnlyClips)
        SpoiltForGood();
    else if (state->getRender() != kInvisible)
        Painted();
}

// Picture and page have the same edges, and no clip cuts anything off them.
bool PagePicture::CoversPage(const GfxState& state) const {
    const Place place = PlaceOf(state);
    const Vector allowed{kEdgeTolerance * pageWidth_, kEdgeTolerance * pageHeight_};
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
    state.getClipBBox(&left, &top, &right, &bottom);
    const auto covers = [&](double l, double t, double r, double b) {
        return l <= allowed.x && t <= allowed.y && r >= pageWidth_ - allowed.x &&
               b >= pageHeight_ - allowed.y;
    };
    return covers(place.left, place.top, place.right, place.bottom) && covers(left, top, right, bottom) &&
           place.left >= -allowed.x && place.top >= -allowed.y && place.right <= pageWidth_ + allowed.x &&
           place.bottom <= pageHeight_ + allowed.y;
}

// False where the picture is not the page and was not read.
template <typename Decode>
bool PagePicture::Keep(const GfxState& state, const Decode& decode) {
    const Place place = PlaceOf(state);
    const std::optional<imaging::Turn> turn = TurnOf(place);
    if (!turn || !CoversPage(state) || !IsPlain(state))
        return false;
    try {
        imaging::Bitmap picture = imaging::Turned(decode(), *turn);
        imaging::SetResolution(picture, picture.Width() * PagePicture::kDpi / (place.right - place.left),
                               picture.Height() * PagePicture::kDpi / (place.bottom - place.top));
        picture_ = std::move(picture);
        isPainted_ = false;  // all that was painted lies below now
    } catch (const std::exception&) {
        fault_ = std::current_exception();
    }
    return true;
}

bool PagePicture::MayBeAStencil(const GfxState& state) const {
    return !picture_ && !isPainted_ && FillsWith(state, 0);
}

// What stands within the page's own text has to be read all the same, or its bytes would count as text; that
// is all that the base does.
void PagePicture::drawImageMask(GfxState* state, Object* reference, Stream* stream, int width, int height,
                                bool invert, bool interpolate, bool isInline) {
    if (imaging::IsTooLarge(width, height))
        return Painted();
    if (MayBeAStencil(*state) && Keep(*state, [&] { return DecodeStencil(*stream, width, height, invert); }))
        return;
    Painted();
    OutputDev::drawImageMask(state, reference, stream, width, height, invert, interpolate, isInline);
}

void PagePicture::drawImage(GfxState* state, Object* reference, Stream* stream, int width, int height,
                            GfxImageColorMap* colors, bool interpolate, const int* maskColors,
                            bool isInline) {
    if (imaging::IsTooLarge(width, height))
        return Painted();
    if (maskColors == nullptr && Keep(*state, [&] { return DecodePicture(*stream, width, height, *colors); }))
        return;
    Painted();
    OutputDev::drawImage(state, reference, stream, width, height, colors, interpolate, maskColors, isInline);
}

}  // namespace tavrene::intake
