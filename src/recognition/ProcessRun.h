#pragma once

#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/ActivityLog.h"
#include "app/Clock.h"
#include "app/Files.h"
#include "app/Operator.h"
#include "app/Settings.h"
#include "app/WorkingFolders.h"
#include "imaging/Bitmap.h"
#include "imaging/PageScreen.h"
#include "imaging/ScratchImages.h"
#include "profiles/BoxRows.h"
#include "profiles/ProfileRecord.h"
#include "recognition/FormDelivery.h"
#include "recognition/FormReader.h"
#include "recognition/RunSummary.h"
#include "recognition/precise/PreciseReader.h"

namespace tavrene::recognition {

class ReadAhead;

/// What a run needs of the world; everything must outlive it.
struct RunContext {
    app::Files& files;
    app::ActivityLog& log;
    app::Operator& person;
    const app::Clock& clock;
    imaging::PageScreen& page;
    profiles::BoxRows& rows;
    PreciseReader* precise = nullptr;  ///< Without one there is the plain reading alone.
    bool canReadImages = !imaging::ImageLibraryVersion().empty();
    /// Gives the files to take, and then again those that came meanwhile, until there are none. Without it
    /// all that lie in `ProcessIn` at the start are taken.
    std::function<std::vector<std::string>()> incoming = {};
    std::string staging = {};        ///< As for `FormDelivery`.
    std::function<int()> jobs = {};  ///< How many forms are read side by side; without it one.
    FormLook look = {};  ///< Has a look at each form that is read, from the thread that has read it.
};

/// The system's main loop: takes the images of `ProcessIn` one by one, reads each against the loaded profiles
/// and moves it to `ProcessOut`. Whatever fails for one file is logged and the run goes on. However many
/// forms are read side by side, one hand tells and writes all in the order of the listing.
class ProcessRun {
  public:
    /// The settings are asked anew for every file; the folders are those of the window.
    ProcessRun(const RunContext& context, const app::Settings& settings, const app::WorkingFolders& folders);

    /// False, after telling the operator why, when there is no profile to match images against, or when no
    /// image can be read: they would all be moved unread.
    bool MayStart(std::span<const profiles::ProfileRecord> profiles);

    /// Runs until the folder is done, after one file when `ProcessSingle` is on, or until `Stop`. Lets the
    /// screen take events once a file, and once where there is none.
    void Run(std::span<const profiles::ProfileRecord> profiles);

    /// Ends the run before its next file; the current one is finished.
    void Stop() { stop_ = true; }

    bool IsRunning() const { return running_; }

    /// What became of the files of the last run.
    const RunSummary& Summary() const { return summary_; }

    /// Those of its files that have not been taken yet. A run of a night would keep more and more of them.
    std::vector<FileReport> TakeReports() { return std::exchange(summary_.files, {}); }

    /// The further pages of a file of the last run have become files of their own.
    void ForgetFurtherPages(const std::string& name);

    /// Files of the last run of which something else has become since.
    void Correct(std::span<const FileReport> files);

    /// What the second opinion on the forms of the last run has come to.
    const OpinionTally& Opinions() const { return opinions_; }

    /// Ends, with a line in the log, what an earlier run left half done when it was cut short. For the start
    /// of the program; a run begins with it, too.
    void Settle();

  private:
    struct FileOutcome;

    std::vector<std::string> ListImages();
    void TakeFiles(std::span<const profiles::ProfileRecord> profiles, const std::vector<std::string>& names);
    void TakeInTurn(const std::vector<std::string>& names, std::size_t index,
                    std::span<const profiles::ProfileRecord> profiles, ReadAhead& forms);
    FormReading Read(const std::string& name, std::span<const profiles::ProfileRecord> profiles) const;
    std::size_t FirstToTake(const std::vector<std::string>& names);
    bool TakeFile(const std::string& name, std::span<const profiles::ProfileRecord> profiles,
                  ReadAhead& forms);
    void Record(std::span<const profiles::ProfileRecord> profiles, FileOutcome& outcome);
    std::string LogFailureOf(const std::string& name, const std::function<void()>& step);
    void NoteSecondOpinion(const FileOutcome& outcome);
    void ShowPage(const FileOutcome& outcome);
    bool MoveToProcessOut(FileReport& report);
    bool WasTakenOver(const std::string& name);
    void StayBehind(FileReport& report, const std::string& reason);
    std::string StateOf(const std::string& name) const;
    void RestoreRows();
    void LogAbout(const std::string& name, std::string_view what);
    void Finish(double start);

    RunContext context_;
    const app::Settings& settings_;
    const app::WorkingFolders& folders_;
    imaging::ScratchImages scratch_;
    FormDelivery delivery_;
    FormReader reader_;
    bool running_ = false;
    bool stop_ = false;
    int filesDone_ = 0;
    bool formStays_ = false;  // the last form is on the screen
    std::string currentName_;
    OpinionTally opinions_;
    RunSummary summary_;
    std::map<std::string, std::string> stuck_;  // files that could not be moved: name, and state at that time
};

}  // namespace tavrene::recognition
