#include "ui/settings/SettingsDialog.h"

#include <QSignalBlocker>
#include <string>

#include "app/WorkingFolders.h"
#include "ui/base/QtText.h"
#include "ui/settings/TrySamples.h"

namespace tavrene::ui {

using commands::Bar;

SettingsDialog::SettingsDialog(app::Settings& settings, app::SettingsStore& store, app::Files& files,
                               QWidget* parent)
    : QDialog(parent),
      settings_(settings),
      store_(store),
      files_(files),
      isFirstStart_(settings.WorkDir.empty()) {
    setObjectName("frmSettings");
    setWindowTitle(Tr("SettingsDialog", "Configuration Settings"));
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

void SettingsDialog::TakeSamples() {
    const QString folder = TrySamples(this, files_);
    if (folder.isEmpty())
        return;
    folder_->GoTo(folder);
    welcome_->setText(
        Tr("SettingsDialog",
           "The samples are in the folder below. Press Save, and then Process in the window: it "
           "reads the scans. Review shows what was read."));
}

void SettingsDialog::LoadSizes() {
    const boxes::BoxSizes first = commands::SizesOfFirstPositions();
    sizes_.SetSizes({app::ReadOrDefault(store_, "BoxMinWidth", first.BoxMinWidth),
                     app::ReadOrDefault(store_, "BoxMaxWidth", first.BoxMaxWidth),
                     app::ReadOrDefault(store_, "BoxMinHeight", first.BoxMinHeight),
                     app::ReadOrDefault(store_, "BoxMaxHeight", first.BoxMaxHeight)});
}

void SettingsDialog::LoadProcessing() {
    // A threshold of 0 would check every box. It was none when the program started, so somebody has taken it
    // out of the store since.
    const std::int16_t stored = app::ReadCommonNumber(store_, "FillThreshold");
    threshold_->setValue(stored != 0 ? stored : settings_.FillThreshold);
    settings_.FillThreshold = static_cast<std::int16_t>(threshold_->value());
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
        QSpinBox* const number = NumberOf(bar);
        const QSignalBlocker typed(number);
        number->setValue(sizes_.Pixels(bar));
    }
    const boxes::BoxSizes sizes = sizes_.Sizes();
    smallest_->ShowSize(sizes.BoxMinWidth, sizes.BoxMinHeight);
    largest_->ShowSize(sizes.BoxMaxWidth, sizes.BoxMaxHeight);
    sizeLabel_->setText(QString("(%1,%2) - (%3,%4)")
                            .arg(sizes.BoxMinWidth)
                            .arg(sizes.BoxMinHeight)
                            .arg(sizes.BoxMaxWidth)
                            .arg(sizes.BoxMaxHeight));
}

void SettingsDialog::Save() {
    SaveNumbers();
    SaveFlags();
    SaveFolder();
    accept();
}

void SettingsDialog::SaveNumbers() {
    const auto save = [this](std::string_view name, std::int16_t& held, std::int16_t value) {
        held = value;
        app::WriteCommonNumber(store_, name, value);
    };
    const boxes::BoxSizes sizes = sizes_.Sizes();
    save("BoxMinWidth", settings_.BoxMinWidth, sizes.BoxMinWidth);
    save("BoxMaxWidth", settings_.BoxMaxWidth, sizes.BoxMaxWidth);
    save("BoxMinHeight", settings_.BoxMinHeight, sizes.BoxMinHeight);
    save("BoxMaxHeight", settings_.BoxMaxHeight, sizes.BoxMaxHeight);
    save("FillThreshold", settings_.FillThreshold, static_cast<std::int16_t>(threshold_->value()));
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
