#pragma once

#include <string>
#include <vector>

#include "profiles/ProfileScreen.h"

namespace tavrene::test {

/// The thumbnail strip; what it shows can be asked for.
class FakeStrip final : public profiles::ThumbnailStrip {
  public:
    std::vector<std::string> captions;
    int selected = 0;

    void ShowThumbnails(std::span<const profiles::StripThumbnail> thumbnails) override {
        captions.clear();
        for (const profiles::StripThumbnail& thumbnail : thumbnails)
            captions.push_back(thumbnail.caption);
    }
    void SelectThumbnail(int k) override { selected = k; }
};

}  // namespace tavrene::test
