#include "recognition/precise/ReadAgain.h"

#include <exception>

#include "app/Reason.h"
#include "recognition/PageLoading.h"
#include "recognition/ResultDocument.h"

namespace tavrene::recognition {

int ReadFormsAgain(std::span<const std::string> imageNames, const std::string& folder, app::Files& files,
                   app::ActivityLog& log, app::Operator& person, PreciseReader& reader,
                   std::span<const profiles::ProfileRecord> profiles, std::int16_t fillThreshold) {
    const auto readOne = [&](const std::string& name) {
        const std::string result = ResultPath(folder, name);
        if (!files.FileExists(folder + name) || files.FileExists(result))
            return 0;
        const std::optional<imaging::Page> page = LoadPage(files, log, person, folder + name);
        if (!page)
            return 0;
        const PreciseReading reading = reader.Read(*page, profiles, fillThreshold);
        log.LogProcessEvent(ClassificationLine(name, AsClassification(reading, profiles.size()), profiles));
        if (reading.winner < 0)
            return 0;
        const profiles::ProfileRecord& profile = profiles[static_cast<std::size_t>(reading.winner)];
        SaveResultDocument(files, result, {profile.Name, name, "0", reading.Confidence}, reading.marks);
        return 1;
    };
    int read = 0;
    for (const std::string& name : imageNames) {
        try {
            read += readOne(name);
        } catch (const std::exception& error) {
            log.LogProcessEvent(name + ": " + app::ReasonOf(error));
        }
    }
    return read;
}

}  // namespace tavrene::recognition
