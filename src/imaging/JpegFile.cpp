#include "imaging/JpegFile.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <map>

#include "imaging/ByteReader.h"

namespace tavrene::imaging {
namespace {

constexpr std::uint64_t kHuffmanTables = 0xC4;
constexpr std::uint64_t kProgressive = 0xC2;
constexpr std::uint64_t kStartOfScan = 0xDA;
constexpr std::uint64_t kEndOfImage = 0xD9;
constexpr std::uint64_t kJfif = 0xE0;

// Behind the byte FF: a byte of the picture, a mark within its data, or one more byte FF to fill up.
bool IsPictureData(std::uint64_t marker) {
    return marker == 0 || marker == 0xFF || (marker >= 0xD0 && marker <= 0xD7);
}

// Calls `see(marker, offset)` for every segment up to the end marker. False where there is none.
template <typename See>
bool WalkSegments(std::span<const std::byte> content, See see) {
    const ByteReader reader(content, ByteReader::Order::BigEndian);
    std::uint64_t at = 2;
    while (reader.Holds(at, 2)) {
        const void* const found = std::memchr(content.data() + at, 0xFF, content.size() - at - 1);
        if (found == nullptr)
            return false;
        at = static_cast<std::uint64_t>(static_cast<const std::byte*>(found) - content.data());
        const std::uint64_t marker = reader.Number(at + 1, 1);
        if (marker == kEndOfImage)
            return true;
        if (IsPictureData(marker)) {
            ++at;
            continue;
        }
        see(marker, at);
        at += 2 + reader.Number(at + 2, 2);
    }
    return false;
}

// Which bits of the picture have come: of each component's 64 coefficients the lowest bit sent so far.
class Scans {
  public:
    void StartPicture(const ByteReader& reader, std::uint64_t segment, JpegOutline& outline) {
        isProgressive_ = reader.Number(segment + 1, 1) == kProgressive;
        hasManyScans_ = hasManyScans_ || isProgressive_;
        lowest_.clear();
        std::int64_t blocks = 0;
        std::int64_t across = 1;  // blocks of the finest component in one unit
        std::int64_t down = 1;
        for (std::uint64_t k = 0; k < reader.Number(segment + 9, 1); ++k) {
            lowest_[reader.Number(segment + 10 + 3 * k, 1)].fill(kNothing);
            const auto sampling = static_cast<std::int64_t>(reader.Number(segment + 11 + 3 * k, 1));
            blocks += (sampling >> 4) * (sampling & 15);
            across = std::max(across, sampling >> 4);
            down = std::max(down, sampling & 15);
        }
        // Of several pictures, which no sound file has, the largest counts: the library may take any.
        outline.width = std::max(outline.width, static_cast<std::int64_t>(reader.Number(segment + 7, 2)));
        outline.height = std::max(outline.height, static_cast<std::int64_t>(reader.Number(segment + 5, 2)));
        outline.components = std::max(outline.components, static_cast<std::int64_t>(lowest_.size()));
        coefficientBytes_ =
            std::max(coefficientBytes_, Units(outline.width, across) * Units(outline.height, down) * blocks *
                                            kBlockSide * kBlockSide * 2);
    }

    void Add(const ByteReader& reader, std::uint64_t segment) {
        const std::uint64_t components = reader.Number(segment + 4, 1);
        hasManyScans_ = hasManyScans_ || components < lowest_.size();
        const std::uint64_t range = segment + 5 + 2 * components;
        const std::uint64_t first = isProgressive_ ? reader.Number(range, 1) : 0;
        const std::uint64_t last = isProgressive_ ? reader.Number(range + 1, 1) : 63;
        const std::uint64_t bit = isProgressive_ ? reader.Number(range + 2, 1) & 15U : 0;
        for (std::uint64_t k = 0; k < components; ++k) {
            const auto component = lowest_.find(reader.Number(segment + 5 + 2 * k, 1));
            for (std::uint64_t c = first; component != lowest_.end() && c <= last && c < 64; ++c)
                component->second[c] = bit;
        }
    }

    bool AreComplete() const {
        const auto isComplete = [](const auto& component) {
            return std::all_of(component.second.begin(), component.second.end(),
                               [](std::uint64_t bit) { return bit == 0; });
        };
        return !lowest_.empty() && std::all_of(lowest_.begin(), lowest_.end(), isComplete);
    }

    std::int64_t HeldBytes() const { return hasManyScans_ ? coefficientBytes_ : 0; }

  private:
    static constexpr std::uint64_t kNothing = 255;
    static constexpr std::int64_t kBlockSide = 8;

    static std::int64_t Units(std::int64_t pixels, std::int64_t blocks) {
        return (pixels + kBlockSide * blocks - 1) / (kBlockSide * blocks);
    }

    bool isProgressive_ = false;
    bool hasManyScans_ = false;
    std::int64_t coefficientBytes_ = 0;
    std::map<std::uint64_t, std::array<std::uint64_t, 64>> lowest_;
};

// C0 to CF but for three that carry tables.
bool StartsPicture(std::uint64_t marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != kHuffmanTables && marker != 0xC8 && marker != 0xCC;
}

bool IsMeasured(const ByteReader& reader, std::uint64_t segment) {
    constexpr std::uint64_t kName = 0x4A46494600;
    const std::uint64_t unit = reader.Number(segment + 11, 1);
    return reader.Number(segment + 4, 5) == kName && (unit == 1 || unit == 2);
}

}  // namespace

JpegOutline OutlineOfJpeg(std::span<const std::byte> content) {
    const ByteReader reader(content, ByteReader::Order::BigEndian);
    JpegOutline outline;
    Scans scans;
    outline.hasEndMarker = WalkSegments(content, [&](std::uint64_t marker, std::uint64_t segment) {
        if (marker == kJfif)
            outline.isMeasured = outline.isMeasured || IsMeasured(reader, segment);
        else if (StartsPicture(marker))
            scans.StartPicture(reader, segment, outline);
        else if (marker == kStartOfScan)
            scans.Add(reader, segment);
    });
    outline.hasAllScans = scans.AreComplete();
    outline.heldBytes = scans.HeldBytes();
    return outline;
}

}  // namespace tavrene::imaging
