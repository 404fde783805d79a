#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <iosfwd>
#include <span>

#include "app/Operator.h"
#include "imaging/PageScreen.h"
#include "profiles/BoxRows.h"
#include "recognition/RunSummary.h"

namespace tavrene::batch {

/// The person who is not there: messages are lines, and every question gets the answer that changes nothing.
class ConsoleOperator final : public app::Operator {
  public:
    /// `messages` must outlive this.
    explicit ConsoleOperator(std::ostream& messages) : messages_(messages) {}

    std::function<void(int files)> onRange;  ///< A run has listed its files.
    std::function<void()> onPendingEvents;   ///< A run is between two files.

    void ShowMessage(std::string_view title, std::string_view text) override;
    void ReportFile(std::string_view fileName, std::string_view text) override;
    app::Answer AskYesNo(std::string_view text, app::Answer preset) override;
    app::Answer AskYesNoCancel(std::string_view text, app::Answer preset) override;
    void ShowNotices(std::span<const app::Notice> notices) override;
    void ShowStandingNotices(std::span<const app::Notice> notices) override { ShowNotices(notices); }
    void SetPanel(app::Panel /*panel*/, std::string_view /*text*/) override {}
    void SetProgressRange(int last) override { onRange(last); }
    void SetProgress(int /*value*/) override {}
    void RunPendingEvents() override { onPendingEvents(); }

  private:
    std::ostream& messages_;
};

/// The image view and the box list that are not there.
class NoScreen final : public imaging::PageScreen, public profiles::BoxRows {
  public:
    void ShowFile(const std::string& /*path*/) override {}
    void ShowPicture(const imaging::Bitmap& /*picture*/) override {}
    void TurnPage(bool /*isTurned*/) override {}
    void Clear() override {}
    double Zoom() const override { return 100; }
    void SetZoom(double /*percent*/) override {}
    imaging::ScrollOffset Scroll() const override { return {}; }
    void Refresh() override {}
    void PutRect(int /*group*/, const imaging::PageRect& /*rect*/, imaging::RectStyle /*style*/) override {}
    void RemoveRect(int /*group*/) override {}
    void ClearRects() override {}
    void Emphasise(int /*group*/) override {}
    void ShowLarge(int /*group*/) override {}
    void Mark(std::span<const int> /*groups*/, int /*current*/) override {}
    void SetTool(imaging::BoxTool /*tool*/, int /*nextGroup*/) override {}
    void ClearRows(profiles::BoxColumns /*columns*/) override {}
    void PutRow(int /*number*/, const profiles::BoxRow& /*row*/) override {}
    void RemoveRow(int /*number*/) override {}
    void SelectRow(int /*number*/) override {}
    void SelectRows(std::span<const int> /*numbers*/, int /*current*/) override {}
    void RefreshRows() override {}
};

/// Tells of runs as they go: each file as a line of JSON, or a sentence at the end.
class Progress {
  public:
    /// `out` must outlive this.
    Progress(std::ostream& out, bool asJson) : out_(out), asJson_(asJson) {}

    void Begin(int files);
    /// Tells of files that are done.
    void Add(std::span<const recognition::FileReport> files);
    void End(long seconds, bool isStopped);

    /// How many ended so, of the run at hand or the last one.
    std::size_t Count(recognition::FileEnd end) const { return counts_.at(static_cast<std::size_t>(end)); }

  private:
    std::ostream& out_;
    bool asJson_;
    bool isNew_ = true;  // of the next run nothing was told yet
    std::array<std::size_t, 4> counts_{};
};

}  // namespace tavrene::batch
