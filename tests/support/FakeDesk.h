#pragma once

#include <map>
#include <string>

#include "imaging/TiffPages.h"
#include "profiles/EditorScreen.h"
#include "support/FakeScreen.h"

namespace tavrene::test {

/// The editor's side of the window: boxes that can be selected and moved, rows, and the strip. What it shows
/// can be asked for.
class FakeDesk final : public profiles::EditableBoxes,
                       public profiles::EditableRows,
                       public profiles::ThumbnailStrip {
  public:
    std::map<int, imaging::PageRect> boxes;
    std::map<int, std::string> rows;
    std::vector<std::string> captions;
    int selectedBox = 0;
    int selectedRow = 0;
    int selectedThumbnail = 0;
    int nextGroup = 0;
    profiles::ScrollOffset scroll;

    void PutBox(int group, const imaging::PageRect& box) override { boxes[group] = box; }
    void RemoveBox(int group) override { boxes.erase(group); }
    void SelectBox(int group) override { selectedBox = group; }
    void SetTool(profiles::BoxTool) override {}
    void SetNextGroup(int group) override { nextGroup = group; }
    profiles::ScrollOffset Scroll() const override { return scroll; }

    void ClearRows() override { rows.clear(); }
    void AddValColumn() override {}
    void RemoveExtraColumns() override {}
    void AddRow(int number, std::string_view name, std::string_view) override { rows[number] = name; }
    void InsertRow(int number, std::string_view name) override { rows[number] = name; }
    void RemoveRow(int number) override { rows.erase(number); }
    void RenameRow(int number, std::string_view name) override { rows[number] = name; }
    void SelectRow(int number) override { selectedRow = number; }
    void RefreshRows() override {}

    void ShowThumbnails(std::span<const profiles::StripThumbnail> thumbnails) override {
        captions.clear();
        for (const profiles::StripThumbnail& thumbnail : thumbnails)
            captions.push_back(thumbnail.caption);
    }
    void SelectThumbnail(int k) override { selectedThumbnail = k; }
};

}  // namespace tavrene::test
