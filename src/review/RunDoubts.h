#pragma once

#include <optional>
#include <string>
#include <vector>

#include "recognition/FormReader.h"
#include "review/DoubtFinder.h"

namespace tavrene::review {

/// Counts the doubts of forms while a run reads them, so that nobody has to read them again for it.
class RunDoubts {
  public:
    /// As for `DoubtFinder`.
    RunDoubts(app::Files& files, const app::Settings& settings, const app::WorkingFolders& folders,
              const std::vector<profiles::ProfileRecord>& profiles, recognition::PreciseReader* precise)
        : files_(files), settings_(settings), folders_(folders), profiles_(profiles), precise_(precise) {}

    /// A run begins.
    void Begin() { finder_.emplace(files_, settings_, folders_, profiles_, precise_); }

    /// For the run; may be called by several threads at a time.
    recognition::FormLook Look();

    /// The run has ended: what was found is written where review finds it.
    void End();

  private:
    FormDoubts DoubtsAbout(const recognition::FormReading& reading, const profiles::ProfileRecord& profile);
    void Take(const std::string& image, const std::string& profile, const FormDoubts& doubts);

    app::Files& files_;
    const app::Settings& settings_;
    const app::WorkingFolders& folders_;
    const std::vector<profiles::ProfileRecord>& profiles_;
    recognition::PreciseReader* precise_;
    std::optional<DoubtFinder> finder_;  ///< Of the run; none between runs.
};

}  // namespace tavrene::review
