#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QToolBar>
#include <stdexcept>
#include <string>

namespace tavrene::driving {

/// The control of that object name below a widget; throws std::runtime_error where there is none.
template <typename Control>
Control& Find(const QWidget& window, const char* name) {
    auto* const control = window.findChild<Control*>(name);
    if (control == nullptr)
        throw std::runtime_error(std::string("The window has no control ") + name + ".");
    return *control;
}

/// The button of a toolbar by its key.
inline QAbstractButton& Button(const QWidget& window, const char* toolbarName, const char* key) {
    auto& toolbar = Find<QToolBar>(window, toolbarName);
    return dynamic_cast<QAbstractButton&>(*toolbar.widgetForAction(&Find<QAction>(toolbar, key)));
}

}  // namespace tavrene::driving
