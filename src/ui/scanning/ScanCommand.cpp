#include "ui/scanning/ScanCommand.h"

#include <QMenu>

#include "app/Counted.h"
#include "ui/base/QtText.h"

namespace tavrene::ui {

using commands::Command;

ScanCommand::ScanCommand(QWidget& window, const Context& context)
    : QObject(&window),
      window_(window),
      action_(*window.findChild<QAction*>("Scan")),
      toolTip_(action_.toolTip()),
      context_(context) {
    context_.gate.SetHandler(
        Command::Scan, [this] { Run(); }, [this] { return isThere_; });
    for (QObject* const place : action_.associatedObjects())
        if (auto* const menu = qobject_cast<QMenu*>(place)) {
            // Or nobody would see why the command is grey.
            menu->setToolTipsVisible(true);
            connect(menu, &QMenu::aboutToShow, this, [this] { Look(); });
        }
}

void ScanCommand::Look() {
    if (sane_ == nullptr) {
        Offer(Tr("ScanDialog", "Scanning needs the scanner library SANE (libsane1), which is not installed"));
        return;
    }
    constexpr double kAgain = 60;
    const double now = context_.clock.Seconds();
    // All devices of the network are asked.
    if (isLooking_ || (lookedAt_ && now - *lookedAt_ < kAgain))
        return;
    isLooking_ = true;
    lookedAt_ = now;
    thread_.Ask(
        this, ScanThread::AtEnd::LetGo, [&sane = *sane_] { return intake::Scanners(sane).Find().empty(); },
        [this](bool isNone) {
            isLooking_ = false;
            Offer(isNone ? Tr("ScanDialog",
                              "No scanner was found. Switch it on, connect it and open this menu again a "
                              "minute later")
                         : QString());
        });
}

void ScanCommand::Offer(const QString& whyNot) {
    isThere_ = whyNot.isEmpty();
    const QString text = isThere_ ? toolTip_ : whyNot;
    action_.setToolTip(text);
    action_.setStatusTip(text);
    action_.setEnabled(context_.gate.Offers(Command::Scan));
}

void ScanCommand::Run() {
    ScanDialog dialog({*sane_, thread_, context_.files, context_.clock, context_.state.folders}, choice_,
                      &window_);
    dialog.exec();
    choice_ = dialog.Choice();
    if (dialog.Pages() > 0)
        context_.person.SetPanel(app::Panel::Message, app::Counted(dialog.Pages(), "page was", "pages were") +
                                                          " scanned to ProcessIn.");
}

}  // namespace tavrene::ui
