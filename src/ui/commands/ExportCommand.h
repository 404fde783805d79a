#pragma once

#include <functional>
#include <optional>
#include <string>

#include "app/FileDialogs.h"
#include "app/Files.h"
#include "app/Operator.h"
#include "app/WorkingFolders.h"
#include "results/CsvExport.h"

namespace tavrene::commands {

/// What the person wants of an export.
struct ExportChoice {
    bool accepted = false;  ///< The forms of `ProcessFinal`; or else those of `ProcessOut`.
    bool workbook = true;   ///< One workbook; or else a CSV file a profile.
    results::CsvOptions csv;
    bool perGroup = false;  ///< A column a group of boxes instead of one a box.
};

struct ExportContext {
    app::Files& files;
    app::Operator& person;
    app::FileDialogs& dialogs;

    /// Begins to show how far a work of that name has come; ends it when the last copy is gone.
    std::function<results::Progress(const std::string& work)> progress;
};

/// The folder of the documents, ending in a separator.
const std::string& SourceOf(const ExportChoice& choice, const app::WorkingFolders& folders);

/// The tables of the chosen folder; nothing when the person ended it, or when there is no document, which the
/// person is told. Documents that cannot be read are told as well. Throws `app::FileError`.
std::optional<results::Results> ReadForExport(const ExportContext& context, const ExportChoice& choice,
                                              const app::WorkingFolders& folders);

/// Asks where to and writes the tables there. `startFolder` (ending in a separator) is where the dialog
/// opens; `profiles` (likewise) has the groups. Gives the folder written into, or nothing when the person
/// ended it; no file is changed then. Throws `app::FileError` or `results::WorkbookError`.
std::optional<std::string> WriteExport(const ExportContext& context, const ExportChoice& choice,
                                       const results::Results& found, const std::string& profiles,
                                       const std::string& startFolder);

}  // namespace tavrene::commands
