#include "intake/ScanIn.h"

#include <array>
#include <cstdio>
#include <utility>

#include "app/ImageNames.h"
#include "app/Reason.h"
#include "imaging/ScanPicture.h"

namespace tavrene::intake {
namespace {

std::string StemOf(const app::LocalTime& now) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "scan-%04d%02d%02d-%02d%02d%02d", now.year, now.month, now.day,
                  now.hour, now.minute, now.second);
    return text.data();
}

// The names of one go differ by their numbers, however many it will be.
std::string NumberOf(std::size_t page) {
    return app::PageSuffix(static_cast<int>(page), 2);
}

class Go {
  public:
    Go(app::Files& files, const app::WorkingFolders& folders, const app::LocalTime& now)
        : files_(files), folders_(folders), names_(files, folders), stem_(StemOf(now)) {}

    // False behind the last page.
    bool Take(Scanner::Page page) {
        if (std::holds_alternative<Scanner::Cancelled>(page))
            scanned_.isCancelled = true;
        else if (std::holds_alternative<Scanner::NoMore>(page))
            scanned_.reason = scanned_.images.empty() ? "The feeder is empty." : "";
        else if (Reason* const reason = std::get_if<Reason>(&page))
            scanned_.reason = std::move(reason->text);
        else
            return Keep(imaging::EncodeScan(std::get<imaging::Bitmap>(std::move(page))));
        return false;
    }

    const Scanned& Result() const { return scanned_; }
    void EndWith(std::string reason) { scanned_.reason = std::move(reason); }

  private:
    bool Keep(const imaging::ScanFile& image) {
        const std::string ending = NumberOf(scanned_.images.size() + 1) + image.extension;
        const std::string name = names_.Take(stem_, {&ending, 1}).front();
        files_.Write(folders_.ProcessIn + name, image.content, app::Keep::Durably);
        scanned_.images.push_back(name);
        return true;
    }

    app::Files& files_;
    const app::WorkingFolders& folders_;
    app::ImageNames names_;
    const std::string stem_;
    Scanned scanned_;
};

}  // namespace

Scanned ScanIn(app::Files& files, const app::WorkingFolders& folders, const app::LocalTime& now,
               Scanner& scanner, const ScanSettings& settings, const ScanWatch& watch) {
    Go go(files, folders, now);
    const auto goOn = [&] { return watch(go.Result().images.size()); };
    scanner.Set(settings);
    // What is there stays, so it is told even where a page could not be written.
    const std::string failure = app::FailureOf([&] {
        while (go.Take(scanner.Next(goOn)) && scanner.FeedsFrom(settings.source)) {
        }
    });
    scanner.Stop();
    if (!failure.empty())
        go.EndWith(failure);
    return go.Result();
}

}  // namespace tavrene::intake
