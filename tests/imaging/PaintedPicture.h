#pragma once

#include <gtest/gtest.h>

#include "imaging/PageReader.h"
#include "painter/ImageFiles.h"

namespace tavrene::test {

/// A picture of 100 x 60 pixels at 200 dots per inch with a few dark places.
class PaintedPicture {
  protected:
    PaintedPicture() {
        picture_.FillRect(3, 5, 20, 2);
        picture_.FillRect(90, 40, 10, 20);
        picture_.FillRect(40, 20, 9, 9, 100);  // dark enough
        picture_.FillRect(60, 20, 9, 9, 200);  // too light
        picture_.FillRect(0, 59, 100, 1);
    }

    /// Whether `isInk(x, y)`, with y from the top, has the picture's dark pixels and no other.
    template <typename IsInk>
    bool Shows(const IsInk& isInk) const {
        for (int y = 0; y < 60; ++y)
            for (int x = 0; x < 100; ++x)
                if (isInk(x, y) != (picture_.At(x, y) < 128))
                    return false;
        return true;
    }

    bool ShowsThePicture(const imaging::Page& page) const {
        return page.grid.Width() == 100 && page.grid.Rows() == 60 &&
               Shows([&page](int x, int y) { return page.grid.IsInk(x, 59 - y); });
    }

    samples::Canvas picture_{100, 60, 200};
};

}  // namespace tavrene::test
