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

const std::string& FormMover::Destination(const FormMove& move) const {
    return move.decision == Decision::Accept ? folders_.ProcessFinal : folders_.ProcessReject;
}

// The leading dot keeps the note out of every listing.
std::string FormMover::NotePath() const {
    return folders_.ProcessOut + ".decision.xml";
}

void FormMover::Move(const FormMove& move) {
    CheckFile(move.Image, Destination(move));
    CheckFile(move.Document, Destination(move));
    WriteNote(move);
    MoveBoth(move);
    DropNote();
}

void FormMover::CheckFile(const std::string& name, const std::string& destination) const {
    if (!files_.FileExists(folders_.ProcessOut + name))
        throw app::FileError("Cannot move " + folders_.ProcessOut + name + ": the file is gone");
    if (files_.FileExists(destination + name))
        throw app::FileError("Cannot move " + folders_.ProcessOut + name + ": there is already a file " +
                             destination + name);
}

void FormMover::MoveBoth(const FormMove& move) {
    const std::string& destination = Destination(move);
    try {
        files_.Move(folders_.ProcessOut + move.Image, destination + move.Image);
        files_.Move(folders_.ProcessOut + move.Document, destination + move.Document);
    } catch (const app::FileError& error) {
        if (Undo(move))
            throw;
        throw app::FileError(std::string(error.what()) + ". What was moved before lies in " + destination +
                             " and cannot be taken back; the next start ends the move.");
    }
}

bool FormMover::Undo(const FormMove& move) {
    try {
        TakeBack(move.Document, Destination(move));
        TakeBack(move.Image, Destination(move));
    } catch (const app::FileError&) {
        return false;
    }
    DropNote();
    return true;
}

// A note that stays is harmless: it tells of a move that was not begun, or of one that is done.
void FormMover::DropNote() {
    try {
        files_.Delete(NotePath());
    } catch (const app::FileError&) {
        return;
    }
}

// Between file systems a move that fails at its end leaves a copy behind.
void FormMover::TakeBack(const std::string& name, const std::string& destination) {
    if (!files_.FileExists(destination + name))
        return;
    if (files_.FileExists(folders_.ProcessOut + name))
        files_.Delete(destination + name);
    else
        files_.Move(destination + name, folders_.ProcessOut + name);
}

std::optional<FormMove> FormMover::FinishInterrupted() {
    if (!files_.FileExists(NotePath()))
        return std::nullopt;
    const std::optional<FormMove> move = ReadNote();
    // The destination was free when the note was written, so what lies there now came by this move.
    const bool begun = move && (files_.FileExists(Destination(*move) + move->Image) ||
                                files_.FileExists(Destination(*move) + move->Document));
    if (begun) {
        Bring(move->Image, Destination(*move));
        Bring(move->Document, Destination(*move));
    }
    DropNote();
    return begun ? move : std::nullopt;
}

// Two files of the same content are one that was copied between file systems; of others neither is touched.
void FormMover::Bring(const std::string& name, const std::string& destination) {
    const std::string source = folders_.ProcessOut + name;
    if (!files_.FileExists(source))
        return;
    if (!files_.FileExists(destination + name))
        files_.Move(source, destination + name);
    else if (files_.Read(source) == files_.Read(destination + name))
        files_.Delete(source);
}

void FormMover::WriteNote(const FormMove& move) {
    pugi::xml_document note;
    pugi::xml_node root = note.append_child("Decision");
    root.append_attribute("Kind") = move.decision == Decision::Accept ? kAccept : kReject;
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
