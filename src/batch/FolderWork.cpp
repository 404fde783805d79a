#include "batch/FolderWork.h"

#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>

#include "app/ClaimFolders.h"
#include "app/Counted.h"
#include "app/Reason.h"
#include "batch/IncomingWatch.h"
#include "profiles/ProfileLoader.h"
#include "results/CsvExport.h"
#include "review/RunDoubts.h"

namespace tavrene::batch {

using app::FolderLock;
using recognition::FileEnd;
using std::chrono::steady_clock;

FolderWork::FolderWork(const Options& options, const Surroundings& surroundings, app::Files& files,
                       const app::Settings& settings, const recognition::ReadingOptions& review)
    : options_(options),
      surroundings_(surroundings),
      files_(files),
      settings_(settings),
      folders_(app::PathsUnder(settings.WorkDir)),
      person_(surroundings.messages),
      progress_(surroundings.out, options.json),
      log_(files, clock_, person_, folders_.Log),
      reading_{options.precise, false},
      precise_(files, reading_),
      review_(review),
      forReview_(files, review_),
      lock_(settings.WorkDir) {
    // They are about the window.
    settings_.ProcessSingle = false;
    settings_.DisplayDuringProcess = false;
    person_.onRange = [this](int count) { progress_.Begin(count); };
}

Exit FolderWork::Do() {
    // Better told now than after a night's work.
    MakeExportFolder();
    if (options_.patience > 0)
        return Share();
    return options_.watch ? Watch() : ProcessOnce();
}

Exit FolderWork::ProcessOnce() {
    if (!LockOrTell(FolderLock::Use::Alone))
        return Exit::InUse;
    const Exit exit = Process(folders_, {}, {});
    if (exit == Exit::Failed)
        return exit;
    Export();
    return TellOfClaimed(exit);
}

// A signal is the only way to end this, so it ends well.
Exit FolderWork::Watch() {
    IncomingWatch watch(files_, folders_.ProcessIn);
    bool isNew = true;
    for (; !surroundings_.stop; watch.Wait()) {
        if (!LockOrTell(FolderLock::Use::Alone))
            continue;
        std::vector<std::string> ready = watch.Take(steady_clock::now());
        const auto incoming = [&ready] { return std::exchange(ready, {}); };
        if (!ready.empty()) {
            if (Process(folders_, {}, incoming) == Exit::Failed)
                return Exit::Failed;
            ExportOrTell();
        }
        if (std::exchange(isNew, false))
            TellOfClaimed(Exit::Done);
        // Between two lots the window may have the folder.
        lock_.Release();
    }
    return Exit::Done;
}

// Nobody leaves before all is done, for each of the others may die and leave its files to this one.
Exit FolderWork::Share() {
    constexpr std::chrono::milliseconds kPause{200};
    if (!LockOrTell(FolderLock::Use::Shared))
        return Exit::InUse;
    Claims claims(files_, folders_.ProcessIn, std::chrono::seconds(options_.patience));
    Exit exit = Exit::Done;
    while (!surroundings_.stop && exit != Exit::Failed) {
        // Asked before, for what another gives back while this one looks is there for the next look.
        const bool othersWork = claims.OthersWork();
        if (ShareNext(claims, exit))
            continue;
        if (!othersWork)
            break;
        std::this_thread::sleep_for(kPause);
    }
    if (surroundings_.stop)
        return Exit::Stopped;
    const std::string why = claims.Hindrance();
    if (!why.empty() && (!files_.List(folders_.ProcessIn, "*").empty() ||
                         app::CountClaimed(files_, folders_.ProcessIn) > 0)) {
        person_.ShowMessage("",
                            "Files are left in " + folders_.ProcessIn + " that cannot be claimed: " + why);
        exit = exit == Exit::Done ? Exit::SomeLeft : exit;
    }
    // Only now all documents are there; one that is stopped leaves the tables to those that go on.
    if (exit != Exit::Failed)
        Export();
    return exit;
}

// False when there is nothing to do at the moment.
bool FolderWork::ShareNext(Claims& claims, Exit& exit) {
    constexpr std::size_t kLot = 8;
    const std::size_t most = kLot * static_cast<std::size_t>(options_.jobs);
    app::WorkingFolders folders = folders_;
    folders.ProcessIn = claims.Folder();
    Incoming incoming;
    if (std::vector<std::string> lot = claims.Take(most); !lot.empty()) {
        incoming = [lot = std::move(lot), &claims, most]() mutable {
            std::vector<std::string> first = std::exchange(lot, {});
            return first.empty() ? claims.Take(most) : first;
        };
    } else if (const auto claim = claims.TakeOver(steady_clock::now())) {
        folders.ProcessIn = *claim;
    } else {
        claims.GiveBack(claims.Folder());
        return false;
    }
    const Exit one = Process(folders, folders.ProcessIn, incoming);
    exit = one == Exit::Done ? exit : one;
    if (const std::string rest = claims.GiveBack(folders.ProcessIn); !rest.empty()) {
        person_.ShowMessage("", "Something that cannot be given back is left in " + rest);
        exit = exit == Exit::Done ? Exit::SomeLeft : exit;
    }
    return true;
}

bool FolderWork::LockOrTell(FolderLock::Use use) {
    const bool isLocked = lock_.Take(use);
    if (!isLocked && !std::exchange(isWaiting_, true))
        person_.ShowMessage(
            "", (options_.watch ? "Waiting, for another program works on " : "Another program works on ") +
                    settings_.WorkDir);
    isWaiting_ = !isLocked;
    return isLocked;
}

Exit FolderWork::Process(const app::WorkingFolders& folders, const std::string& staging,
                         const Incoming& incoming) {
    review::RunDoubts doubts(files_, settings_, folders_, profiles_, &forReview_);
    const bool isCounted = options_.doubts && review_.preciseAlignment == reading_.preciseAlignment;
    recognition::ProcessRun run({.files = files_,
                                 .log = log_,
                                 .person = person_,
                                 .clock = clock_,
                                 .page = screen_,
                                 .rows = screen_,
                                 .precise = &precise_,
                                 .incoming = incoming,
                                 .staging = staging,
                                 .jobs = [this] { return options_.jobs; },
                                 .look = isCounted ? doubts.Look() : recognition::FormLook()},
                                settings_, folders);
    person_.onPendingEvents = [this, &run, &folders] {
        Tell(run.TakeReports(), folders.ProcessIn);
        if (surroundings_.stop)
            run.Stop();
    };
    profiles_ = profiles::LoadActiveProfiles(files_, log_, person_, folders.Profiles);
    if (!run.MayStart(profiles_))
        return Exit::Failed;
    doubts.Begin();
    run.Run(profiles_);
    doubts.End();
    Tell(run.TakeReports(), folders.ProcessIn);
    progress_.End(run.Summary().seconds, surroundings_.stop);
    // Once, however many lots there are.
    const std::string specimens = recognition::TextOf(run.Opinions());
    if (!specimens.empty() && std::exchange(toldOfSpecimens_, specimens) != specimens)
        person_.ShowMessage("", specimens);
    if (surroundings_.stop)
        return Exit::Stopped;
    const std::size_t left = progress_.Count(FileEnd::Refused) + progress_.Count(FileEnd::NotWritten);
    return left > 0 ? Exit::SomeLeft : Exit::Done;
}

void FolderWork::MakeExportFolder() {
    if (!options_.exportTo.empty() && !files_.FolderExists(options_.exportTo + "/"))
        files_.CreateFolder(options_.exportTo + "/");
}

// Pages that nobody reads are no fault of the run, but by night there is no summary that offers to split
// them.
void FolderWork::Tell(std::span<const recognition::FileReport> files, const std::string& incoming) {
    for (const recognition::FileReport& file : files) {
        if (file.furtherPages > 0)
            person_.ReportFile(
                file.name,
                app::Counted(file.furtherPages, "further page was", "further pages were") + " not looked at");
        // Those that have stayed where they were are told already.
        if (file.end == FileEnd::NotWritten && !files_.FileExists(incoming + file.name))
            person_.ReportFile(file.name, file.reason);
    }
    progress_.Add(files);
}

// Nobody who claims works on the folder now, so nobody else would ever read them.
Exit FolderWork::TellOfClaimed(Exit exit) {
    const std::size_t count = app::CountClaimed(files_, folders_.ProcessIn);
    if (count == 0)
        return exit;
    person_.ShowMessage("", app::Counted(count, "scan lies", "scans lie") +
                                " in claims of programs that were killed. tavrene-batch --claim takes " +
                                (count == 1 ? "it" : "them") + " over.");
    return exit == Exit::Done ? Exit::SomeLeft : exit;
}

// A share that is away for a while must not end the watch.
void FolderWork::ExportOrTell() {
    if (const std::string failure = app::FailureOf([this] { Export(); }); !failure.empty())
        person_.ShowMessage("", failure);
}

void FolderWork::Export() {
    if (options_.exportTo.empty())
        return;
    const std::string folder = options_.exportTo + "/";
    MakeExportFolder();
    const results::Progress goOn = [](std::size_t, std::size_t) { return true; };
    const auto found = results::ReadResults(files_, folders_.ProcessOut, goOn);
    for (const results::LeftOut& document : found->Damaged)
        person_.ReportFile(document.Document, document.Reason);
    const results::GroupsOfProfiles groups = options_.groups
                                                 ? results::GroupsIn(files_, found->Tables, folders_.Profiles)
                                                 : results::GroupsOfProfiles();
    results::ExportCsv(files_, found->Tables, groups, folder, {}, goOn);
}

}  // namespace tavrene::batch
