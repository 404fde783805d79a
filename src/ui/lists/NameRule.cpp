#include "ui/lists/NameRule.h"

#include <QToolTip>

#include "profiles/NameCleaning.h"
#include "ui/base/QtText.h"

namespace tavrene::ui {
namespace {

QString Cleaned(const QString& text) {
    return ToQt(profiles::CleanedName(FromQt(text)));
}

}  // namespace

QValidator::State NameRule::validate(QString& text, int& cursor) const {
    if (FromQt(text).find_first_of(profiles::kForbiddenInNames) != std::string::npos)
        QToolTip::showText(field_.mapToGlobal(QPoint(0, field_.height())),
                           Tr("NameRule", "The name of a box cannot hold a double quote, < or &."), &field_);
    cursor = static_cast<int>(Cleaned(text.left(cursor)).size());
    text = Cleaned(text);
    return Acceptable;
}

}  // namespace tavrene::ui
