#include <gtest/gtest.h>

#include "imaging/Bitmap.h"
#include "imaging/ImageLibrary.h"

namespace tavrene::imaging {
namespace {

TEST(ImageLibrary, IsFoundOnFirstUseWithAllItsFunctions) {
    EXPECT_TRUE(HasImageLibrary());
    EXPECT_EQ(ImageLibraryVersion(), FreeImage_GetVersion());
}

TEST(ImageLibrary, IsMissingWithoutItsFileOrAFunction) {
    EXPECT_EQ(LoadImageLibrary("libfreeimage-of-nowhere.so.3"), nullptr);
    EXPECT_EQ(LoadImageLibrary("libtiff.so.6"), nullptr) << "another library";
}

}  // namespace
}  // namespace tavrene::imaging
