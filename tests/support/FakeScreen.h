#pragma once

#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "imaging/PageScreen.h"
#include "profiles/BoxRows.h"
#include "support/Transcript.h"

namespace tavrene::test {

/// Page and box list in one. What they show can be asked for; everything goes into the transcript as well
/// ("view: ", "rect: ", "look at: ", "row: ", "ink: ", "select row: ").
class FakeScreen final : public imaging::PageScreen, public profiles::BoxRows {
  public:
    explicit FakeScreen(Transcript& transcript) : transcript_(transcript) {}

    std::map<int, imaging::PageRect> rects;
    std::map<int, std::string> rows;  ///< Names.
    bool isTurned = false;
    int emphasised = 0;
    std::vector<int> marked;  ///< Where several stand out.
    int selectedRow = 0;
    int nextGroup = 0;
    imaging::ScrollOffset scroll;

    void ShowFile(const std::string& path) override {
        isTurned = false;
        transcript_.Add("view: show " + path.substr(path.find_last_of("/\\") + 1));
    }
    void ShowPicture(const imaging::Bitmap& picture) override {
        isTurned = false;
        transcript_.Add("view: picture " + Text(picture.Width()) + "x" + Text(picture.Height()));
    }
    void TurnPage(bool turned) override { isTurned = turned; }
    void Clear() override {
        isTurned = false;
        rects.clear();
        transcript_.Add("view: clear");
    }
    double Zoom() const override { return zoom_; }
    void SetZoom(double percent) override {
        zoom_ = percent;
        transcript_.Add("view: zoom " + Text(percent));
    }
    imaging::ScrollOffset Scroll() const override { return scroll; }
    void Refresh() override { transcript_.Add("view: refresh"); }

    void PutRect(int group, const imaging::PageRect& rect, imaging::RectStyle style) override {
        static constexpr const char* kNames[] = {"editable", "checked", "unchecked", "skipped", "candidate"};
        rects[group] = rect;
        transcript_.Add("rect: " + Text(group) + " " + Text(rect.left) + "," + Text(rect.top) + " " +
                        Text(rect.width) + "x" + Text(rect.height) + " " + kNames[static_cast<int>(style)]);
    }
    void RemoveRect(int group) override { rects.erase(group); }
    void ClearRects() override {
        rects.clear();
        transcript_.Add("rects: clear");
    }
    void Emphasise(int group) override {
        emphasised = group;
        marked.clear();
        transcript_.Add("look at: " + Text(group));
    }
    void Mark(std::span<const int> groups, int current) override {
        marked.assign(groups.begin(), groups.end());
        emphasised = current;
    }
    void SetTool(imaging::BoxTool, int next) override { nextGroup = next; }

    void ClearRows(profiles::BoxColumns columns) override {
        static constexpr const char* kNames[] = {"", " Val", " Val Ink"};
        columns_ = columns;
        rows.clear();
        transcript_.Add(std::string("rows: clear") + kNames[static_cast<int>(columns)]);
    }
    void PutRow(int number, const profiles::BoxRow& row) override {
        rows[number] = row.name;
        transcript_.Add("row: " + Text(number) + " " + row.name + "|" + row.val);
        if (columns_ == profiles::BoxColumns::NameValInk)
            transcript_.Add("ink: " + Text(number) + " " + row.ink + (row.isDoubtful ? " ?" : ""));
    }
    void RemoveRow(int number) override { rows.erase(number); }
    void SelectRow(int number) override {
        selectedRow = number;
        transcript_.Add("select row: " + Text(number));
    }
    void SelectRows(std::span<const int> numbers, int current) override {
        selectedRow = current;
        transcript_.Add("select rows: " + Text(static_cast<double>(numbers.size())));
    }
    void RefreshRows() override {}

  private:
    static std::string Text(double number) {
        std::ostringstream text;
        text << number;
        return text.str();
    }

    Transcript& transcript_;
    profiles::BoxColumns columns_ = profiles::BoxColumns::Name;
    double zoom_ = 100;
};

}  // namespace tavrene::test
