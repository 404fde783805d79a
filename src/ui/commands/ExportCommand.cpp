#include "ui/commands/ExportCommand.h"

#include <algorithm>
#include <array>
#include <vector>

#include "app/Counted.h"
#include "results/XlsxExport.h"

namespace tavrene::commands {
namespace {

std::size_t CountForms(const results::Results& found) {
    std::size_t forms = 0;
    for (const results::ResultTable& table : found.Tables)
        forms += table.Forms.size();
    return forms;
}

// A list of hundreds would hide the page; the first ones tell what is wrong.
void TellDamaged(app::Operator& person, const std::vector<results::LeftOut>& damaged) {
    constexpr std::size_t kTold = 5;
    if (damaged.empty())
        return;
    std::string text = app::Counted(damaged.size(), "document", "documents") + " could not be read and " +
                       (damaged.size() == 1 ? "is" : "are") + " in no table:";
    for (std::size_t k = 0; k < std::min(kTold, damaged.size()); ++k)
        text += (k == 0 ? " " : "; ") + damaged[k].Document + " (" + damaged[k].Reason + ")";
    if (damaged.size() > kTold)
        text += "; and " + std::to_string(damaged.size() - kTold) + " more";
    person.ShowNotices(std::array{app::Notice{text + "."}});
}

bool MayReplace(const ExportContext& context, const std::vector<std::string>& names,
                const std::string& folder) {
    const auto there = std::count_if(names.begin(), names.end(), [&](const std::string& name) {
        return context.files.FileExists(folder + name);
    });
    return there == 0 ||
           context.person.AskYesNo(app::Counted(there, "file", "files") + " of the tables' names " +
                                       (there == 1 ? "is" : "are") + " in " + folder + " already. Replace " +
                                       (there == 1 ? "it?" : "them?"),
                                   app::Answer::No) == app::Answer::Yes;
}

std::optional<std::string> AskTarget(const ExportContext& context, const ExportChoice& choice,
                                     const std::string& startFolder) {
    if (choice.workbook)
        return context.dialogs.AskSaveFile(
            {"Export Results", startFolder, "Results.xlsx", "Workbooks|*.xlsx"});
    return context.dialogs.AskFolder("Export Results Into", startFolder);
}

}  // namespace

const std::string& SourceOf(const ExportChoice& choice, const app::WorkingFolders& folders) {
    return choice.accepted ? folders.ProcessFinal : folders.ProcessOut;
}

std::optional<results::Results> ReadForExport(const ExportContext& context, const ExportChoice& choice,
                                              const app::WorkingFolders& folders) {
    const std::string& source = SourceOf(choice, folders);
    std::optional<results::Results> found =
        results::ReadResults(context.files, source, context.progress("Reading the result documents"));
    if (!found)
        return std::nullopt;
    TellDamaged(context.person, found->Damaged);
    if (found->Tables.empty()) {
        context.person.ShowMessage("", "There are no forms to export in " + source);
        return std::nullopt;
    }
    return found;
}

std::optional<std::string> WriteExport(const ExportContext& context, const ExportChoice& choice,
                                       const results::Results& found, const std::string& profiles,
                                       const std::string& startFolder) {
    const std::optional<std::string> target = AskTarget(context, choice, startFolder);
    if (!target)
        return std::nullopt;
    const std::string folder =
        choice.workbook ? target->substr(0, target->size() - app::FileName(*target).size()) : *target;
    if (!choice.workbook && !MayReplace(context, results::CsvNames(found.Tables), folder))
        return std::nullopt;
    const results::Progress progress = context.progress("Writing the tables");
    const results::GroupsOfProfiles groups = choice.perGroup
                                                 ? results::GroupsIn(context.files, found.Tables, profiles)
                                                 : results::GroupsOfProfiles();
    const bool isWritten =
        choice.workbook
            ? results::ExportXlsx(context.files, found.Tables, groups, *target, progress)
            : results::ExportCsv(context.files, found.Tables, groups, folder, choice.csv, progress);
    if (!isWritten)
        return std::nullopt;
    context.person.SetPanel(app::Panel::Message,
                            app::Counted(CountForms(found), "form", "forms") + " of " +
                                app::Counted(found.Tables.size(), "profile", "profiles") + " exported to " +
                                *target);
    return folder;
}

}  // namespace tavrene::commands
