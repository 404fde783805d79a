#include "batch/Batch.h"

#include <filesystem>
#include <ostream>
#include <utility>
#include <vector>

#include "app/FolderLock.h"
#include "app/Reason.h"
#include "app/Startup.h"
#include "app/WorkingFolders.h"
#include "batch/Console.h"
#include "batch/IncomingWatch.h"
#include "batch/IniStore.h"
#include "profiles/ProfileLoader.h"
#include "recognition/ProcessRun.h"
#include "results/CsvExport.h"

namespace tavrene::batch {
namespace {

using app::FolderLock;
using recognition::FileEnd;

// Whole, so that a message names it wherever the program was started.
std::string WholePath(const std::string& path) {
    std::string whole = app::FromPath(std::filesystem::absolute(app::ToPath(path)).lexically_normal());
    while (whole.size() > 1 && whole.ends_with('/'))
        whole.pop_back();
    return whole;
}

class Batch {
  public:
    Batch(const Options& options, const Surroundings& surroundings, app::Files& files,
          const app::Settings& settings)
        : options_(options),
          surroundings_(surroundings),
          files_(files),
          settings_(settings),
          person_(surroundings.messages),
          progress_(surroundings.out, options.json),
          lock_(settings.WorkDir) {
        // They are about the window.
        settings_.ProcessSingle = false;
        settings_.DisplayDuringProcess = false;
        person_.onRange = [this](int count) { progress_.Begin(count); };
        person_.onPendingEvents = [this] {
            progress_.Update(run_.Summary());
            if (surroundings_.stop)
                run_.Stop();
        };
    }

    Exit ProcessFolder() {
        if (!lock_.Take(FolderLock::Use::Alone)) {
            person_.ShowMessage("", "Another program works on " + settings_.WorkDir);
            return Exit::InUse;
        }
        return Process();
    }

    // A signal is the only way to end this, so it ends well.
    Exit Watch() {
        IncomingWatch watch(files_, folders_.ProcessIn);
        for (; !surroundings_.stop; watch.Wait()) {
            if (!LockOrTell())
                continue;
            ready_ = watch.Take(IncomingWatch::Moment::clock::now());
            if (!ready_.empty() && Process() == Exit::Failed)
                return Exit::Failed;
            // Between two lots the window may have the folder.
            lock_.Release();
        }
        return Exit::Done;
    }

  private:
    bool LockOrTell() {
        const bool isLocked = lock_.Take(FolderLock::Use::Alone);
        if (!isLocked && !isWaiting_)
            person_.ShowMessage("", "Waiting, for another program works on " + settings_.WorkDir);
        isWaiting_ = !isLocked;
        return isLocked;
    }

    Exit Process() {
        const auto profiles = profiles::LoadActiveProfiles(files_, log_, person_, folders_.Profiles);
        if (!run_.MayStart(profiles))
            return Exit::Failed;
        run_.Run(profiles);
        progress_.End(run_.Summary(), surroundings_.stop);
        if (!options_.exportTo.empty())
            Export();
        if (surroundings_.stop)
            return Exit::Stopped;
        const std::size_t left =
            run_.Summary().Count(FileEnd::Refused) + run_.Summary().Count(FileEnd::NotWritten);
        return left > 0 ? Exit::SomeLeft : Exit::Done;
    }

    void Export() {
        const std::string folder = WholePath(options_.exportTo) + "/";
        if (!files_.FolderExists(folder))
            files_.CreateFolder(folder);
        const results::Progress goOn = [](std::size_t, std::size_t) { return true; };
        const auto found = results::ReadResults(files_, folders_.ProcessOut, goOn);
        for (const results::LeftOut& document : found->Damaged)
            person_.ReportFile(document.Document, document.Reason);
        results::ExportCsv(files_, found->Tables, {}, folder, {}, goOn);
    }

    recognition::RunContext Context() {
        recognition::RunContext context{files_, log_, person_, clock_, screen_, screen_, &precise_};
        context.jobs = [this] { return options_.jobs; };
        if (options_.watch)
            context.incoming = [this] { return std::exchange(ready_, {}); };
        return context;
    }

    const Options& options_;
    const Surroundings& surroundings_;
    app::Files& files_;
    app::Settings settings_;
    app::WorkingFolders folders_ = app::PathsUnder(settings_.WorkDir);
    app::SystemClock clock_;
    ConsoleOperator person_;
    NoScreen screen_;
    Progress progress_;
    app::ActivityLog log_{files_, clock_, person_, folders_.Log};
    recognition::ReadingOptions reading_{options_.precise, false};
    recognition::PreciseReader precise_{files_, reading_};
    recognition::ProcessRun run_{Context(), settings_, folders_};
    FolderLock lock_;
    std::vector<std::string> ready_;  // settled files, when watching
    bool isWaiting_ = false;
};

// A folder that is no working folder yet was named by mistake.
std::string WhyUnusable(const app::Files& files, const Options& options, const std::string& folder) {
    if (!files.FolderExists(folder + "/Profiles"))
        return folder + " is no working folder: it has no folder Profiles";
    if (!options.settings.empty() && !files.FileExists(options.settings))
        return "there is no file " + options.settings;
    return {};
}

Exit RunInFolder(const Options& options, const Surroundings& surroundings) {
    app::DiskFiles files;
    const std::string folder = WholePath(options.folder);
    if (const std::string why = WhyUnusable(files, options, folder); !why.empty()) {
        ConsoleOperator(surroundings.messages).ShowMessage("", why);
        return Exit::Failed;
    }
    IniStore store(files, options.settings.empty() ? UsualSettingsFile() : options.settings);
    store.Hold("WorkDir", folder);
    Exit exit = Exit::Failed;
    app::Settings settings;
    bool isUsable = true;
    app::RunStartup(settings,
                    {store, files, [] { return true; }, [&isUsable](app::Settings&) { isUsable = false; },
                     [&] {
                         if (!isUsable)
                             return;
                         Batch batch(options, surroundings, files, settings);
                         exit = options.watch ? batch.Watch() : batch.ProcessFolder();
                     }});
    if (!isUsable)
        ConsoleOperator(surroundings.messages)
            .ShowMessage("", "the folders that are missing in " + folder + " cannot be made");
    return exit;
}

}  // namespace

Exit RunBatch(const Options& options, const Surroundings& surroundings) {
    try {
        return RunInFolder(options, surroundings);
    } catch (const std::exception& error) {
        ConsoleOperator(surroundings.messages).ShowMessage("", app::ReasonOf(error));
        return Exit::Failed;
    }
}

}  // namespace tavrene::batch
