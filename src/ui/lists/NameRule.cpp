#include "ui/lists/NameRule.h"

#include <QToolTip>
#include <algorithm>

#include "ui/base/QtText.h"

namespace tavrene::ui {
namespace {

const QString kForbidden = "\"<&";

bool IsControl(QChar c) {
    return c.category() == QChar::Other_Control || c == QChar::LineSeparator ||
           c == QChar::ParagraphSeparator;
}

// A name that was copied from a table ends in a line break, which leaves nothing.
QString Cleaned(const QString& text) {
    QString cleaned;
    bool isParted = false;
    for (const QChar c : text) {
        if (IsControl(c)) {
            isParted = !cleaned.isEmpty();
        } else if (!kForbidden.contains(c)) {
            cleaned += isParted ? QString(' ') + c : QString(c);
            isParted = false;
        }
    }
    return cleaned;
}

}  // namespace

QValidator::State NameRule::validate(QString& text, int& cursor) const {
    const auto isForbidden = [](QChar c) { return kForbidden.contains(c); };
    if (std::any_of(text.begin(), text.end(), isForbidden))
        QToolTip::showText(field_.mapToGlobal(QPoint(0, field_.height())),
                           Tr("NameRule", "The name of a box cannot hold a double quote, < or &."), &field_);
    cursor = static_cast<int>(Cleaned(text.left(cursor)).size());
    text = Cleaned(text);
    return Acceptable;
}

}  // namespace tavrene::ui
