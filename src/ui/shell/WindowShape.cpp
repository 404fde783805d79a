#include "ui/shell/WindowShape.h"

#include <QHeaderView>
#include <QSplitter>
#include <array>
#include <string>

#include "ui/base/QtText.h"

namespace tavrene::ui {
namespace {

constexpr std::string_view kLabelsShown = "ToolbarLabels";
constexpr std::string_view kZoomFit = "ZoomFit";
constexpr std::array<std::string_view, 3> kFitTexts = {"None", "Page", "Width"};

QByteArray ReadShape(const app::SettingsStore& store, const QString& name) {
    return QByteArray::fromBase64(ToQt(app::ReadWindow(store, FromQt(name))).toLatin1());
}

void WriteShape(app::SettingsStore& store, const QString& name, const QByteArray& shape) {
    app::WriteWindow(store, FromQt(name), shape.toBase64().toStdString());
}

}  // namespace

void WindowShape::Restore() {
    const app::SettingsStore& store = parts_.store;
    window_.restoreGeometry(ReadShape(store, "Geometry"));
    for (QSplitter* const splitter : window_.centralWidget()->findChildren<QSplitter*>())
        splitter->restoreState(ReadShape(store, splitter->objectName()));
    for (const QTreeWidget* const list : parts_.lists)
        list->header()->restoreState(ReadShape(store, list->objectName()));
    parts_.toolbars.ShowLabels(app::ReadWindowFlag(store, kLabelsShown, false));
    const std::string fit = app::ReadWindow(store, kZoomFit);
    for (const ZoomFit known : {ZoomFit::Page, ZoomFit::Width})
        if (fit == kFitTexts.at(static_cast<std::size_t>(known)))
            parts_.view.KeepFit(known);
}

void WindowShape::Remember() const {
    app::SettingsStore& store = parts_.store;
    WriteShape(store, "Geometry", window_.saveGeometry());
    for (const QSplitter* const splitter : window_.centralWidget()->findChildren<QSplitter*>())
        WriteShape(store, splitter->objectName(), splitter->saveState());
    for (const QTreeWidget* const list : parts_.lists)
        WriteShape(store, list->objectName(), list->header()->saveState());
    app::WriteWindowFlag(store, kLabelsShown, parts_.toolbars.LabelsShown());
    app::WriteWindow(store, kZoomFit, kFitTexts.at(static_cast<std::size_t>(parts_.view.Fit())));
}

}  // namespace tavrene::ui
