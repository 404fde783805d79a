#pragma once

#include <QLineEdit>
#include <QValidator>

namespace tavrene::ui {

/// The name of a box while it is typed or pasted: any text, on one line. What a profile document cannot hold
/// is told beside the field, for the save will refuse it.
class NameRule final : public QValidator {
  public:
    /// The rule belongs to the field.
    explicit NameRule(QLineEdit& field) : QValidator(&field), field_(field) {}

    State validate(QString& text, int& cursor) const override;

  private:
    QLineEdit& field_;
};

}  // namespace tavrene::ui
