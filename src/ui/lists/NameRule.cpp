#include "ui/lists/NameRule.h"

#include <QToolTip>

#include "profiles/NameCleaning.h"
#include "ui/base/QtText.h"

namespace tavrene::ui {
namespace {

QString OnOneLine(const QString& text) {
    return ToQt(profiles::WithoutControls(FromQt(text)));
}

}  // namespace

QValidator::State NameRule::validate(QString& text, int& cursor) const {
    if (FromQt(text).find_first_of(profiles::kForbiddenInNames) != std::string::npos)
        QToolTip::showText(
            field_.mapToGlobal(QPoint(0, field_.height())),
            Tr("NameRule", "With a double quote, < or & in a name the profile cannot be saved."), &field_);
    cursor = static_cast<int>(OnOneLine(text.left(cursor)).size());
    text = OnOneLine(text);
    return Acceptable;
}

}  // namespace tavrene::ui
