#include "recognition/ResultDocument.h"

#include <algorithm>
#include <charconv>
#include <string_view>

#include "app/Reason.h"
#include "profiles/XmlFile.h"

namespace tavrene::recognition {
namespace {

using profiles::Declaration;
using profiles::DocumentError;
using profiles::XmlText;

constexpr const char* kSet = "1";
constexpr const char* kNotSet = "0";

void SetAttribute(pugi::xml_node element, const char* name, const char* value) {
    pugi::xml_attribute attribute = element.attribute(name);
    if (!attribute)
        attribute = element.append_attribute(name);
    attribute.set_value(value);
}

bool IsSet(const pugi::xml_attribute& attribute) {
    return attribute.value() == std::string_view(kSet);
}

void AppendReading(pugi::xml_node omrs, const MarkReading& reading) {
    pugi::xml_node mark = omrs.append_child("OMR");
    mark.append_attribute("Name") = XmlText(reading.Name).c_str();
    const std::string shift = std::to_string(reading.Shift.dx) + "," + std::to_string(reading.Shift.dy);
    mark.append_attribute("Shift") = shift.c_str();
    mark.append_attribute("Checked") = reading.Checked ? kSet : kNotSet;
}

// "dx,dy" and nothing else.
std::optional<BoxShift> ParseShift(std::string_view text) {
    BoxShift shift;
    const char* const end = text.data() + text.size();
    const auto [comma, first] = std::from_chars(text.data(), end, shift.dx);
    if (first != std::errc() || comma == end || *comma != ',')
        return std::nullopt;
    const auto [rest, second] = std::from_chars(comma + 1, end, shift.dy);
    if (second != std::errc() || rest != end)
        return std::nullopt;
    return shift;
}

std::vector<ResultMark> MarksIn(const pugi::xml_node& root) {
    std::vector<ResultMark> marks;
    for (const pugi::xml_node mark : profiles::RequiredChild(root, "OMRs").children("OMR"))
        marks.push_back({mark.attribute("Name").value(), IsSet(mark.attribute("Checked")),
                         ParseShift(mark.attribute("Shift").value())});
    return marks;
}

// A name that no document can hold as it is stands there with its signs replaced; the file beside the
// document keeps it.
std::string NameOnDisk(const app::Files& files, const std::string& document, const std::string& image) {
    const std::string folder = document.substr(0, document.size() - app::FileName(document).size());
    if (image.find("\xEF\xBF\xBD") == std::string::npos || files.FileExists(folder + image))
        return image;
    const std::vector<std::string> names = files.List(folder, "*");
    const auto stands = [&image](const std::string& name) { return XmlText(name) == image; };
    // Several names may look alike in a document; its own is the one that it is named after.
    const auto own = std::find_if(names.begin(), names.end(), [&](const std::string& name) {
        return stands(name) && ResultPath(folder, name) == document;
    });
    const auto found = own != names.end() ? own : std::find_if(names.begin(), names.end(), stands);
    return found == names.end() ? image : *found;
}

void CheckResult(const pugi::xml_node& root) {
    if (root.name() != std::string_view("Tavrene"))
        throw DocumentError("the root element is not Tavrene");
    profiles::RequiredChild(root, "OMRs");
    // A path would lead out of the folder that the document lies in.
    const std::string image = root.attribute("Image").value();
    if (app::FileName(image) != image)
        throw DocumentError("the attribute Image is \"" + image + "\", which is no plain file name");
    // Where it goes, its result goes, and that would be one that has nothing to do with it.
    if (app::UpperCase(app::Extension(image)) == "XML")
        throw DocumentError("the attribute Image is \"" + image + "\", which is no image");
}

pugi::xml_document Compose(const ResultHeader& header, std::span<const MarkReading> readings) {
    pugi::xml_document document;
    pugi::xml_node root = document.append_child("Tavrene");
    root.append_attribute("Profile") = XmlText(header.Profile).c_str();
    root.append_attribute("Image") = XmlText(header.Image).c_str();
    root.append_attribute("Reviewed") = XmlText(header.Reviewed).c_str();
    root.append_attribute("Confidence") = header.Confidence;
    pugi::xml_node omrs = root.append_child("OMRs");
    omrs.append_attribute("Count") = static_cast<unsigned long long>(readings.size());
    for (const MarkReading& reading : readings)
        AppendReading(omrs, reading);
    return document;
}

}  // namespace

std::string ResultPath(const std::string& folder, const std::string& imageName) {
    return folder + app::BaseName(imageName) + ".xml";
}

void SaveResultDocument(app::Files& files, const std::string& path, const ResultHeader& header,
                        std::span<const MarkReading> readings, app::Keep keep) {
    profiles::WriteXml(files, path, Compose(header, readings), profiles::XmlLayout::Indented, keep);
}

std::vector<ResultMark> ReadResultMarks(const app::Files& files, const std::string& path) {
    return MarksIn(profiles::ReadXml(files, path, Declaration::Allowed).document_element());
}

bool HasResultOf(const app::Files& files, const std::string& folder, const std::string& profile) {
    if (!files.FolderExists(folder))
        return false;
    const std::vector<std::string> names = files.List(folder, "*.xml");
    return std::any_of(names.begin(), names.end(), [&](const std::string& name) {
        bool isOf = false;
        app::FailureOf([&] { isOf = ResultDocument::Load(files, folder + name).Profile() == profile; });
        return isOf;
    });
}

std::string ImageOfResult(const app::Files& files, const std::string& path) {
    try {
        const pugi::xml_document document = profiles::ReadXml(files, path, Declaration::Allowed);
        return NameOnDisk(files, path, document.document_element().attribute("Image").value());
    } catch (const std::runtime_error&) {
        return {};
    }
}

ResultDocument ResultDocument::Load(const app::Files& files, const std::string& path) {
    ResultDocument result;
    try {
        result.document_ = profiles::ReadXml(files, path, Declaration::Allowed);
        CheckResult(result.Root());
        result.image_ = NameOnDisk(files, path, result.Root().attribute("Image").value());
        // It is written as UTF-8 again, whatever it said it was.
        if (pugi::xml_node first = result.document_.first_child(); first.type() == pugi::node_declaration)
            first.remove_attribute("encoding");
    } catch (const DocumentError& error) {
        throw DocumentError(app::FileName(path) + ": " + error.what());
    }
    return result;
}

ResultDocument ResultDocument::Clone() const {
    ResultDocument copy;
    copy.document_.reset(document_);
    copy.image_ = image_;
    return copy;
}

bool ResultDocument::IsReviewed() const {
    return IsSet(Root().attribute("Reviewed"));
}

std::vector<ResultMark> ResultDocument::Marks() const {
    return MarksIn(Root());
}

void ResultDocument::SetChecked(std::span<const ResultMark> marks) {
    auto mark = marks.begin();
    for (const pugi::xml_node element : Root().child("OMRs").children("OMR")) {
        if (mark == marks.end())
            return;
        SetAttribute(element, "Checked", mark->Checked ? kSet : kNotSet);
        ++mark;
    }
}

void ResultDocument::ReplaceMarks(std::span<const ResultMark> marks) {
    pugi::xml_node omrs = NewMarks(marks.size());
    for (const ResultMark& mark : marks) {
        pugi::xml_node element = omrs.append_child("OMR");
        element.append_attribute("Name") = XmlText(mark.Name).c_str();
        element.append_attribute("Checked") = mark.Checked ? kSet : kNotSet;
    }
}

void ResultDocument::Rewrite(const std::string& profile, std::span<const MarkReading> readings) {
    SetProfile(profile);
    SetReviewed(false);
    pugi::xml_node omrs = NewMarks(readings.size());
    for (const MarkReading& reading : readings)
        AppendReading(omrs, reading);
}

void ResultDocument::Save(app::Files& files, const std::string& path) const {
    if (!files.FileExists(path))
        throw app::FileError("Cannot save " + path + ": the file is gone");
    profiles::WriteXml(files, path, document_, profiles::XmlLayout::Indented);
}

void ResultDocument::SetRoot(const char* attribute, const char* value) {
    SetAttribute(Root(), attribute, XmlText(value).c_str());
}

pugi::xml_node ResultDocument::NewMarks(std::size_t count) {
    while (Root().remove_child("OMRs")) {
    }
    pugi::xml_node omrs = Root().append_child("OMRs");
    omrs.append_attribute("Count") = static_cast<unsigned long long>(count);
    return omrs;
}

}  // namespace tavrene::recognition
