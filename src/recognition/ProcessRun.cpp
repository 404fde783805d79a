#include "recognition/ProcessRun.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <utility>
#include <vector>

#include "app/ScopedFlag.h"
#include "profiles/ProfileLoader.h"
#include "recognition/Classification.h"
#include "recognition/PageLoading.h"
#include "recognition/ResultDocument.h"

namespace tavrene::recognition {
namespace {

using app::Panel;
using app::ShowInStatusBar;
using profiles::ProfileRecord;

}  // namespace

// What came of one file, as far as showing and moving it need to know.
struct ProcessRun::FileOutcome {
    std::optional<imaging::Page> page;
    std::vector<MarkReading> readings;
    std::vector<ResultMark> marks;  // read back from the written document
    bool hasResult = false;
    std::optional<app::Bytes>
        replacedResult;  // the earlier document of that name, as long as the image is not moved
};

ProcessRun::ProcessRun(const RunContext& context, const app::Settings& settings,
                       const app::WorkingFolders& folders)
    : context_(context), settings_(settings), folders_(folders), scratch_(context.files, folders.Temp) {}

bool ProcessRun::MayStart(std::span<const ProfileRecord> profiles) {
    if (profiles.empty()) {
        context_.person.ShowMessage("", "No Profiles to match images against!");
        return false;
    }
    if (profiles::CountActive(profiles) == 0) {
        context_.person.ShowMessage(
            "",
            "None of your Profiles are active! Activate a Profile by checking the PROFILE "
            "ACTIVE checkbox and clicking the SAVE button.");
        return false;
    }
    return true;
}

void ProcessRun::Run(std::span<const ProfileRecord> profiles) {
    const app::ScopedFlag running(running_);
    stop_ = false;
    filesDone_ = 0;
    currentName_.clear();
    const double start = context_.clock.Seconds();
    context_.person.SetPanel(Panel::ElapsedTime, "");
    context_.log.LogProcessEvent("Processing started", ShowInStatusBar::Yes);
    context_.page.Clear();
    context_.rows.ClearRows(profiles::BoxColumns::NameVal);
    TakeFiles(profiles);
    context_.person.SetPanel(Panel::File, profiles::ProfileCounts(profiles));
    Finish(start);
}

std::vector<std::string> ProcessRun::ListImages() {
    try {
        return context_.files.List(folders_.ProcessIn, "*");
    } catch (const app::FileError& error) {
        context_.log.LogProcessEvent(error.what());
        context_.person.ShowMessage("", error.what());
        return {};
    }
}

void ProcessRun::TakeFiles(std::span<const ProfileRecord> profiles) {
    const std::vector<std::string> names = ListImages();
    context_.person.SetProgressRange(static_cast<int>(names.size()));
    std::size_t next = 0;
    do {
        if (!names.empty())
            TakeInTurn(names, next, profiles);
        // Behind a single file and over an empty folder too: what is clicked meanwhile belongs to this run
        // and must not wait for its end, to start another.
        context_.person.RunPendingEvents();
    } while (++next < names.size() && !settings_.ProcessSingle && !stop_);
}

void ProcessRun::TakeInTurn(const std::vector<std::string>& names, std::size_t index,
                            std::span<const ProfileRecord> profiles) {
    currentName_ = names[index];
    const bool moved = TakeFile(currentName_, profiles);
    if (!moved)
        currentName_.clear();
    if (settings_.ProcessSingle)
        return;
    if (moved)
        LogAbout(currentName_, "Processing complete");
    currentName_ = index + 1 < names.size() ? names[index + 1] : std::string();
    context_.person.SetProgress(++filesDone_);
}

bool ProcessRun::TakeFile(const std::string& name, std::span<const ProfileRecord> profiles) {
    const bool display = settings_.DisplayDuringProcess;
    context_.person.SetPanel(Panel::File, name);
    if (display) {
        context_.page.ClearRects();
        context_.rows.ClearRows(profiles::BoxColumns::NameVal);
        context_.page.SetZoom(100);
    }
    FileOutcome outcome;
    try {
        Recognise(name, profiles, outcome);
    } catch (const std::exception& error) {
        LogAbout(name, error.what());
    }
    if (display)
        ShowPage(outcome);
    return MoveToProcessOut(name, outcome);
}

void ProcessRun::Recognise(const std::string& name, std::span<const ProfileRecord> profiles,
                           FileOutcome& outcome) {
    outcome.page = LoadPage(context_.files, context_.log, context_.person, folders_.ProcessIn + name);
    if (!outcome.page)
        return;
    const imaging::Page& page = *outcome.page;
    if (const std::string failure = scratch_.WritePage(page); !failure.empty())
        LogAbout(name, failure);
    Classification classification = ClassifyImage(page, profiles);
    context_.log.LogProcessEvent(ClassificationLine(name, classification, profiles));
    if (classification.winner < 0)
        return;
    const auto winner = static_cast<std::size_t>(classification.winner);
    ProfileMatch& match = classification.matches[winner];
    SpreadShifts(profiles[winner], match.shifts);
    outcome.readings = ReadMarks(page, profiles[winner], match.shifts, settings_.FillThreshold);
    SaveResult(name, profiles[winner], match.Confidence, outcome);
}

void ProcessRun::SaveResult(const std::string& name, const ProfileRecord& profile, std::int16_t confidence,
                            FileOutcome& outcome) {
    const std::string path = ResultPath(folders_.ProcessOut, name);
    if (context_.files.FileExists(path))
        outcome.replacedResult = context_.files.Read(path);
    SaveResultDocument(context_.files, path, {profile.Name, name, "0", confidence}, outcome.readings);
    outcome.hasResult = true;
    outcome.marks = ReadResultMarks(context_.files, path);
    if (outcome.replacedResult)
        LogAbout(name, "Result replaces the earlier " + app::FileName(path));
}

void ProcessRun::ShowPage(const FileOutcome& outcome) {
    if (outcome.page)
        context_.page.ShowPicture(outcome.page->bitmap);
    else
        context_.page.Clear();
    for (std::size_t k = 0; k < outcome.marks.size(); ++k) {
        const int number = static_cast<int>(k) + 1;
        const ResultMark& mark = outcome.marks[k];
        context_.page.PutRect(number, outcome.readings[k].rect,
                              mark.Checked ? imaging::RectStyle::Checked : imaging::RectStyle::Unchecked);
        context_.rows.PutRow(number, {mark.Name, mark.Checked ? "1" : "0"});
    }
    context_.page.Refresh();
}

// A move that fails leaves image and results as they were before this file was taken.
bool ProcessRun::MoveToProcessOut(const std::string& name, const FileOutcome& outcome) {
    if (app::UpperCase(app::Extension(name)) == "XML" &&
        context_.files.FileExists(folders_.ProcessOut + name)) {
        LogAbout(name, "Stays in ProcessIn, since a result of that name lies in ProcessOut");
        return false;
    }
    std::optional<app::Bytes> outdated;
    try {
        if (!outcome.hasResult)
            outdated = RemoveOutdatedResult(name);
        context_.files.Move(folders_.ProcessIn + name, folders_.ProcessOut + name);
        return true;
    } catch (const std::exception& error) {
        LogAbout(name, error.what());
    }
    try {
        if (outcome.hasResult || outdated)
            TakeBackResult(name, outcome.hasResult ? outcome.replacedResult : outdated);
    } catch (const std::exception& error) {
        LogAbout(name, error.what());
    }
    return false;
}

void ProcessRun::TakeBackResult(const std::string& name, const std::optional<app::Bytes>& earlier) {
    const std::string path = ResultPath(folders_.ProcessOut, name);
    if (earlier)
        context_.files.Write(path, *earlier);
    else
        context_.files.Delete(path);
}

// An image without a result must not lie beside the marks of the image that it replaces.
std::optional<app::Bytes> ProcessRun::RemoveOutdatedResult(const std::string& name) {
    const std::string path = ResultPath(folders_.ProcessOut, name);
    if (!context_.files.FileExists(path) || ImageOfResult(context_.files, path) != name)
        return std::nullopt;
    std::optional<app::Bytes> content = context_.files.Read(path);
    context_.files.Delete(path);
    LogAbout(name, "Replaces an earlier image, whose result " + app::FileName(path) + " is removed");
    return content;
}

void ProcessRun::LogAbout(const std::string& name, const std::string& what) {
    context_.log.LogProcessEvent(name + ": " + what);
}

void ProcessRun::Finish(double start) {
    context_.person.SetProgress(0);
    const long seconds = std::lround(context_.clock.Seconds() - start);
    if (stop_) {
        context_.log.LogProcessEvent("Processing interrupted by user", ShowInStatusBar::Yes);
        context_.person.ShowMessage("Stop Tavrene Process", "Process interrupted by user");
    } else {
        LogAbout(currentName_, "Processing complete");
    }
    const std::string summary = std::to_string(filesDone_) + " Files, " + std::to_string(seconds) + " Sec.";
    context_.person.SetPanel(Panel::ElapsedTime, summary);
    context_.log.LogProcessEvent("Processed " + summary);
    if (const int lost = context_.log.TakeLostLines(); lost > 0)
        context_.person.ShowMessage(
            "", std::to_string(lost) + " lines could not be written to the process log in " + folders_.Log);
}

}  // namespace tavrene::recognition
