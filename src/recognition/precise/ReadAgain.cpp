#include "recognition/precise/ReadAgain.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

#include "app/Reason.h"
#include "recognition/PageLoading.h"
#include "recognition/ResultDocument.h"

namespace tavrene::recognition {

namespace {

bool IsAsItWas(const app::Files& files, const FormToRead& form, const std::string& folder) {
    return files.FileExists(folder + form.image) &&
           files.Fingerprint(ResultPath(folder, form.image)) == form.result;
}

class Reading {
  public:
    Reading(const ReadAgainContext& context, const std::string& folder,
            std::span<const profiles::ProfileRecord> profiles, std::int16_t fillThreshold)
        : context_(context), folder_(folder), profiles_(profiles), fillThreshold_(fillThreshold) {}

    // Nothing where the form stays as it is.
    std::optional<FileReport> Read(const FormToRead& form) const {
        const std::string& name = form.image;
        const auto page = IsAsItWas(context_.files, form, folder_)
                              ? LoadPage(context_.files, context_.log, context_.person, folder_ + name)
                              : std::nullopt;
        if (!page)
            return std::nullopt;
        const PreciseReading reading = context_.reader.Read(*page, profiles_, fillThreshold_);
        const std::string what = ClassificationText(AsClassification(reading, profiles_.size()), profiles_);
        context_.log.LogProcessEvent(ClassificationLine(name, what));
        if (reading.winner < 0)
            return std::nullopt;
        Write(form, reading);
        return FileReport{name, FileEnd::Read, WithoutBlankAtEnd(what), page->furtherPages};
    }

  private:
    void Write(const FormToRead& form, const PreciseReading& reading) const {
        const profiles::ProfileRecord& profile = profiles_[static_cast<std::size_t>(reading.winner)];
        const std::string path = ResultPath(folder_, form.image);
        SaveResultDocument(context_.files, path, {profile.Name, form.image, "0", reading.Confidence},
                           reading.marks);
        if (!form.result.empty())
            context_.log.LogProcessEvent(std::string(form.image).append(": ").append(said::kReplacesResult) +
                                         app::FileName(path));
    }

    const ReadAgainContext& context_;
    const std::string& folder_;
    std::span<const profiles::ProfileRecord> profiles_;
    std::int16_t fillThreshold_;
};

}  // namespace

std::vector<FormToRead> FormsToRead(const app::Files& files, const OpinionTally& opinions,
                                    const std::string& folder) {
    std::vector<FormToRead> forms;
    for (const std::string& name : opinions.unread)
        forms.push_back({name, {}});
    for (const std::string& name : opinions.otherwise) {
        // Of two images of one base name the later has the result.
        const std::string path = ResultPath(folder, name);
        if (ImageOfResult(files, path) == name)
            forms.push_back({name, files.Fingerprint(path)});
    }
    return forms;
}

FormsReadAgain ReadFormsAgain(const ReadAgainContext& context, std::span<const FormToRead> forms,
                              const std::string& folder, std::span<const profiles::ProfileRecord> profiles,
                              std::int16_t fillThreshold) {
    const Reading reading(context, folder, profiles, fillThreshold);
    FormsReadAgain again;
    const auto readOne = [&](const FormToRead& form) {
        if (std::optional<FileReport> report = reading.Read(form))
            again.read.push_back(*std::move(report));
    };
    context.person.SetProgressRange(static_cast<int>(forms.size()));
    int done = 0;
    for (const FormToRead& form : forms) {
        context.person.RunPendingEvents();
        if (!context.goesOn())
            break;
        if (const std::string failure = app::FailureOf([&] { readOne(form); }); !failure.empty())
            context.log.LogProcessEvent(std::string(form.image).append(": ").append(failure));
        context.person.SetProgress(++done);
    }
    context.person.SetProgress(0);
    std::ranges::copy_if(forms, std::back_inserter(again.left),
                         [&](const FormToRead& form) { return IsAsItWas(context.files, form, folder); });
    return again;
}

}  // namespace tavrene::recognition
