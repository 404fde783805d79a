#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "app/ActivityLog.h"
#include "app/Clock.h"
#include "app/Files.h"
#include "app/FolderLock.h"
#include "app/Settings.h"
#include "app/WorkingFolders.h"
#include "batch/Batch.h"
#include "batch/Claims.h"
#include "batch/Console.h"
#include "recognition/ProcessRun.h"

namespace tavrene::batch {

/// The work on one working folder: once, as long as nobody stops it, or together with others.
class FolderWork {
  public:
    /// All must outlive this; of the settings the present values count. `review` is how review will look at
    /// the forms: their doubts are not counted when it reads by another way than is read here.
    FolderWork(const Options& options, const Surroundings& surroundings, app::Files& files,
               const app::Settings& settings, const recognition::ReadingOptions& review);

    /// Throws `app::FileError` when the folder cannot be listed or a table not be written.
    Exit Do();

  private:
    using Incoming = std::function<std::vector<std::string>()>;

    Exit ProcessOnce();
    Exit Watch();
    Exit Share();
    bool ShareNext(Claims& claims, Exit& exit);
    bool LockOrTell(app::FolderLock::Use use);
    Exit Process(const app::WorkingFolders& folders, const std::string& staging, const Incoming& incoming);
    void Tell(std::span<const recognition::FileReport> files, const std::string& incoming);
    Exit TellOfClaimed(Exit exit);
    void MakeExportFolder();
    void Export();
    void ExportOrTell();

    const Options& options_;
    const Surroundings& surroundings_;
    app::Files& files_;
    app::Settings settings_;
    app::WorkingFolders folders_;
    app::SystemClock clock_;
    ConsoleOperator person_;
    NoScreen screen_;
    Progress progress_;
    app::ActivityLog log_;
    recognition::ReadingOptions reading_;
    recognition::PreciseReader precise_;
    recognition::ReadingOptions review_;
    recognition::PreciseReader forReview_;
    app::FolderLock lock_;
    std::vector<profiles::ProfileRecord> profiles_;
    bool isWaiting_ = false;
    std::string toldOfSpecimens_;
};

}  // namespace tavrene::batch
