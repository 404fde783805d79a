#include "ui/commands/Places.h"

namespace tavrene::commands {

std::string WorkingFolderInUse(const app::WorkingFolders& folders) {
    return app::FromPath(app::ToPath(folders.Log).parent_path().parent_path());
}

std::string LogToShow(const app::Files& files, const app::WorkingFolders& folders) {
    for (const char* pattern : {"TavreneBoxes-Process-*.Log", "TavreneBoxes-Profile-*.Log"}) {
        // The names end in the day, so the last in order is the newest.
        if (const auto logs = files.List(folders.Log, pattern); !logs.empty())
            return folders.Log + logs.back();
    }
    return folders.Log;
}

std::string ImageInUse(const app::Files& files, const app::WorkingFolders& folders, const std::string& name) {
    for (const std::string* const folder :
         {&folders.ProcessOut, &folders.ProcessIn, &folders.ProcessFinal, &folders.ProcessReject})
        if (files.FileExists(*folder + name))
            return *folder + name;
    return {};
}

bool WaitsForReview(const app::Files& files, const app::WorkingFolders& folders, const std::string& name) {
    return !files.FileExists(folders.ProcessIn + name) && files.FileExists(folders.ProcessOut + name) &&
           files.FileExists(folders.ProcessOut + app::BaseName(name) + ".xml");
}

}  // namespace tavrene::commands
