#include "Window.h"

#include "Floor.h"
#include "profiles/ProfileDocument.h"
#include "ui/base/QtText.h"

namespace tavrene::bench {

Window::Window(const std::string& folder) : store_(ui::ToQt(ScratchFolder())) {
    app::Settings settings;
    settings.WorkDir = folder;
    settings.FillThreshold = app::kDefaultFillThreshold;
    window_ = std::make_unique<ui::MainWindow>(settings, ui::WindowContext{store_, files_, clock_});
    window_->Load();
    window_->resize(1280, 900);
    window_->show();
    QApplication::processEvents();
}

void WriteProfile(const app::WorkingFolders& folders, const std::vector<profiles::OmrBox>& boxes) {
    app::DiskFiles files;
    profiles::SaveProfileDocument(files, folders.Profiles + "Form.Tvp",
                                  profiles::CreateProfileDocument(
                                      {"Form", TheFormPage().file, 300, 300, true},
                                      profiles::ComposeOmrs(boxes, static_cast<std::int16_t>(boxes.size()))));
}

}  // namespace tavrene::bench
