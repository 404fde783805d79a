#include <gtest/gtest.h>

#include "imaging/TiffPages.h"

namespace tavrene::imaging {
namespace {

std::vector<TiffPage> ThreePages() {
    std::vector<TiffPage> pages;
    for (const char* label : {"/scans/größe & \"mehr\".tif|7", "", "<last>"})
        pages.push_back({PlaceholderPicture(30 + static_cast<int>(pages.size()), 40), label});
    return pages;
}

std::vector<std::uint8_t> PixelsOf(const Bitmap& picture) {
    std::vector<std::uint8_t> pixels;
    for (int row = 0; row < picture.Height(); ++row) {
        const auto line = picture.ScanLine(row).first(static_cast<std::size_t>(picture.Width()));
        pixels.insert(pixels.end(), line.begin(), line.end());
    }
    return pixels;
}

TEST(TiffPages, ComeBackInOrderWithPixelsAndLabels) {
    const std::vector<TiffPage> pages = ThreePages();
    app::Bytes content = EncodeTiffPages(pages);
    for (int round = 0; round < 2; ++round) {  // what was read can be written again
        const std::vector<TiffPage> back = DecodeTiffPages(content);
        ASSERT_EQ(back.size(), 3U);
        for (std::size_t k = 0; k < 3; ++k) {
            EXPECT_EQ(back[k].label, pages[k].label);
            EXPECT_EQ(back[k].picture.Width(), pages[k].picture.Width());
            EXPECT_EQ(PixelsOf(back[k].picture), PixelsOf(pages[k].picture));
        }
        content = EncodeTiffPages(back);
    }
    EXPECT_TRUE(EncodeTiffPages({}).empty());
}

TEST(TiffPages, DamagedFilesHaveNone) {
    const app::Bytes whole = EncodeTiffPages(ThreePages());
    EXPECT_TRUE(DecodeTiffPages({}).empty());
    EXPECT_TRUE(DecodeTiffPages(app::AsBytes("no picture")).empty());
    for (std::size_t size = 1; size < whole.size(); size += 97) {
        const std::size_t pages = DecodeTiffPages(std::span(whole).first(size)).size();
        EXPECT_LT(pages, 3U) << size;
    }
}

TEST(TiffPages, PicturesAreReducedInProportion) {
    Bitmap page = Bitmap::BilevelPage(1000, 500, 300);
    for (int row = 250; row < 500; ++row)
        for (std::uint8_t& byte : page.ScanLine(row).first(125))
            byte = 0xFF;  // the upper half is ink
    const Bitmap reduced = ReducedPicture(page, 100, 400);
    EXPECT_EQ(reduced.Width(), 100);
    EXPECT_EQ(reduced.Height(), 50);
    EXPECT_EQ(reduced.BitsPerPixel(), 8);
    EXPECT_EQ(reduced.ScanLine(5)[50], 255);
    EXPECT_EQ(reduced.ScanLine(45)[50], 0);
    EXPECT_EQ(ReducedPicture(Bitmap::BilevelPage(1, 3000, 0), 100, 400).Height(), 400);
    EXPECT_EQ(ReducedPicture(Bitmap::BilevelPage(3000, 1, 0), 100, 400).Height(), 1);
}

}  // namespace
}  // namespace tavrene::imaging
