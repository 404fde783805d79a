#pragma once

#include <sstream>
#include <string>

#include "imaging/PageRects.h"
#include "imaging/PageView.h"
#include "profiles/BoxRows.h"
#include "support/Transcript.h"

namespace tavrene::test {

/// Image view, drawn boxes and box list in one; everything goes into the transcript ("view: ", "rect: ",
/// "row: ").
class FakeScreen final : public imaging::PageView, public imaging::PageRects, public profiles::BoxRows {
  public:
    explicit FakeScreen(Transcript& transcript) : transcript_(transcript) {}

    void ShowFile(const std::string& path) override {
        transcript_.Add("view: show " + path.substr(path.find_last_of("/\\") + 1));
    }
    void Clear() override { transcript_.Add("view: clear"); }
    double Zoom() const override { return zoom_; }
    void SetZoom(double percent) override {
        zoom_ = percent;
        transcript_.Add("view: zoom " + Text(percent));
    }
    void Refresh() override { transcript_.Add("view: refresh"); }

    void DrawRect(int group, const imaging::PageRect& rect, imaging::RectStyle style) override {
        static constexpr const char* kNames[] = {"plain", "checked", "unchecked", "skipped"};
        transcript_.Add("rect: " + std::to_string(group) + " " + Text(rect.left) + "," + Text(rect.top) +
                        " " + Text(rect.width) + "x" + Text(rect.height) + " " +
                        kNames[static_cast<int>(style)]);
    }
    void ClearRects() override { transcript_.Add("rects: clear"); }

    void ClearRows() override { transcript_.Add("rows: clear"); }
    void AddValColumn() override { transcript_.Add("rows: column Val"); }
    void RemoveExtraColumns() override { transcript_.Add("rows: one column"); }
    void AddRow(int number, std::string_view name, std::string_view value) override {
        transcript_.Add("row: " + std::to_string(number) + " " + std::string(name) + "|" +
                        std::string(value));
    }

  private:
    static std::string Text(double number) {
        std::ostringstream text;
        text << number;
        return text.str();
    }

    Transcript& transcript_;
    double zoom_ = 100;
};

}  // namespace tavrene::test
