#pragma once

#include <QTreeWidget>

#include "profiles/BoxRows.h"

namespace tavrene::ui {

/// The box list `lvwSettings`: one row a box, with its name and at times its state.
class BoxListView final : public QTreeWidget, public profiles::BoxRows {
  public:
    explicit BoxListView(QWidget* parent);

    void ClearRows() override;
    void AddValColumn() override;
    void RemoveExtraColumns() override;
    void AddRow(int number, std::string_view name, std::string_view value) override;
};

}  // namespace tavrene::ui
