#include "review/UnreadPages.h"

#include <algorithm>
#include <utility>

#include "app/Counted.h"
#include "app/Reason.h"
#include "recognition/ResultDocument.h"
#include "recognition/RunSummary.h"
#include "review/LogReasons.h"

namespace tavrene::review {
namespace {

bool IsDocument(const std::string& name) {
    return app::UpperCase(app::Extension(name)) == "XML";
}

// What an image that was read says: there was a document.
std::string ReasonFrom(const std::string& said) {
    if (said.empty())
        return "The logs of the last weeks say nothing of it.";
    return said.starts_with("classified") ? "Its result document has gone or cannot be read." : said;
}

}  // namespace

void UnreadPages::Follow(const std::set<std::string>& listed) {
    std::vector<std::string> names;
    try {
        names = files_.List(folders_.ProcessOut, "*");
    } catch (const app::FileError&) {
        return;
    }
    std::erase_if(names, [&](const std::string& name) { return IsDocument(name) || listed.contains(name); });
    std::map<std::string, std::string> seen;
    std::set<std::string> asked;
    for (const std::string& name : names) {
        seen[name] = files_.Fingerprint(folders_.ProcessOut + name);
        const auto before = seen_.find(name);
        if (before == seen_.end() || before->second != seen[name])
            asked.insert(name);
    }
    std::map<std::string, std::string> reasons;
    if (!asked.empty())
        reasons = ReasonsInLogs(files_, folders_.Log, asked);
    std::map<std::string, std::string> known;
    for (UnreadPage& page : pages_)
        known[page.Name] = std::move(page.Reason);
    pages_.clear();
    for (const std::string& name : names)
        pages_.push_back({name, asked.contains(name) ? ReasonFrom(reasons[name]) : known[name]});
    seen_ = std::move(seen);
}

void UnreadPages::Follow() {
    std::set<std::string> listed;
    try {
        for (const std::string& document : files_.List(folders_.ProcessOut, "*.xml"))
            listed.insert(recognition::ImageOfResult(files_, folders_.ProcessOut + document));
    } catch (const app::FileError&) {
        return;
    }
    Follow(listed);
}

// A document can come, or be readable again, after the folder was looked at.
bool UnreadPages::IsSettled(const std::string& name) const {
    const std::string result = recognition::ResultPath(folders_.ProcessOut, name);
    if (!files_.FileExists(folders_.ProcessOut + name))
        return true;
    if (!files_.FileExists(result))
        return false;
    bool isItsOwn = false;
    return app::FailureOf([&] {
               isItsOwn = recognition::ResultDocument::Load(files_, result).Image() == name;
           }).empty() &&
           isItsOwn;
}

SentBack UnreadPages::SendBack(std::span<const std::string> names) {
    SentBack sent;
    for (const std::string& name : names) {
        if (IsSettled(name)) {
            ++sent.Settled;
            continue;
        }
        if (files_.FileExists(folders_.ProcessIn + name)) {
            ++sent.Waiting;
            continue;
        }
        sent.Failure =
            app::FailureOf([&] { files_.Move(folders_.ProcessOut + name, folders_.ProcessIn + name); });
        if (!sent.Failure.empty())
            break;
        log_.LogProcessEvent("Image [" + name + "] " + std::string(recognition::said::kSentBack) +
                             folders_.ProcessIn);
        ++sent.Moved;
    }
    return sent;
}

std::string TextOf(const SentBack& sent) {
    std::string text = app::Counted(sent.Moved, "page is", "pages are") + " back in ProcessIn.";
    if (sent.Waiting > 0)
        text += " " + std::to_string(sent.Waiting) + " stayed: a file of that name waits there already.";
    if (sent.Settled > 0)
        text += " " + std::to_string(sent.Settled) + " needed nothing: gone, or read meanwhile.";
    return text;
}

}  // namespace tavrene::review
