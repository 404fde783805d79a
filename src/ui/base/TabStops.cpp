#include "ui/base/TabStops.h"

namespace tavrene::ui {
namespace {

bool TakesTab(const QWidget& widget) {
    return (widget.focusPolicy() & Qt::TabFocus) != 0 && widget.focusProxy() == nullptr;
}

// The part itself, or what it holds.
QWidgetList StopsOf(QWidget& part) {
    if (TakesTab(part))
        return {&part};
    QWidgetList stops;
    for (QWidget* const child : part.findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        if (TakesTab(*child))
            stops += child;
    return stops;
}

}  // namespace

void OrderTabStops(std::initializer_list<QWidget*> parts) {
    QWidgetList stops;
    for (QWidget* const part : parts)
        stops += StopsOf(*part);
    for (qsizetype next = 1; next < stops.size(); ++next)
        QWidget::setTabOrder(stops[next - 1], stops[next]);
}

}  // namespace tavrene::ui
