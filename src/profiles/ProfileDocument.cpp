#include "profiles/ProfileDocument.h"

#include <algorithm>
#include <string_view>

#include "profiles/XmlFile.h"

namespace tavrene::profiles {
namespace {

constexpr const char* kLineEnd = "\r\n";

OmrBox ReadBox(const pugi::xml_node& element) {
    OmrBox box;
    box.Name = element.attribute("Name").value();
    box.L = RequiredNumber(element, "L");
    box.T = RequiredNumber(element, "T");
    box.R = RequiredNumber(element, "R");
    box.B = RequiredNumber(element, "B");
    return box;
}

std::string BoxLine(const OmrBox& box, int id) {
    std::string line = "<OMR";
    const auto add = [&line](std::string_view name, std::string_view value) {
        line.append(" ").append(name).append("=\"").append(value).append("\"");
    };
    add("ID", std::to_string(id));
    add("L", std::to_string(box.L));
    add("T", std::to_string(box.T));
    add("R", std::to_string(box.R));
    add("B", std::to_string(box.B));
    add("Name", box.Name);
    return line + "/>" + kLineEnd;
}

pugi::xml_document ParseOmrs(const std::string& text) {
    pugi::xml_document document;
    const pugi::xml_parse_result result = document.load_string(text.c_str());
    if (!result || document.first_child().name() != std::string_view("OMRs"))
        throw DocumentError(std::string("the box list cannot be composed (") + result.description() + ")");
    return document;
}

}  // namespace

pugi::xml_document LoadProfileDocument(const app::Files& files, const std::string& path) {
    return ReadXml(files, path, Declaration::Refused);
}

ProfileContent ReadProfileContent(const pugi::xml_document& document) {
    const pugi::xml_node root = document.first_child();
    if (root.name() != std::string_view("Tavrene"))
        throw DocumentError("the root element is not Tavrene");
    ProfileContent content;
    content.Image = root.attribute("Image").value();
    if (root.attribute("DPI_X"))
        content.DPI_X = RequiredNumber(root, "DPI_X");
    if (root.attribute("DPI_Y"))
        content.DPI_Y = RequiredNumber(root, "DPI_Y");
    content.Active = root.attribute("Active").value() == std::string_view("1");
    const pugi::xml_node omrs = RequiredChild(root, "OMRs");
    // A save would replace one of them, and the edits of its boxes would be lost behind the other.
    if (omrs.next_sibling("OMRs"))
        throw DocumentError("the element OMRs stands twice");
    content.Count = RequiredNumber(omrs, "Count");
    for (const pugi::xml_node child : omrs.children()) {
        if (child.type() == pugi::node_element)
            content.Boxes.push_back(ReadBox(child));
    }
    return content;
}

std::optional<int> FindUnwritableName(std::span<const OmrBox> boxes) {
    const auto bad = std::find_if(boxes.begin(), boxes.end(), [](const OmrBox& box) {
        return box.Checked && box.Name.find_first_of("\"<&") != std::string::npos;
    });
    return bad == boxes.end() ? std::nullopt : std::optional(static_cast<int>(bad - boxes.begin()) + 1);
}

std::string ComposeOmrs(std::span<const OmrBox> boxes, std::int16_t count) {
    if (const std::optional<int> bad = FindUnwritableName(boxes))
        throw DocumentError("the name of box " + std::to_string(*bad) + " (" +
                            boxes[static_cast<std::size_t>(*bad) - 1].Name +
                            ") holds a double quote, < or &, which a profile cannot hold");
    std::string text = "<OMRs Count=\"" + std::to_string(count) + "\">" + kLineEnd;
    int id = 0;
    for (const OmrBox& box : boxes) {
        if (box.Checked)
            text += BoxLine(box, ++id);
    }
    return text + "</OMRs>" + kLineEnd;
}

pugi::xml_document CreateProfileDocument(const ProfileHeader& header, const std::string& omrsText) {
    const pugi::xml_document omrs = ParseOmrs(omrsText);
    pugi::xml_document document;
    pugi::xml_node root = document.append_child("Tavrene");
    root.append_attribute("Profile") = header.Profile.c_str();
    root.append_attribute("Image") = header.Image.c_str();
    root.append_attribute("DPI_X") = header.DPI_X;
    root.append_attribute("DPI_Y") = header.DPI_Y;
    root.append_attribute("Active") = header.Active ? "1" : "0";
    root.append_copy(omrs.first_child());
    return document;
}

void SetRootAttribute(pugi::xml_document& document, const char* name, const std::string& value) {
    pugi::xml_node root = document.first_child();
    pugi::xml_attribute attribute = root.attribute(name);
    if (!attribute)
        attribute = root.append_attribute(name);
    attribute.set_value(value.c_str());
}

void UpdateProfileDocument(pugi::xml_document& document, bool active, const std::string& omrsText) {
    const pugi::xml_document omrs = ParseOmrs(omrsText);
    SetRootAttribute(document, "Active", active ? "1" : "0");
    pugi::xml_node root = document.first_child();
    root.remove_child("OMRs");
    root.append_copy(omrs.first_child());
}

void SaveProfileDocument(app::Files& files, const std::string& path, const pugi::xml_document& document) {
    WriteXml(files, path, document, XmlLayout::Raw);
}

}  // namespace tavrene::profiles
