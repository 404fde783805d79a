#include "profiles/SampleForms.h"

#include "app/WorkingFolders.h"
#include "profiles/XmlFile.h"

namespace tavrene::profiles {
namespace {

// A profile of the samples names its specimen without a folder.
void CopyProfile(app::Files& files, const std::string& from, const std::string& to,
                 const std::string& specimens) {
    pugi::xml_document document = ReadXml(files, from, Declaration::Refused);
    pugi::xml_attribute image = document.document_element().attribute("Image");
    image.set_value((specimens + image.value()).c_str());
    WriteXml(files, to, document, XmlLayout::Raw);
}

}  // namespace

void CopySampleForms(app::Files& files, const std::string& samples, const std::string& workingFolder) {
    if (!app::CreateWorkingFolders(files, workingFolder))
        throw app::FileError("The sub-folders of " + workingFolder + " cannot be made.");
    const app::WorkingFolders folders = app::PathsUnder(workingFolder);
    const auto inSamples = [&samples](const char* folder) {
        return app::FromPath(app::ToPath(samples) / folder / "");
    };
    const auto copy = [&files](const std::string& from, const std::string& to) {
        for (const std::string& name : files.List(from, "*"))
            if (!files.FileExists(to + name))
                files.Write(to + name, files.Read(from + name), app::Keep::WithNext);
    };
    copy(inSamples("blanks"), folders.ProfileImages);
    copy(inSamples("scans"), folders.ProcessIn);
    const std::string profiles = inSamples("profiles");
    for (const std::string& name : files.List(profiles, "*.Tvp"))
        if (!files.FileExists(folders.Profiles + name))
            CopyProfile(files, profiles + name, folders.Profiles + name, folders.ProfileImages);
}

}  // namespace tavrene::profiles
