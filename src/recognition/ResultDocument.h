#pragma once

#include <cstdint>
#include <optional>
#include <pugixml.hpp>
#include <span>
#include <string>
#include <vector>

#include "app/Files.h"
#include "recognition/MarkReading.h"

namespace tavrene::recognition {

/// The root attributes of a result document.
struct ResultHeader {
    std::string Profile;
    std::string Image;  ///< File name with extension, no folder.
    std::string Reviewed = "0";
    std::int16_t Confidence = 0;
};

/// One box of a result document as it stands there.
struct ResultMark {
    std::string Name;
    bool Checked = false;
    std::optional<BoxShift> Shift = std::nullopt;  ///< None when it is missing or cannot be read.
};

/// An open result document. Whatever else somebody wrote into it is kept when it is saved.
class ResultDocument {
  public:
    /// Reads a document. Throws `app::FileError`, or `profiles::DocumentError` with a text that names the
    /// file: it is no result document, has no `OMRs`, or its `Image` is not the plain name of a file or is
    /// that of a document.
    static ResultDocument Load(const app::Files& files, const std::string& path);

    ResultDocument Clone() const;

    std::string Profile() const { return Root().attribute("Profile").value(); }
    /// The name of the image's file as it is on disk.
    const std::string& Image() const { return image_; }
    std::string Confidence() const { return Root().attribute("Confidence").value(); }
    bool IsReviewed() const;
    std::vector<ResultMark> Marks() const;

    void SetProfile(const std::string& name) { SetRoot("Profile", name.c_str()); }
    void SetReviewed(bool reviewed) { SetRoot("Reviewed", reviewed ? "1" : "0"); }

    /// Puts the state of each mark into the box at the same place; names and shifts stay.
    void SetChecked(std::span<const ResultMark> marks);

    /// Replaces all boxes by those of `marks`, without shifts.
    void ReplaceMarks(std::span<const ResultMark> marks);

    /// Makes it the result of another reading: profile and boxes are new, image and confidence stay, and
    /// nobody has reviewed it.
    void Rewrite(const std::string& profile, std::span<const MarkReading> readings);

    /// Replaces the file, which has to be there. Throws `app::FileError`; the file is then as it was before.
    void Save(app::Files& files, const std::string& path) const;

  private:
    pugi::xml_node Root() const { return document_.document_element(); }
    void SetRoot(const char* attribute, const char* value);
    pugi::xml_node NewMarks(std::size_t count);

    pugi::xml_document document_;
    std::string image_;
};

/// The file that belongs to an image of the same folder (path ending in a separator): its base name with
/// ".xml".
std::string ResultPath(const std::string& folder, const std::string& imageName);

/// Composes and writes a result document, replacing an earlier one as a whole. Throws `app::FileError`.
void SaveResultDocument(app::Files& files, const std::string& path, const ResultHeader& header,
                        std::span<const MarkReading> readings, app::Keep keep = app::Keep::Durably);

/// Name and state of every box of a written result document, in its order. Throws `profiles::DocumentError`
/// or `app::FileError`.
std::vector<ResultMark> ReadResultMarks(const app::Files& files, const std::string& path);

/// Whether a result document of a folder was read with a profile; those that cannot be read are left out.
bool HasResultOf(const app::Files& files, const std::string& folder, const std::string& profile);

/// The name of the image that a result document belongs to; empty when it cannot be told.
std::string ImageOfResult(const app::Files& files, const std::string& path);

}  // namespace tavrene::recognition
