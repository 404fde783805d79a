#pragma once

#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include "ui/base/QtText.h"

namespace tavrene::ui {

/// The column that fills `pane` to its edges.
inline QVBoxLayout* FillingColumn(QWidget* pane) {
    auto* const column = new QVBoxLayout(pane);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    return column;
}

/// A list that takes all the room of `pane`, below what may stand above it, and the column of controls below.
inline QVBoxLayout* ControlsBelow(QWidget* pane, QWidget* list, QWidget* above = nullptr) {
    QVBoxLayout* const column = FillingColumn(pane);
    if (above != nullptr)
        column->addWidget(above);
    column->addWidget(list, 1);
    auto* const below = new QVBoxLayout;
    below->setContentsMargins(10, 8, 10, 10);
    column->addLayout(below);
    return below;
}

/// A pane in which a strip takes room of its own, so that it hides nothing of the view below it.
inline QWidget* StripAbove(QWidget& strip, QWidget& view) {
    auto* const pane = new QWidget;
    QVBoxLayout* const column = FillingColumn(pane);
    column->addWidget(&strip);
    column->addWidget(&view, 1);
    return pane;
}

/// The cross that closes a part of the window, in the ink of `parent`.
inline QToolButton* CloseButton(QWidget* parent, const char* name, const QString& toolTip) {
    auto* const close = new QToolButton(parent);
    close->setObjectName(name);
    close->setIcon(parent->style()->standardIcon(QStyle::SP_TitleBarCloseButton, nullptr, parent));
    close->setAutoRaise(true);
    close->setToolTip(toolTip);
    close->setAccessibleName(toolTip);
    return close;
}

/// A tool tip that shows `text` as it is, also to those who have it read to them: without a description of
/// its own a control would pass the tool tip on with its markup.
inline void SetPlainToolTip(QWidget& control, const QString& text) {
    control.setToolTip(ToolTipOf(text));
    control.setAccessibleDescription(text);
}

}  // namespace tavrene::ui
