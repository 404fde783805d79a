#include "recognition/ResultDocument.h"

#include <string_view>

#include "profiles/XmlFile.h"

namespace tavrene::recognition {
namespace {

using profiles::Declaration;
using profiles::DocumentError;

pugi::xml_document Compose(const ResultHeader& header, std::span<const MarkReading> readings) {
    pugi::xml_document document;
    pugi::xml_node root = document.append_child("Tavrene");
    root.append_attribute("Profile") = header.Profile.c_str();
    root.append_attribute("Image") = header.Image.c_str();
    root.append_attribute("Reviewed") = header.Reviewed.c_str();
    root.append_attribute("Confidence") = header.Confidence;
    pugi::xml_node omrs = root.append_child("OMRs");
    omrs.append_attribute("Count") = static_cast<unsigned long long>(readings.size());
    for (const MarkReading& reading : readings) {
        pugi::xml_node mark = omrs.append_child("OMR");
        mark.append_attribute("Name") = reading.Name.c_str();
        const std::string shift = std::to_string(reading.Shift.dx) + "," + std::to_string(reading.Shift.dy);
        mark.append_attribute("Shift") = shift.c_str();
        mark.append_attribute("Checked") = reading.Checked ? "1" : "0";
    }
    return document;
}

}  // namespace

std::string ResultPath(const std::string& folder, const std::string& imageName) {
    return folder + app::BaseName(imageName) + ".xml";
}

void SaveResultDocument(app::Files& files, const std::string& path, const ResultHeader& header,
                        std::span<const MarkReading> readings) {
    profiles::WriteXml(files, path, Compose(header, readings), profiles::XmlLayout::Indented);
}

std::vector<ResultMark> ReadResultMarks(const app::Files& files, const std::string& path) {
    const pugi::xml_document document = profiles::ReadXml(files, path, Declaration::Allowed);
    const pugi::xml_node omrs = profiles::RequiredChild(document.document_element(), "OMRs");
    std::vector<ResultMark> marks;
    for (const pugi::xml_node mark : omrs.children("OMR"))
        marks.push_back(
            {mark.attribute("Name").value(), mark.attribute("Checked").value() == std::string_view("1")});
    return marks;
}

std::string ImageOfResult(const app::Files& files, const std::string& path) {
    try {
        return profiles::ReadXml(files, path, Declaration::Allowed)
            .document_element()
            .attribute("Image")
            .value();
    } catch (const std::runtime_error&) {
        return {};
    }
}

}  // namespace tavrene::recognition
