#pragma once

#include <QCoreApplication>
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

/// A text of the window in its language. `place` tells the translator where it stands; the file of
/// translations knows it by place and English text.
inline QString Tr(const char* place, const char* english) {
    return QCoreApplication::translate(place, english);
}

/// A tool tip that shows `text` as it is: a plain one with a < in it would be taken for rich text.
inline QString ToolTipOf(const QString& text) {
    return text.isEmpty() ? QString() : "<span>" + text.toHtmlEscaped() + "</span>";
}

}  // namespace tavrene::ui
