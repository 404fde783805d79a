#include "imaging/TiffMetadata.h"

#include <tiffio.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <set>

#include "imaging/ByteReader.h"

namespace tavrene::imaging {
namespace {

using Order = ByteReader::Order;

// In ascending order.
constexpr std::array<std::uint64_t, 45> kPictureTags = {TIFFTAG_SUBFILETYPE,
                                                        TIFFTAG_OSUBFILETYPE,
                                                        TIFFTAG_IMAGEWIDTH,
                                                        TIFFTAG_IMAGELENGTH,
                                                        TIFFTAG_BITSPERSAMPLE,
                                                        TIFFTAG_COMPRESSION,
                                                        TIFFTAG_PHOTOMETRIC,
                                                        TIFFTAG_FILLORDER,
                                                        TIFFTAG_STRIPOFFSETS,
                                                        TIFFTAG_ORIENTATION,
                                                        TIFFTAG_SAMPLESPERPIXEL,
                                                        TIFFTAG_ROWSPERSTRIP,
                                                        TIFFTAG_STRIPBYTECOUNTS,
                                                        TIFFTAG_MINSAMPLEVALUE,
                                                        TIFFTAG_MAXSAMPLEVALUE,
                                                        TIFFTAG_XRESOLUTION,
                                                        TIFFTAG_YRESOLUTION,
                                                        TIFFTAG_PLANARCONFIG,
                                                        TIFFTAG_GROUP3OPTIONS,
                                                        TIFFTAG_GROUP4OPTIONS,
                                                        TIFFTAG_RESOLUTIONUNIT,
                                                        TIFFTAG_PREDICTOR,
                                                        TIFFTAG_COLORMAP,
                                                        TIFFTAG_TILEWIDTH,
                                                        TIFFTAG_TILELENGTH,
                                                        TIFFTAG_TILEOFFSETS,
                                                        TIFFTAG_TILEBYTECOUNTS,
                                                        TIFFTAG_INKSET,
                                                        TIFFTAG_EXTRASAMPLES,
                                                        TIFFTAG_SAMPLEFORMAT,
                                                        TIFFTAG_SMINSAMPLEVALUE,
                                                        TIFFTAG_SMAXSAMPLEVALUE,
                                                        TIFFTAG_JPEGTABLES,
                                                        TIFFTAG_JPEGPROC,
                                                        TIFFTAG_JPEGIFOFFSET,
                                                        TIFFTAG_JPEGIFBYTECOUNT,
                                                        TIFFTAG_JPEGRESTARTINTERVAL,
                                                        TIFFTAG_JPEGQTABLES,
                                                        TIFFTAG_JPEGDCTABLES,
                                                        TIFFTAG_JPEGACTABLES,
                                                        TIFFTAG_YCBCRCOEFFICIENTS,
                                                        TIFFTAG_YCBCRSUBSAMPLING,
                                                        TIFFTAG_YCBCRPOSITIONING,
                                                        TIFFTAG_REFERENCEBLACKWHITE,
                                                        TIFFTAG_XMLPACKET};

// The file of old, or the one for more than four gigabytes.
struct Layout {
    Order order;
    unsigned count;   // bytes of a directory's number of entries
    unsigned entry;   // bytes of an entry
    unsigned offset;  // bytes of a place in the file
};

class Directories {
  public:
    Directories(app::Bytes& file, const Layout& layout)
        : file_(file), layout_(layout), reader_(file, layout.order) {}

    void Strip() {
        std::set<std::uint64_t> seen;
        std::uint64_t at = reader_.Number(layout_.offset, layout_.offset);
        while (at != 0 && seen.insert(at).second)
            at = StripOne(at);
    }

  private:
    // Gives the place of the next one.
    std::uint64_t StripOne(std::uint64_t at) {
        const std::uint64_t count = reader_.Number(at, layout_.count);
        const std::uint64_t first = at + layout_.count;
        if (count > file_.size() / layout_.entry || !reader_.Holds(first, count * layout_.entry))
            return 0;
        const std::uint64_t next = reader_.Number(first + count * layout_.entry, layout_.offset);
        std::uint64_t kept = 0;
        for (std::uint64_t k = 0; k < count; ++k) {
            const std::uint64_t entry = first + k * layout_.entry;
            if (std::binary_search(kPictureTags.begin(), kPictureTags.end(), reader_.Number(entry, 2)))
                std::copy_n(file_.data() + entry, layout_.entry,
                            file_.data() + first + kept++ * layout_.entry);
        }
        if (kept < count) {
            Put(at, kept, layout_.count);
            Put(first + kept * layout_.entry, next, layout_.offset);
        }
        return next;
    }

    void Put(std::uint64_t at, std::uint64_t number, unsigned length) {
        for (unsigned k = 0; k < length; ++k) {
            const unsigned place = layout_.order == Order::BigEndian ? length - 1 - k : k;
            file_[at + place] = static_cast<std::byte>(number >> (8 * k));
        }
    }

    app::Bytes& file_;
    const Layout& layout_;
    ByteReader reader_;
};

}  // namespace

app::Bytes WithoutMetadata(std::span<const std::byte> content) {
    app::Bytes file(content.begin(), content.end());
    const std::uint64_t mark = ByteReader(content, Order::BigEndian).Number(0, 4);
    for (const auto& [known, layout] : {std::pair{0x49492A00U, Layout{Order::LittleEndian, 2, 12, 4}},
                                        std::pair{0x4D4D002AU, Layout{Order::BigEndian, 2, 12, 4}},
                                        std::pair{0x49492B00U, Layout{Order::LittleEndian, 8, 20, 8}},
                                        std::pair{0x4D4D002BU, Layout{Order::BigEndian, 8, 20, 8}}}) {
        if (mark == known)
            Directories(file, layout).Strip();
    }
    return file;
}

}  // namespace tavrene::imaging
