#include "recognition/FormDelivery.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "app/Reason.h"
#include "recognition/RunSummary.h"

namespace tavrene::recognition {
namespace {

// ".delivery-new-<number>-<fingerprint>.xml"; the dot keeps it out of every listing.
constexpr std::string_view kPrefix = ".delivery-";
constexpr std::string_view kNew = "new-";
constexpr std::string_view kOld = "old-";
constexpr std::string_view kSuffix = ".xml";

std::string WhatWasSettled(bool hasArrived, bool isNew) {
    if (hasArrived)
        return isNew ? "Result put in its place" : "Result of the image before removed";
    return isNew ? "Not moved, to be read again" : "Result put back";
}

}  // namespace

FormDelivery::FormDelivery(app::Files& files, const app::WorkingFolders& folders, const std::string& staging)
    : files_(files), folders_(folders), staging_(staging.empty() ? folders.ProcessOut : staging) {}

FormDelivery::Waiting FormDelivery::WaitingFor(bool isNew, const std::string& image) const {
    Waiting document{isNew,
                     {},
                     ResultPath(folders_.ProcessOut, image),
                     image,
                     files_.Fingerprint(folders_.ProcessOut + image)};
    // One that could not be settled yet keeps its name.
    for (int number = 1; document.hidden.empty() || files_.FileExists(document.hidden); ++number) {
        document.hidden = staging_;
        document.hidden.append(kPrefix).append(isNew ? kNew : kOld);
        document.hidden.append(std::to_string(number)).append("-").append(document.before).append(kSuffix);
    }
    return document;
}

std::vector<ResultMark> FormDelivery::StageResult(const ResultHeader& header,
                                                  std::span<const MarkReading> readings) {
    Waiting document = WaitingFor(true, header.Image);
    if (files_.FolderExists(document.place))
        throw app::FileError("Cannot write " + document.place + ": a folder has that name");
    try {
        SaveResultDocument(files_, document.hidden, header, readings, app::Keep::WithNext);
        std::vector<ResultMark> marks = ReadResultMarks(files_, document.hidden);
        waiting_ = std::move(document);
        return marks;
    } catch (const std::exception& error) {
        TakeBackIfPossible(document);
        // The operator knows the document by the name that it was to have.
        throw app::FileError(app::ReplaceFirst(app::ReasonOf(error), document.hidden, document.place));
    }
}

// An image without a result must not lie beside the marks of the image that it replaces.
bool FormDelivery::SetOutdatedAside(const std::string& image) {
    Waiting document = WaitingFor(false, image);
    if (!files_.FileExists(document.place) || ImageOfResult(files_, document.place) != image)
        return false;
    files_.Move(document.place, document.hidden, app::Keep::WithNext);
    waiting_ = std::move(document);
    return true;
}

FormDelivery::Earlier FormDelivery::Deliver(const std::string& image) {
    Earlier earlier = Earlier::None;
    if (waiting_)
        earlier = files_.FileExists(waiting_->place) ? Earlier::Replaced : Earlier::None;
    else if (SetOutdatedAside(image))
        earlier = Earlier::Removed;
    const std::optional<Waiting> document = std::exchange(waiting_, std::nullopt);
    const app::Keep keep = document && document->isNew ? app::Keep::WithNext : app::Keep::Durably;
    try {
        files_.Move(folders_.ProcessIn + image, folders_.ProcessOut + image, keep);
    } catch (const app::SourceRemains&) {
        if (document)
            Arrive(*document);
        throw;
    } catch (const app::FileError&) {
        if (document)
            TakeBackIfPossible(*document);
        throw;
    }
    if (document)
        Arrive(*document);
    return earlier;
}

void FormDelivery::Arrive(const Waiting& document) {
    if (document.isNew)
        files_.Move(document.hidden, document.place, app::Keep::Durably);
    else
        files_.Delete(document.hidden);
}

void FormDelivery::TakeBack(const Waiting& document) {
    if (document.isNew || files_.FileExists(document.place))
        files_.Delete(document.hidden);
    else
        files_.Move(document.hidden, document.place, app::Keep::Durably);
}

// Why the image did not move is what has to be told; the document waits for the next run.
void FormDelivery::TakeBackIfPossible(const Waiting& document) {
    try {
        TakeBack(document);
    } catch (const app::FileError&) {
        return;
    }
}

FormDelivery::Waiting FormDelivery::ReadWaiting(const std::string& name) const {
    Waiting document;
    document.hidden = staging_ + name;
    std::string_view rest = std::string_view(name).substr(kPrefix.size());
    document.isNew = rest.starts_with(kNew);
    const std::size_t number = std::min(rest.find('-') + 1, rest.size());
    const std::size_t fingerprint = std::min(rest.find('-', number), rest.size() - kSuffix.size() - 1) + 1;
    document.before = rest.substr(fingerprint, rest.size() - kSuffix.size() - fingerprint);
    document.image = ImageOfResult(files_, document.hidden);
    document.place = ResultPath(folders_.ProcessOut, document.image);
    return document;
}

std::vector<std::string> FormDelivery::Settle() {
    std::vector<std::string> settled;
    if (!files_.FolderExists(staging_))
        return settled;
    std::string pattern(kPrefix);
    pattern.append("*").append(kSuffix);
    for (const std::string& name : files_.List(staging_, pattern)) {
        const Waiting document = ReadWaiting(name);
        if (document.image.empty())
            continue;
        const std::string now = files_.Fingerprint(folders_.ProcessOut + document.image);
        const bool hasArrived = !now.empty() && now != document.before;
        hasArrived ? Arrive(document) : TakeBack(document);
        settled.push_back(document.image + ": " + WhatWasSettled(hasArrived, document.isNew) +
                          std::string(said::kWasCutShort));
    }
    return settled;
}

}  // namespace tavrene::recognition
