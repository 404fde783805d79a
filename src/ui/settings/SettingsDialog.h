#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QScrollBar>
#include <QSpinBox>
#include <array>

#include "app/Files.h"
#include "app/Settings.h"
#include "app/SettingsStore.h"
#include "ui/commands/BoxSizeBars.h"
#include "ui/settings/BoxPreview.h"
#include "ui/settings/FolderChooser.h"

namespace tavrene::ui {

/// The dialog `frmSettings`. Every opening is a new object and starts from the store.
class SettingsDialog final : public QDialog {
  public:
    /// Fills the controls from the store; an empty `WorkDir` is set to the folder list's current folder, in
    /// `settings` and in the store at once, whatever the operator does afterwards. The references must
    /// outlive the dialog.
    SettingsDialog(app::Settings& settings, app::SettingsStore& store, app::Files& files, QWidget* parent);

  private:
    // Made in SettingsDialogLayout.cpp.
    void Build();
    void BuildBars();
    void BuildNumbers();
    void BuildProcessingControls();
    QWidget* Frames();
    QLayout* SizeNumbers(commands::Bar width, commands::Bar height);
    QWidget* PathFrame();
    QWidget* Welcome();
    void TakeSamples();
    QWidget* SizeFrame();
    QWidget* ProcessingFrame();
    QWidget* Buttons();
    QScrollBar* BarOf(commands::Bar bar) const { return bars_[static_cast<std::size_t>(bar)]; }
    QSpinBox* NumberOf(commands::Bar bar) const { return numbers_[static_cast<std::size_t>(bar)]; }

    void MoveBar(commands::Bar bar, int position);
    void LoadFolder();
    void LoadSizes();
    void LoadProcessing();
    void Reset();
    void Save();
    void SaveNumbers();
    void SaveFlags();
    void SaveFolder();
    void ShowSizes();

    app::Settings& settings_;
    app::SettingsStore& store_;
    app::Files& files_;
    commands::BoxSizeBars sizes_;
    bool isFirstStart_;

    FolderChooser* folder_ = nullptr;
    QLabel* welcome_ = nullptr;
    std::array<QScrollBar*, 4> bars_{};
    std::array<QSpinBox*, 4> numbers_{};
    BoxPreview* smallest_ = nullptr;
    BoxPreview* largest_ = nullptr;
    QLabel* sizeLabel_ = nullptr;
    QCheckBox* display_ = nullptr;
    QCheckBox* single_ = nullptr;
    QScrollBar* threshold_ = nullptr;
    QLabel* thresholdLabel_ = nullptr;
    QSpinBox* thresholdNumber_ = nullptr;
};

}  // namespace tavrene::ui
