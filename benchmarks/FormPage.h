#pragma once

#include <string>
#include <vector>

#include "app/ActivityLog.h"
#include "app/FileDialogs.h"
#include "app/Operator.h"
#include "app/Settings.h"
#include "app/WorkingFolders.h"
#include "imaging/PageScreen.h"
#include "profiles/BoxRows.h"
#include "profiles/ProfileRecord.h"
#include "recognition/ProcessRun.h"
#include "review/RunDoubts.h"

namespace tavrene::bench {

/// A 300 dpi A4 form of text and 100 boxes.
struct FormPage {
    std::string file;                     ///< The one-bit scan, every third box ticked.
    std::vector<profiles::OmrBox> boxes;  ///< The profile's, as its document has them.
    profiles::ProfileRecord profile;      ///< Matches at once.
    profiles::ProfileRecord stranger;     ///< Never matches: its boxes are of another size.
};

/// Painted once for the life of the program.
const FormPage& TheFormPage();

/// A screen and an operator that nobody looks at.
class Nobody final : public app::Operator,
                     public app::FileDialogs,
                     public imaging::PageScreen,
                     public profiles::BoxRows {
  public:
    std::optional<std::string> AskSaveFile(const app::FileQuestion&) override { return std::nullopt; }
    std::optional<std::string> AskOpenFile(const app::FileQuestion&) override { return std::nullopt; }
    std::optional<std::string> AskFolder(const std::string&, const std::string&) override {
        return std::nullopt;
    }
    void ShowMessage(std::string_view, std::string_view) override {}
    void ReportFile(std::string_view, std::string_view) override {}
    app::Answer AskYesNo(std::string_view, app::Answer) override { return app::Answer::No; }
    app::Answer AskYesNoCancel(std::string_view, app::Answer) override { return app::Answer::Cancel; }
    void ShowNotices(std::span<const app::Notice>) override {}
    void ShowStandingNotices(std::span<const app::Notice>) override {}
    void SetPanel(app::Panel, std::string_view) override {}
    void SetProgressRange(int) override {}
    void SetProgress(int) override {}
    void RunPendingEvents() override {}
    void ShowFile(const std::string&) override {}
    void ShowPicture(const imaging::Bitmap&) override {}
    void TurnPage(bool) override {}
    void Clear() override {}
    double Zoom() const override { return 100; }
    void SetZoom(double) override {}
    void Refresh() override {}
    imaging::ScrollOffset Scroll() const override { return {}; }
    void PutRect(int, const imaging::PageRect&, imaging::RectStyle) override {}
    void RemoveRect(int) override {}
    void ClearRects() override {}
    void Emphasise(int) override {}
    void ShowLarge(int) override {}
    void Mark(std::span<const int>, int) override {}
    void SetTool(imaging::BoxTool, int) override {}
    void ClearRows(profiles::BoxColumns) override {}
    void PutRow(int, const profiles::BoxRow&) override {}
    void RemoveRow(int) override {}
    void SelectRow(int) override {}
    void SelectRows(std::span<const int>, int) override {}
    void RefreshRows() override {}
};

/// A working folder in the scratch folder and everything that a run on it needs.
struct Workplace {
    /// All off: the plain reading alone.
    explicit Workplace(recognition::ReadingOptions options = {});

    app::DiskFiles files;
    app::SystemClock clock;
    Nobody nobody;
    app::Settings settings;
    app::WorkingFolders folders;
    app::ActivityLog log;
    recognition::ReadingOptions reading;
    recognition::PreciseReader reader;
    std::vector<profiles::ProfileRecord> profiles;  ///< Those whose forms' doubts are counted.
    review::RunDoubts doubts;
    recognition::ProcessRun run;
};

}  // namespace tavrene::bench
