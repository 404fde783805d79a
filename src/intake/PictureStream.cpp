#include "intake/PictureStream.h"

#include <poppler/GfxState.h>
#include <poppler/Stream.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "imaging/ScanPicture.h"

namespace tavrene::intake {
namespace {

using imaging::Bitmap;
using Line = std::vector<std::uint8_t>;

struct Color {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    bool IsGrey() const { return red == green && red == blue; }
    bool operator==(const Color&) const = default;
};

constexpr Color kBlack = {0, 0, 0};
constexpr Color kWhite = {255, 255, 255};

Color ColorOf(GfxImageColorMap& colors, const std::uint8_t* sample) {
    GfxRGB color;
    colors.getRGB(sample, &color);
    return {colToByte(color.r), colToByte(color.g), colToByte(color.b)};
}

// Takes the lines of a picture off its stream, top line first.
class LineReader {
  public:
    // `samples` of `bits` bits each stand on a line.
    LineReader(Stream& stream, int samples, int bits) : stream_(stream), bits_(static_cast<unsigned>(bits)) {
        packed_.resize((static_cast<std::size_t>(samples) * bits_ + 7) / 8);
        samples_.resize(static_cast<std::size_t>(samples));
        stream_.reset();
    }
    ~LineReader() { stream_.close(); }
    LineReader(const LineReader&) = delete;
    LineReader& operator=(const LineReader&) = delete;

    // The next line as it is packed.
    Line& NextPacked() {
        const int size = static_cast<int>(packed_.size());
        if (stream_.doGetChars(size, packed_.data()) != size)
            throw PictureIsCut();
        return packed_;
    }

    // The next line with one sample a byte; of 16 bits the upper 8, which is all that a page needs.
    Line& NextSamples() {
        Line& packed = NextPacked();
        if (bits_ == 8)
            return packed;
        for (std::size_t k = 0; k < samples_.size(); ++k)
            samples_[k] = bits_ == 16 ? packed[2 * k] : SampleAt(packed, k);
        return samples_;
    }

  private:
    std::uint8_t SampleAt(const Line& packed, std::size_t k) const {
        const std::size_t bit = k * bits_;
        const unsigned shift = 8 - bits_ - static_cast<unsigned>(bit % 8);
        return static_cast<std::uint8_t>((unsigned{packed[bit / 8]} >> shift) & ((1U << bits_) - 1));
    }

    Stream& stream_;
    unsigned bits_;
    Line packed_;
    Line samples_;
};

// The scan line of the picture's line `y`, counted from the top.
std::span<std::uint8_t> ScanLineAt(Bitmap& picture, int y) {
    return picture.ScanLine(picture.Height() - 1 - y);
}

Bitmap DecodeBits(Stream& stream, int width, int height, bool oneIsInk) {
    Bitmap picture = imaging::NewPicture(width, height, 1);
    LineReader lines(stream, width, 1);
    const auto lastBits = static_cast<std::uint8_t>(width % 8 == 0 ? 0xFF : 0xFF << (8 - width % 8));
    for (int y = 0; y < height; ++y) {
        const Line& line = lines.NextPacked();
        const std::span<std::uint8_t> to = ScanLineAt(picture, y).first(line.size());
        std::transform(line.begin(), line.end(), to.begin(), [oneIsInk](std::uint8_t byte) {
            return oneIsInk ? byte : static_cast<std::uint8_t>(~byte);
        });
        to.back() &= lastBits;  // what lies beyond the edge is no ink
    }
    return picture;
}

// The colour of every value of a single channel of at most 8 bits.
std::vector<Color> ColorsOfValues(GfxImageColorMap& colors) {
    std::vector<Color> found(std::size_t{1} << static_cast<unsigned>(std::min(colors.getBits(), 8)));
    for (std::size_t value = 0; value < found.size(); ++value) {
        const auto sample = static_cast<std::uint8_t>(value);
        found[value] = ColorOf(colors, &sample);
    }
    return found;
}

Bitmap DecodeGrey(Stream& stream, int width, int height, int bits, const std::vector<Color>& colors) {
    Bitmap picture = imaging::NewPicture(width, height, 8);
    LineReader lines(stream, width, bits);
    for (int y = 0; y < height; ++y) {
        const Line& line = lines.NextSamples();
        std::transform(line.begin(), line.end(), ScanLineAt(picture, y).begin(),
                       [&colors](std::uint8_t value) { return colors[value].red; });
    }
    return picture;
}

void PutColor(std::span<std::uint8_t> line, std::size_t x, const Color& color) {
    line[3 * x] = color.blue;
    line[3 * x + 1] = color.green;
    line[3 * x + 2] = color.red;
}

void PutColors(std::span<std::uint8_t> to, Line& line, std::size_t width, GfxImageColorMap& colors,
               Line& rgb) {
    const auto channels = static_cast<std::size_t>(colors.getNumPixelComps());
    if (!colors.useRGBLine()) {
        for (std::size_t x = 0; x < width; ++x)
            PutColor(to, x, ColorOf(colors, line.data() + x * channels));
        return;
    }
    colors.getRGBLine(line.data(), rgb.data(), static_cast<int>(width));
    for (std::size_t x = 0; x < width; ++x)
        PutColor(to, x, {rgb[3 * x], rgb[3 * x + 1], rgb[3 * x + 2]});
}

Bitmap DecodeColor(Stream& stream, int width, int height, GfxImageColorMap& colors) {
    Bitmap picture = imaging::NewPicture(width, height, 24);
    LineReader lines(stream, width * colors.getNumPixelComps(), colors.getBits());
    Line rgb(3 * static_cast<std::size_t>(width));
    for (int y = 0; y < height; ++y)
        PutColors(ScanLineAt(picture, y), lines.NextSamples(), static_cast<std::size_t>(width), colors, rgb);
    return picture;
}

}  // namespace

Bitmap DecodePicture(Stream& stream, int width, int height, GfxImageColorMap& colors) {
    if (colors.getNumPixelComps() != 1)
        return DecodeColor(stream, width, height, colors);
    const std::vector<Color> values = ColorsOfValues(colors);
    if (values == std::vector{kBlack, kWhite} || values == std::vector{kWhite, kBlack})
        return DecodeBits(stream, width, height, values[1] == kBlack);
    if (std::all_of(values.begin(), values.end(), [](const Color& color) { return color.IsGrey(); }))
        return DecodeGrey(stream, width, height, colors.getBits(), values);
    return DecodeColor(stream, width, height, colors);
}

Bitmap DecodeStencil(Stream& stream, int width, int height, bool invert) {
    return DecodeBits(stream, width, height, invert);
}

}  // namespace tavrene::intake
