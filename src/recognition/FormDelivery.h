#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "app/Files.h"
#include "app/WorkingFolders.h"
#include "recognition/ResultDocument.h"

namespace tavrene::recognition {

/// Brings an image and its result from `ProcessIn` to `ProcessOut` as one: no picture ever lies beside the
/// marks of another, whatever fails and whenever the program is killed. A document on its way lies in
/// `ProcessOut` (or in `staging`) under a hidden name, which also tells what the image's place held before;
/// by that the next start knows whether the image had arrived.
class FormDelivery {
  public:
    /// What an arrival did to the result that lay there before.
    enum class Earlier { None, Replaced, Removed };

    /// `files` and `folders` must outlive the delivery. `staging` (ending in a separator) is where documents
    /// wait for their images if not in `ProcessOut`: several deliveries to one `ProcessOut` need a place
    /// each, since what waits in its own is settled as left over.
    FormDelivery(app::Files& files, const app::WorkingFolders& folders, const std::string& staging = {});

    /// Writes the result of a waiting image, to be taken along by `Deliver`, and gives the marks that the
    /// document holds. Throws `app::FileError`, or what else keeps it from being read back; then there is
    /// none.
    std::vector<ResultMark> StageResult(const ResultHeader& header, std::span<const MarkReading> readings);

    /// Moves the image (file name), replacing what has its name, and puts the staged result in its place;
    /// without one, an earlier result of that image goes. Throws `app::FileError` when the image cannot be
    /// moved, and all is as it was before; `app::SourceRemains` when it has arrived, but also stayed.
    Earlier Deliver(const std::string& image);

    /// Ends what an earlier delivery left half done. Gives a line for the log for each. Throws
    /// `app::FileError` when that is possible only later.
    std::vector<std::string> Settle();

  private:
    /// A result document under its hidden name.
    struct Waiting {
        bool isNew = false;  ///< Waits for its image; otherwise it is the one that the image replaces.
        std::string hidden;
        std::string place;
        std::string image;
        std::string before;  ///< Fingerprint of what lay in the image's place.
    };

    Waiting WaitingFor(bool isNew, const std::string& image) const;
    Waiting ReadWaiting(const std::string& name) const;
    bool SetOutdatedAside(const std::string& image);
    void Arrive(const Waiting& document);
    void TakeBack(const Waiting& document);
    void TakeBackIfPossible(const Waiting& document);

    app::Files& files_;
    const app::WorkingFolders& folders_;
    std::string staging_;
    std::optional<Waiting> waiting_;
};

}  // namespace tavrene::recognition
