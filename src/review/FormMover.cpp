#include "review/FormMover.h"

#include <string_view>

#include "profiles/XmlFile.h"

namespace tavrene::review {
namespace {

constexpr const char* kAccept = "accept";
constexpr const char* kReject = "reject";

bool IsPlainName(const std::string& name) {
    return !name.empty() && app::FileName(name) == name;
}

}  // namespace

FormMover::FormMover(app::Files& files, const app::WorkingFolders& folders)
    : files_(files), folders_(folders) {}

const std::string& FormMover::FolderOf(Decision decision) const {
    return decision == Decision::Accept ? folders_.ProcessFinal : folders_.ProcessReject;
}

const std::string& FormMover::Source(const FormMove& move) const {
    return move.isBack ? FolderOf(move.decision) : folders_.ProcessOut;
}

const std::string& FormMover::Destination(const FormMove& move) const {
    return move.isBack ? folders_.ProcessOut : FolderOf(move.decision);
}

// The leading dot keeps the note out of every listing.
std::string FormMover::NotePath() const {
    return folders_.ProcessOut + ".decision.xml";
}

void FormMover::Move(const FormMove& move) {
    const std::string& source = Source(move);
    const std::string& destination = Destination(move);
    CheckFile(move.Image, move);
    CheckFile(move.Document, move);
    WriteNote(move);
    try {
        files_.Move(source + move.Image, destination + move.Image);
        files_.Move(source + move.Document, destination + move.Document);
    } catch (const app::FileError& error) {
        if (!CanTakeBack(move))
            throw app::FileError(std::string(error.what()) + ". What was moved before lies in " +
                                 destination + "; the next decision or start takes it back first.");
        Forget();
        throw;
    }
}

void FormMover::CheckFile(const std::string& name, const FormMove& move) const {
    const std::string source = Source(move) + name;
    const std::string target = Destination(move) + name;
    if (!files_.FileExists(source))
        throw app::FileError("Cannot move " + source + ": the file is gone");
    if (files_.FileExists(target))
        throw app::FileError("Cannot move " + source + ": there is already a file " + target);
}

bool FormMover::CanTakeBack(const FormMove& move) {
    try {
        TakeBack(move);
        return true;
    } catch (const app::FileError&) {
        return false;
    }
}

// A note may be older than what lies there now: a scan of the same name can have been processed since. Only
// the places that a cut move leaves are touched; the image goes first.
void FormMover::TakeBack(const FormMove& move) {
    const Place image = PlaceOf(move.Image, move);
    const Place document = PlaceOf(move.Document, move);
    const bool isAmidImage = image == Place::Copied && document == Place::Here;
    const bool isAmidDocument =
        image == Place::There && (document == Place::Here || document == Place::Copied);
    if (!isAmidImage && !isAmidDocument)
        return;
    TakeBackFile(move.Document, move);
    TakeBackFile(move.Image, move);
}

// Two files of the same content are one whose move between file systems was cut.
FormMover::Place FormMover::PlaceOf(const std::string& name, const FormMove& move) const {
    const std::string source = Source(move) + name;
    const std::string target = Destination(move) + name;
    const bool isHere = files_.FileExists(source);
    const bool isThere = files_.FileExists(target);
    if (isHere && isThere)
        return files_.Read(source) == files_.Read(target) ? Place::Copied : Place::Differing;
    if (isHere)
        return Place::Here;
    return isThere ? Place::There : Place::Nowhere;
}

void FormMover::TakeBackFile(const std::string& name, const FormMove& move) {
    const std::string source = Source(move) + name;
    const std::string target = Destination(move) + name;
    if (!files_.FileExists(target))
        return;
    if (files_.FileExists(source))
        files_.Delete(target);
    else
        files_.Move(target, source);
}

std::optional<FormMove> FormMover::Settle() {
    if (!files_.FileExists(NotePath()))
        return std::nullopt;
    std::optional<FormMove> move = ReadNote();
    if (move && IsDone(*move))
        return move;
    if (!move || TakeBackFromNote(*move))
        Forget();
    return std::nullopt;
}

bool FormMover::IsDone(const FormMove& move) const {
    return PlaceOf(move.Image, move) == Place::There && PlaceOf(move.Document, move) == Place::There;
}

// False when the image is in neither place: a folder that is a share may be away for a while, and its mount
// point stays.
bool FormMover::TakeBackFromNote(const FormMove& move) {
    const std::string form = "Form [" + app::BaseName(move.Document) + "] lies half in " + Destination(move);
    if (PlaceOf(move.Image, move) == Place::Nowhere) {
        if (PlaceOf(move.Document, move) == Place::Here)
            throw app::FileError(form + ", but is not there. It has to be taken back first.");
        return true;
    }
    try {
        TakeBack(move);
    } catch (const app::FileError& error) {
        throw app::FileError(form + " and cannot be taken back yet: " + error.what());
    }
    return true;
}

// A note that stays is harmless: at worst its decision is told twice.
void FormMover::Forget() {
    try {
        files_.Delete(NotePath());
    } catch (const app::FileError&) {
        return;
    }
}

void FormMover::WriteNote(const FormMove& move) {
    pugi::xml_document note;
    pugi::xml_node root = note.append_child("Decision");
    root.append_attribute("Kind") = move.decision == Decision::Accept ? kAccept : kReject;
    if (move.isBack)
        root.append_attribute("Back") = "1";
    root.append_attribute("Image") = move.Image.c_str();
    root.append_attribute("Document") = move.Document.c_str();
    profiles::WriteXml(files_, NotePath(), note, profiles::XmlLayout::Raw);
}

std::optional<FormMove> FormMover::ReadNote() const {
    try {
        const pugi::xml_document note = profiles::ReadXml(files_, NotePath(), profiles::Declaration::Refused);
        const pugi::xml_node root = note.document_element();
        FormMove move;
        if (root.attribute("Kind").value() == std::string_view(kReject))
            move.decision = Decision::Reject;
        move.isBack = root.attribute("Back").as_bool();
        move.Image = root.attribute("Image").value();
        move.Document = root.attribute("Document").value();
        if (IsPlainName(move.Image) && IsPlainName(move.Document))
            return move;
    } catch (const profiles::DocumentError&) {
        return std::nullopt;
    }
    return std::nullopt;
}

}  // namespace tavrene::review
