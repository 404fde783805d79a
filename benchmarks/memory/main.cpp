#include <sys/resource.h>

#include <cstdio>
#include <filesystem>
#include <string_view>

#include "FormPage.h"

namespace {

long PeakResidentKilobytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

}  // namespace

// Runs the same page again and again and prints how much memory the program has ever held: by the plain
// reading, or with the second opinion or by precise alignment as the argument says.
int main(int count, char** arguments) {
    using namespace tavrene::bench;
    const std::string_view way = count > 1 ? arguments[1] : "plain";
    Workplace work({.preciseAlignment = way == "precise", .secondOpinion = way == "opinion"});
    const std::vector<tavrene::profiles::ProfileRecord> profiles = {TheFormPage().profile,
                                                                    TheFormPage().stranger};
    for (int page = 1; page <= 1000; ++page) {
        std::filesystem::copy_file(TheFormPage().file, work.folders.ProcessIn + "page.tif");
        work.run.Run(profiles);
        if (page == 10 || page == 1000)
            std::printf("peak resident size, %s, after %4d pages: %ld kB\n", way.data(), page,
                        PeakResidentKilobytes());
    }
    return work.files.FileExists(work.folders.ProcessOut + "page.xml") ? 0 : 1;
}
