#include "ui/shell/Composition.h"

#include <QApplication>
#include <QIcon>
#include <QPainter>
#include <QProxyStyle>
#include <QStandardPaths>
#include <QStyleHintReturn>
#include <QStyleOption>

#include "app/Startup.h"
#include "ui/base/FocusRing.h"
#include "ui/base/QtText.h"
#include "ui/settings/SettingsDialog.h"

namespace tavrene::ui {
namespace {

constexpr int kRing = 2;

// The same look on every desktop, with plain words on the buttons of message boxes, and a ring inside the
// edges of what has the keyboard: lists that touch each other leave no room around them.
class CalmStyle final : public QProxyStyle {
  public:
    CalmStyle() : QProxyStyle("Fusion") {}

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        switch (hint) {
            case SH_DialogButtonBox_ButtonsHaveIcons:
                return 0;
            case SH_FocusFrame_AboveWidget:
                return 1;
            case SH_FocusFrame_Mask:
                return TakeRing(option->rect, data);
            default:
                return QProxyStyle::styleHint(hint, option, widget, data);
        }
    }

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        const bool isMargin = metric == PM_FocusFrameHMargin || metric == PM_FocusFrameVMargin;
        return isMargin ? 0 : QProxyStyle::pixelMetric(metric, option, widget);
    }

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        if (element == CE_FocusFrame)
            painter->fillRect(option->rect, option->palette.highlight());
        else
            QProxyStyle::drawControl(element, option, painter, widget);
    }

  private:
    static int TakeRing(const QRect& area, QStyleHintReturn* data) {
        if (auto* const mask = qstyleoption_cast<QStyleHintReturnMask*>(data))
            mask->region = QRegion(area) - area.adjusted(kRing, kRing, -kRing, -kRing);
        return 1;
    }
};

QString ConfigFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::ConfigLocation);
}

}  // namespace

void PrepareApplication() {
    QApplication::setApplicationName(ToQt(app::kApplicationName));
    QApplication::setApplicationVersion(TAVRENE_VERSION);
    QApplication::setStyle(new CalmStyle);
    new FocusRing(qApp);
    // The desktop finds its own entry, and with it the name and picture, by this name.
    QApplication::setDesktopFileName("org.tavrene.CheckBoxes");
    QApplication::setWindowIcon(QIcon(":/tavrene-checkboxes.svg"));
    // A dialog of start-up that closes before there is a window must not end the program.
    QApplication::setQuitOnLastWindowClosed(false);
}

Composition::Composition()
    : store_(ConfigFolder()), instance_(ConfigFolder() + '/' + ToQt(app::kApplicationName)) {}

bool Composition::Start() {
    const app::StartupContext context = {
        store_, files_, [this] { return instance_.Become(); },
        [this](app::Settings& settings) { SettingsDialog(settings, store_, files_, nullptr).exec(); },
        [this] {
            window_ = std::make_unique<MainWindow>(settings_, WindowContext{store_, files_, clock_});
            window_->Load();
            window_->show();
            QApplication::setQuitOnLastWindowClosed(true);
        }};
    return app::RunStartup(settings_, context);
}

}  // namespace tavrene::ui
