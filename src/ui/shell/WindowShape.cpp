#include "ui/shell/WindowShape.h"

#include <QHeaderView>
#include <QSplitter>
#include <array>
#include <string>

#include "ui/base/QtText.h"
#include "ui/commands/ReadingCommands.h"
#include "ui/lists/ReasonList.h"

namespace tavrene::ui {
namespace {

constexpr std::string_view kLabelsShown = "ToolbarLabels";
constexpr std::string_view kZoomFit = "ZoomFit";
constexpr std::array<std::string_view, 3> kFitTexts = {"None", "Page", "Width"};

std::string Read(const app::SettingsStore& store, std::string_view name) {
    return store.ReadSettingValue(app::kApplicationName, commands::kWindowSection, name);
}

void Write(app::SettingsStore& store, std::string_view name, std::string_view text) {
    store.WriteSettingValue(app::kApplicationName, commands::kWindowSection, name, text);
}

QByteArray ReadShape(const app::SettingsStore& store, const QString& name) {
    return QByteArray::fromBase64(ToQt(Read(store, FromQt(name))).toLatin1());
}

void WriteShape(app::SettingsStore& store, const QString& name, const QByteArray& shape) {
    Write(store, FromQt(name), shape.toBase64().toStdString());
}

}  // namespace

void WindowShape::Restore() {
    const app::SettingsStore& store = parts_.store;
    window_.restoreGeometry(ReadShape(store, "Geometry"));
    for (QSplitter* const splitter : window_.centralWidget()->findChildren<QSplitter*>())
        splitter->restoreState(ReadShape(store, splitter->objectName()));
    for (const ReasonList* const list : window_.centralWidget()->findChildren<ReasonList*>())
        list->header()->restoreState(ReadShape(store, list->objectName()));
    parts_.toolbars.ShowLabels(Read(store, kLabelsShown) == "1");
    const std::string fit = Read(store, kZoomFit);
    for (const ZoomFit known : {ZoomFit::Page, ZoomFit::Width})
        if (fit == kFitTexts.at(static_cast<std::size_t>(known)))
            parts_.view.KeepFit(known);
}

void WindowShape::Remember() const {
    app::SettingsStore& store = parts_.store;
    WriteShape(store, "Geometry", window_.saveGeometry());
    for (const QSplitter* const splitter : window_.centralWidget()->findChildren<QSplitter*>())
        WriteShape(store, splitter->objectName(), splitter->saveState());
    for (const ReasonList* const list : window_.centralWidget()->findChildren<ReasonList*>())
        WriteShape(store, list->objectName(), list->header()->saveState());
    Write(store, kLabelsShown, parts_.toolbars.LabelsShown() ? "1" : "0");
    Write(store, kZoomFit, kFitTexts.at(static_cast<std::size_t>(parts_.view.Fit())));
}

}  // namespace tavrene::ui
