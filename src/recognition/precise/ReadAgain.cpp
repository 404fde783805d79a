#include "recognition/precise/ReadAgain.h"

#include <algorithm>
#include <iterator>

#include "app/Reason.h"
#include "recognition/PageLoading.h"
#include "recognition/ResultDocument.h"

namespace tavrene::recognition {

FormsReadAgain ReadFormsAgain(const ReadAgainContext& context, std::span<const std::string> imageNames,
                              const std::string& folder, std::span<const profiles::ProfileRecord> profiles,
                              std::int16_t fillThreshold) {
    const auto waits = [&](const std::string& name) {
        return context.files.FileExists(folder + name) && !context.files.FileExists(ResultPath(folder, name));
    };
    FormsReadAgain forms;
    const auto readOne = [&](const std::string& name) {
        if (!waits(name))
            return;
        const auto page = LoadPage(context.files, context.log, context.person, folder + name);
        if (!page)
            return;
        const PreciseReading reading = context.reader.Read(*page, profiles, fillThreshold);
        context.log.LogProcessEvent(
            ClassificationLine(name, AsClassification(reading, profiles.size()), profiles));
        if (reading.winner < 0)
            return;
        const profiles::ProfileRecord& profile = profiles[static_cast<std::size_t>(reading.winner)];
        SaveResultDocument(context.files, ResultPath(folder, name),
                           {profile.Name, name, "0", reading.Confidence}, reading.marks);
        ++forms.read;
    };
    context.person.SetProgressRange(static_cast<int>(imageNames.size()));
    int done = 0;
    for (const std::string& name : imageNames) {
        context.person.RunPendingEvents();
        if (!context.goesOn())
            break;
        if (const std::string failure = app::FailureOf([&] { readOne(name); }); !failure.empty())
            context.log.LogProcessEvent(std::string(name).append(": ").append(failure));
        context.person.SetProgress(++done);
    }
    context.person.SetProgress(0);
    std::ranges::copy_if(imageNames, std::back_inserter(forms.left), waits);
    return forms;
}

}  // namespace tavrene::recognition
