#pragma once

#include <QString>
#include <QStringView>
#include <string>
#include <string_view>

namespace tavrene::ui {

/// Text of the engine (UTF-8) as text of the window, and back: the one place that converts.
inline QString ToQt(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

inline std::string FromQt(QStringView text) {
    return text.toUtf8().toStdString();
}

/// A tool tip that shows `text` as it is: a plain one with a < in it would be taken for rich text.
inline QString ToolTipOf(const QString& text) {
    return text.isEmpty() ? QString() : "<span>" + text.toHtmlEscaped() + "</span>";
}

}  // namespace tavrene::ui
