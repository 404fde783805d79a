#include "recognition/ProcessRun.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <stdexcept>
#include <vector>

#include "app/ClaimFolders.h"
#include "app/Reason.h"
#include "app/ScopedFlag.h"
#include "profiles/ProfileLoader.h"
#include "recognition/PageLoading.h"
#include "recognition/ReadAhead.h"
#include "recognition/ResultDocument.h"

namespace tavrene::recognition {

using app::Panel;
using app::ShowInStatusBar;
using imaging::PageError;
using profiles::ProfileRecord;

// What came of one file, as far as it is shown.
struct ProcessRun::FileOutcome {
    FileReport report;
    FormReading reading;
    std::vector<ResultMark> marks;  // read back from the written document
};

ProcessRun::ProcessRun(const RunContext& context, const app::Settings& settings,
                       const app::WorkingFolders& folders)
    : context_(context),
      settings_(settings),
      folders_(folders),
      scratch_(context.files, folders.Temp),
      delivery_(context.files, folders, context.staging),
      reader_(context.files, context.precise, settings, folders.ProcessIn) {}

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
    if (!context_.canReadImages) {
        const std::string text = "Nothing is processed: " + std::string(ReasonOf(PageError::NoLibrary)) +
                                 ", so no image can be read.";
        context_.log.LogProcessEvent(text);
        context_.person.ShowMessage("", text);
        return false;
    }
    return true;
}

void ProcessRun::Run(std::span<const ProfileRecord> profiles) {
    const app::ScopedFlag running(running_);
    stop_ = false;
    formStays_ = false;
    filesDone_ = 0;
    currentName_.clear();
    opinions_ = {};
    if (context_.precise != nullptr)
        context_.precise->TakeFaults();  // what review has met is no matter of this run
    summary_ = {};
    const double start = context_.clock.Seconds();
    context_.person.SetPanel(Panel::ElapsedTime, "");
    context_.log.LogProcessEvent("Processing started", ShowInStatusBar::Yes);
    Settle();
    context_.page.Clear();
    context_.rows.ClearRows(profiles::BoxColumns::NameVal);
    std::vector<std::string> names = ListImages();
    TakeFiles(profiles, names);
    while (context_.incoming && !stop_ && !(names = ListImages()).empty())
        TakeFiles(profiles, names);
    context_.person.SetPanel(Panel::File, profiles::ProfileCounts(profiles));
    if (context_.staging.empty())
        summary_.inClaims = app::CountClaimed(context_.files, folders_.ProcessIn);
    Finish(start);
}

void ProcessRun::ForgetFurtherPages(const std::string& name) {
    for (FileReport& file : summary_.files)
        if (file.name == name)
            file.furtherPages = 0;
}

void ProcessRun::Correct(std::span<const FileReport> files) {
    for (const FileReport& now : files)
        std::ranges::replace_if(
            summary_.files, [&now](const FileReport& file) { return file.name == now.name; }, now);
}

void ProcessRun::Settle() {
    try {
        for (const std::string& line : delivery_.Settle())
            context_.log.LogProcessEvent(line);
    } catch (const std::exception& error) {
        context_.log.LogProcessEvent(app::ReasonOf(error));
    }
}

std::vector<std::string> ProcessRun::ListImages() {
    try {
        return context_.incoming ? context_.incoming() : context_.files.List(folders_.ProcessIn, "*");
    } catch (const std::exception& error) {
        context_.log.LogProcessEvent(app::ReasonOf(error));
        context_.person.ShowMessage("", app::ReasonOf(error));
        return {};
    }
}

void ProcessRun::TakeFiles(std::span<const ProfileRecord> profiles, const std::vector<std::string>& names) {
    context_.person.SetProgressRange(static_cast<int>(names.size()));
    std::size_t next = settings_.ProcessSingle ? FirstToTake(names) : 0;
    const int jobs = context_.jobs && !settings_.ProcessSingle ? context_.jobs() : 1;
    ReadAhead forms(next, names.size(), jobs,
                    [&](std::size_t index) { return Read(names[index], profiles); });
    do {
        if (!names.empty())
            TakeInTurn(names, next, profiles, forms);
        // Behind a single file and over an empty folder too: what is clicked meanwhile belongs to this run
        // and must not wait for its end, to start another.
        context_.person.RunPendingEvents();
    } while (++next < names.size() && !settings_.ProcessSingle && !stop_);
}

FormReading ProcessRun::Read(const std::string& name, std::span<const ProfileRecord> profiles) const {
    const bool isShown = settings_.DisplayDuringProcess;
    FormReading reading = reader_.Read(name, profiles, isShown || context_.look);
    if (context_.look && reading.winner >= 0)
        reading.arrived = context_.look(name, reading, profiles[static_cast<std::size_t>(reading.winner)]);
    if (!isShown)
        reading.page.reset();
    return reading;
}

// A single run has to reach the files behind one that cannot be moved. Where there are no others, those that
// could not be moved take turns.
std::size_t ProcessRun::FirstToTake(const std::vector<std::string>& names) {
    const auto isStuck = [this](const std::string& name) {
        const auto stuck = stuck_.find(name);
        return stuck != stuck_.end() && stuck->second == StateOf(name);
    };
    const auto first = std::find_if_not(names.begin(), names.end(), isStuck);
    if (first == names.end()) {
        stuck_.clear();
        return 0;
    }
    for (auto passed = names.begin(); passed != first; ++passed)
        LogAbout(*passed, said::kPassedOver);
    return static_cast<std::size_t>(first - names.begin());
}

void ProcessRun::TakeInTurn(const std::vector<std::string>& names, std::size_t index,
                            std::span<const ProfileRecord> profiles, ReadAhead& forms) {
    currentName_ = names[index];
    const bool moved = TakeFile(currentName_, profiles, forms);
    if (!moved)
        currentName_.clear();
    if (settings_.ProcessSingle)
        return;
    if (moved)
        LogAbout(currentName_, said::kComplete);
    currentName_ = index + 1 < names.size() ? names[index + 1] : std::string();
    context_.person.SetProgress(++filesDone_);
}

bool ProcessRun::TakeFile(const std::string& name, std::span<const ProfileRecord> profiles,
                          ReadAhead& forms) {
    const bool display = settings_.DisplayDuringProcess;
    context_.person.SetPanel(Panel::File, name);
    if (display) {
        context_.page.ClearRects();
        context_.rows.ClearRows(profiles::BoxColumns::NameVal);
        context_.page.SetZoom(100);
    }
    FileOutcome outcome;
    outcome.report.name = name;
    outcome.reading = forms.Take();
    if (WasTakenOver(name))
        return false;
    if (std::string failure = LogFailureOf(name, [&] { Record(profiles, outcome); }); !failure.empty()) {
        // What was read and failed all the same could not be written.
        outcome.report.end = outcome.reading.marks.empty() ? FileEnd::Refused : FileEnd::NotWritten;
        outcome.report.reason = std::move(failure);
    }
    NoteSecondOpinion(outcome);
    if (display)
        LogFailureOf(name, [&] { ShowPage(outcome); });
    const bool moved = MoveToProcessOut(outcome.report);
    if (moved && !outcome.marks.empty() && outcome.reading.arrived)
        outcome.reading.arrived();
    summary_.files.push_back(std::move(outcome.report));
    return moved;
}

// What is staged among one's own claims was claimed by others once its owner had been still for too long.
// They read it and tell of it.
bool ProcessRun::WasTakenOver(const std::string& name) {
    if (context_.staging.empty() || context_.files.FileExists(folders_.ProcessIn + name))
        return false;
    LogAbout(name, said::kTakenOver);
    return true;
}

// Whatever goes wrong with one file, it moves on, and so does the run.
std::string ProcessRun::LogFailureOf(const std::string& name, const std::function<void()>& step) {
    std::string failure = app::FailureOf(step);
    if (!failure.empty())
        LogAbout(name, failure);
    return failure;
}

void ProcessRun::Record(std::span<const ProfileRecord> profiles, FileOutcome& outcome) {
    FileReport& report = outcome.report;
    const FormReading& reading = outcome.reading;
    if (reading.error) {
        TellPageError(context_.log, context_.person, report.name, *reading.error);
        report.reason = imaging::ReasonOf(*reading.error);
        return;
    }
    report.furtherPages = reading.furtherPages;
    if (const std::string failure = scratch_.Write(reading.copy); !failure.empty())
        LogAbout(report.name, failure);
    if (!reading.classification.empty()) {
        context_.log.LogProcessEvent(ClassificationLine(report.name, reading.classification));
        report.end = reading.winner >= 0 ? FileEnd::Read : FileEnd::NotRecognised;
        report.reason = WithoutBlankAtEnd(reading.classification);
    }
    if (!reading.failure.empty())
        throw std::runtime_error(reading.failure);
    if (reading.winner < 0)
        return;
    const ProfileRecord& profile = profiles[static_cast<std::size_t>(reading.winner)];
    outcome.marks =
        delivery_.StageResult({profile.Name, report.name, "0", reading.Confidence}, reading.marks);
}

// What it says is for the person alone: result and log are those of the plain reading.
void ProcessRun::NoteSecondOpinion(const FileOutcome& outcome) {
    if (context_.precise == nullptr)
        return;
    if (outcome.reading.opinion)
        opinions_.Add(outcome.report.name, *outcome.reading.opinion);
    if (!outcome.reading.opinionFailure.empty())
        LogAbout(outcome.report.name, outcome.reading.opinionFailure);
    SpecimenFaults faults = context_.precise->TakeFaults();
    if (context_.precise->Reads() || context_.precise->GivesSecondOpinion())
        opinions_.specimens.replaced.merge(faults.replaced);
    // The plain reading needs no specimen.
    if (context_.precise->Reads())
        opinions_.specimens.unreadable.merge(faults.unreadable);
}

void ProcessRun::ShowPage(const FileOutcome& outcome) {
    if (outcome.reading.page)
        context_.page.ShowPicture(outcome.reading.page->bitmap);
    else
        context_.page.Clear();
    context_.page.TurnPage(outcome.reading.turned);
    for (std::size_t k = 0; k < outcome.marks.size(); ++k) {
        const int number = static_cast<int>(k) + 1;
        const ResultMark& mark = outcome.marks[k];
        context_.page.PutRect(number, outcome.reading.marks[k].rect,
                              mark.Checked ? imaging::RectStyle::Checked : imaging::RectStyle::Unchecked);
        context_.rows.PutRow(number, {mark.Name, mark.Checked ? "1" : "0"});
    }
    context_.page.Refresh();
    formStays_ = !outcome.marks.empty();
}

bool ProcessRun::MoveToProcessOut(FileReport& report) {
    const std::string& name = report.name;
    const std::string result = app::FileName(ResultPath(folders_.ProcessOut, name));
    try {
        switch (delivery_.Deliver(name)) {
            case FormDelivery::Earlier::Replaced:
                LogAbout(name, std::string(said::kReplacesResult) + result);
                break;
            case FormDelivery::Earlier::Removed:
                LogAbout(name, std::string(said::kReplacesImage) + result + " is removed");
                break;
            case FormDelivery::Earlier::None:
                break;
        }
        return true;
    } catch (const std::exception& error) {
        StayBehind(report, app::ReasonOf(error));
    }
    return false;
}

void ProcessRun::StayBehind(FileReport& report, const std::string& reason) {
    const std::string& name = report.name;
    report.end = FileEnd::NotWritten;
    report.reason = reason;
    LogAbout(name, reason);
    if (!context_.files.FileExists(folders_.ProcessIn + name))
        return;
    context_.person.ReportFile(name, reason);
    stuck_[name] = StateOf(name);
}

// Another text when the file has changed, or what is in its way.
std::string ProcessRun::StateOf(const std::string& name) const {
    const std::string place = folders_.ProcessOut + name;
    return context_.files.Fingerprint(folders_.ProcessIn + name) + " " + context_.files.Fingerprint(place) +
           (context_.files.FolderExists(place) ? " folder" : "");
}

// What was open before was closed when the run began, so the list is empty again, and without values.
void ProcessRun::RestoreRows() {
    if (!formStays_)
        context_.rows.ClearRows(profiles::BoxColumns::Name);
}

void ProcessRun::LogAbout(const std::string& name, std::string_view what) {
    context_.log.LogProcessEvent(std::string(name).append(": ").append(what));
}

void ProcessRun::Finish(double start) {
    context_.person.SetProgress(0);
    const long seconds = std::lround(context_.clock.Seconds() - start);
    summary_.seconds = seconds;
    if (stop_) {
        context_.log.LogProcessEvent("Processing interrupted by user", ShowInStatusBar::Yes);
        context_.person.ShowMessage("Stop Tavrene Process", "Process interrupted by user");
    } else {
        LogAbout(currentName_, said::kComplete);
        context_.person.SetPanel(Panel::Message, said::kComplete);
    }
    RestoreRows();
    const std::string summary = std::to_string(filesDone_) + " Files, " + std::to_string(seconds) + " Sec.";
    context_.person.SetPanel(Panel::ElapsedTime, summary);
    context_.log.LogProcessEvent("Processed " + summary);
    if (const int lost = context_.log.TakeLostLines(); lost > 0)
        context_.person.ShowMessage(
            "", std::to_string(lost) + " lines could not be written to the process log in " + folders_.Log);
}

}  // namespace tavrene::recognition
