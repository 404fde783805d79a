#include <sys/resource.h>

#include <cstdio>
#include <filesystem>

#include "FormPage.h"

namespace {

long PeakResidentKilobytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

}  // namespace

// Runs the same page again and again and prints how much memory the program has ever held.
int main() {
    using namespace tavrene::bench;
    Workplace work;
    const std::vector<tavrene::profiles::ProfileRecord> profiles = {TheFormPage().profile,
                                                                    TheFormPage().stranger};
    for (int page = 1; page <= 1000; ++page) {
        std::filesystem::copy_file(TheFormPage().file, work.folders.ProcessIn + "page.tif");
        work.run.Run(profiles);
        if (page == 10 || page == 1000)
            std::printf("peak resident size after %4d pages: %ld kB\n", page, PeakResidentKilobytes());
    }
    return work.files.FileExists(work.folders.ProcessOut + "page.xml") ? 0 : 1;
}
