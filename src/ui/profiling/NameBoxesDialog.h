#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTabWidget>
#include <functional>
#include <set>
#include <vector>

#include "profiles/BoxNaming.h"

namespace tavrene::ui {

/// The dialog of `NameBoxes`: names by a pattern, from a list that is pasted, or by find and replace. What is
/// typed is shown at once, and what is wrong with it is told before anything is changed.
class NameBoxesDialog final : public QDialog {
  public:
    /// Shows the names that the boxes would have, and those among them that must not be.
    using Preview = std::function<void(const std::vector<profiles::NewName>&, const std::set<int>& bad)>;

    /// `boxes` must outlive the dialog; the boxes of `numbers` are named. `image` is the specimen whose print
    /// can be asked for names.
    NameBoxesDialog(const std::vector<profiles::OmrBox>& boxes, std::vector<int> numbers, QString image,
                    Preview preview, QWidget* parent);

    /// What the dialog was closed with.
    const std::vector<profiles::NewName>& Names() const { return names_; }

    /// The numbers of the boxes as they are to follow each other in the list; none where they are to stay.
    std::vector<int> Order() const;

  private:
    QWidget* PatternPage();
    QWidget* ListPage();
    QWidget* ReplacePage();
    QLayout* OrderRow();
    void Build();
    QLineEdit* Field(const char* name, const QString& label, const QString& text = {});
    std::vector<profiles::BoxCell> Cells() const;
    std::vector<profiles::NewName> Asked() const;
    void SuggestFromPrint();
    bool LosesCharacters() const;
    void Update();

    const std::vector<profiles::OmrBox>& boxes_;
    std::vector<int> numbers_;
    QString image_;
    Preview preview_;
    std::vector<profiles::NewName> names_;
    QTabWidget* ways_;
    QLineEdit* pattern_ = nullptr;
    QSpinBox* first_ = nullptr;
    QLineEdit* rows_ = nullptr;
    QLineEdit* columns_ = nullptr;
    QPlainTextEdit* lines_ = nullptr;
    QLineEdit* find_ = nullptr;
    QLineEdit* replace_ = nullptr;
    QRadioButton* down_ = nullptr;
    QCheckBox* sorts_;
    QLabel* outcome_;
    QPushButton* rename_ = nullptr;
};

}  // namespace tavrene::ui
