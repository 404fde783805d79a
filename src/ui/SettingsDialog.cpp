#include "ui/SettingsDialog.h"

#include <QSignalBlocker>
#include <string>

#include "app/WorkingFolders.h"
#include "ui/QtText.h"

namespace tavrene::ui {

using commands::Bar;

SettingsDialog::SettingsDialog(app::Settings& settings, app::SettingsStore& store, app::Files& files,
                               QWidget* parent)
    : QDialog(parent), settings_(settings), store_(store), files_(files) {
    setObjectName("frmSettings");
    setWindowTitle("Configuration Settings");
    Build();
    LoadFolder();
    LoadSizes();
    LoadProcessing();
    ShowSizes();
}

void SettingsDialog::LoadFolder() {
    if (settings_.WorkDir.empty()) {
        settings_.WorkDir = FromQt(folder_->CurrentFolder());
        app::WriteCommon(store_, "WorkDir", settings_.WorkDir);
    }
    folder_->GoTo(ToQt(settings_.WorkDir));
}

void SettingsDialog::LoadSizes() {
    const auto read = [this](std::string_view name, int first) {
        if (const int stored = app::ReadCommonNumber(store_, name); stored != 0)
            return stored;
        app::WriteCommonNumber(store_, name, static_cast<std::int16_t>(first));
        return first;
    };
    const commands::BoxSizes first = commands::SizesOfFirstPositions();
    commands::BoxSizes stored;
    stored.minWidth = read("BoxMinWidth", first.minWidth);
    stored.maxWidth = read("BoxMaxWidth", first.maxWidth);
    stored.minHeight = read("BoxMinHeight", first.minHeight);
    stored.maxHeight = read("BoxMaxHeight", first.maxHeight);
    sizes_.SetSizes(stored);
}

void SettingsDialog::LoadProcessing() {
    settings_.FillThreshold = app::ReadCommonNumber(store_, "FillThreshold");
    threshold_->setValue(settings_.FillThreshold);
    thresholdLabel_->setNum(threshold_->value());
    display_->setChecked(settings_.DisplayDuringProcess);
    single_->setChecked(settings_.ProcessSingle);
}

void SettingsDialog::MoveBar(Bar bar, int position) {
    sizes_.Move(bar, position);
    ShowSizes();
}

void SettingsDialog::Reset() {
    sizes_.SetSizes({app::kDefaultBoxMinWidth, app::kDefaultBoxMaxWidth, app::kDefaultBoxMinHeight,
                     app::kDefaultBoxMaxHeight});
    ShowSizes();
}

void SettingsDialog::ShowSizes() {
    for (const Bar bar : commands::kAllBars) {
        QScrollBar* const control = BarOf(bar);
        // The rules have been applied; the bar is only to stand where they left it.
        const QSignalBlocker settled(control);
        control->setValue(sizes_.Position(bar));
    }
    const commands::BoxSizes sizes = sizes_.Sizes();
    smallest_->ShowSize(sizes.minWidth, sizes.minHeight);
    largest_->ShowSize(sizes.maxWidth, sizes.maxHeight);
    sizeLabel_->setText(QString("(%1,%2) - (%3,%4)")
                            .arg(sizes.minWidth)
                            .arg(sizes.minHeight)
                            .arg(sizes.maxWidth)
                            .arg(sizes.maxHeight));
}

void SettingsDialog::Save() {
    SaveNumbers();
    SaveFlags();
    SaveFolder();
    accept();
}

void SettingsDialog::SaveNumbers() {
    const auto save = [this](std::string_view name, std::int16_t& held, int value) {
        held = static_cast<std::int16_t>(value);
        app::WriteCommonNumber(store_, name, held);
    };
    const commands::BoxSizes sizes = sizes_.Sizes();
    save("BoxMinWidth", settings_.BoxMinWidth, sizes.minWidth);
    save("BoxMaxWidth", settings_.BoxMaxWidth, sizes.maxWidth);
    save("BoxMinHeight", settings_.BoxMinHeight, sizes.minHeight);
    save("BoxMaxHeight", settings_.BoxMaxHeight, sizes.maxHeight);
    save("FillThreshold", settings_.FillThreshold, threshold_->value());
}

void SettingsDialog::SaveFlags() {
    settings_.ProcessSingle = single_->isChecked();
    app::WriteCommonFlag(store_, "ProcessSingle", settings_.ProcessSingle);
    settings_.DisplayDuringProcess = display_->isChecked();
    app::WriteCommonFlag(store_, "DisplayDuringProcess", settings_.DisplayDuringProcess);
}

void SettingsDialog::SaveFolder() {
    const std::string chosen = FromQt(folder_->CurrentFolder());
    if (app::CreateWorkingFolders(files_, chosen))
        settings_.WorkDir = chosen;
    app::WriteCommon(store_, "WorkDir", settings_.WorkDir);
}

}  // namespace tavrene::ui
