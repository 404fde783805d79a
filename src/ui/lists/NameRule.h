#pragma once

#include <QLineEdit>
#include <QValidator>

namespace tavrene::ui {

/// What a box may be named while the name is typed or pasted: control characters and line breaks become a
/// blank, and what a profile document cannot hold is left out with a word about it beside the field.
class NameRule final : public QValidator {
  public:
    /// The rule belongs to the field.
    explicit NameRule(QLineEdit& field) : QValidator(&field), field_(field) {}

    State validate(QString& text, int& cursor) const override;

  private:
    QLineEdit& field_;
};

}  // namespace tavrene::ui
