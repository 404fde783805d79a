#pragma once

#include <QMessageBox>

#include "app/Operator.h"
#include "ui/page/MessageStrip.h"
#include "ui/shell/FileReports.h"
#include "ui/shell/StatusPanels.h"

namespace tavrene::ui {

/// The person at the window: message boxes over it, its status bar, the strip over the page, and the box of
/// file messages on it.
class QtOperator final : public app::Operator {
  public:
    /// All belong to the window and must outlive the object.
    QtOperator(QWidget& window, StatusPanels& panels, MessageStrip& strip, const QWidget& page);

    void ShowMessage(std::string_view title, std::string_view text) override;
    void ReportFile(std::string_view fileName, std::string_view text) override;
    app::Answer AskYesNo(std::string_view text, app::Answer preset) override;
    app::Answer AskYesNoCancel(std::string_view text, app::Answer preset) override;
    void ShowNotices(std::span<const app::Notice> notices) override { strip_.Show(notices); }
    void ShowStandingNotices(std::span<const app::Notice> notices) override { strip_.ShowStanding(notices); }
    void SetPanel(app::Panel panel, std::string_view text) override;
    void SetProgressRange(int last) override;
    void SetProgress(int value) override;
    void RunPendingEvents() override;

    /// Takes the box of file messages off the screen; false when it was not there.
    bool CloseReports() { return reports_->isVisible() && reports_->close(); }

  private:
    app::Answer Ask(std::string_view text, QMessageBox::StandardButtons buttons, app::Answer preset);

    QWidget& window_;
    StatusPanels& panels_;
    MessageStrip& strip_;
    FileReports* reports_;
};

}  // namespace tavrene::ui
