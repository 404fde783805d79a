#include "recognition/precise/ReadAgain.h"

#include "recognition/PageLoading.h"
#include "recognition/ResultDocument.h"

namespace tavrene::recognition {

int ReadFormsAgain(std::span<const std::string> imageNames, const std::string& folder, app::Files& files,
                   app::ActivityLog& log, app::Operator& person, PreciseReader& reader,
                   std::span<const profiles::ProfileRecord> profiles, std::int16_t fillThreshold) {
    int read = 0;
    for (const std::string& name : imageNames) {
        const std::string result = ResultPath(folder, name);
        if (!files.FileExists(folder + name) || files.FileExists(result))
            continue;
        const std::optional<imaging::Page> page = LoadPage(files, log, person, folder + name);
        if (!page)
            continue;
        const PreciseReading reading = reader.Read(*page, profiles, fillThreshold);
        log.LogProcessEvent(ClassificationLine(name, AsClassification(reading, profiles.size()), profiles));
        if (reading.winner < 0)
            continue;
        const profiles::ProfileRecord& profile = profiles[static_cast<std::size_t>(reading.winner)];
        SaveResultDocument(files, result, {profile.Name, name, "0", reading.Confidence}, reading.marks);
        ++read;
    }
    return read;
}

}  // namespace tavrene::recognition
