#include "batch/Options.h"

#include <getopt.h>

#include <charconv>
#include <iostream>
#include <string_view>

namespace tavrene::batch {
namespace {

constexpr ::option kOptions[] = {{"settings", required_argument, nullptr, 's'},
                                 {"jobs", required_argument, nullptr, 'n'},
                                 {"precise", no_argument, nullptr, 'p'},
                                 {"export", required_argument, nullptr, 'e'},
                                 {"watch", no_argument, nullptr, 'w'},
                                 {"json", no_argument, nullptr, 'j'},
                                 {"help", no_argument, nullptr, 'h'},
                                 {"version", no_argument, nullptr, 'v'},
                                 {nullptr, 0, nullptr, 0}};

bool NoteJobs(std::string_view text, int& jobs) {
    constexpr int kMost = 256;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), jobs);
    return error == std::errc() && end == text.data() + text.size() && jobs >= 1 && jobs <= kMost;
}

bool Note(Options& options, int option) {
    switch (option) {
        case 's':
            options.settings = ::optarg;
            return !options.settings.empty();
        case 'n':
            return NoteJobs(::optarg, options.jobs);
        case 'p':
            return options.precise = true;
        case 'e':
            options.exportTo = ::optarg;
            return !options.exportTo.empty();
        case 'w':
            return options.watch = true;
        case 'j':
            return options.json = true;
        case 'h':
            return options.help = true;
        case 'v':
            return options.version = true;
        default:
            return false;
    }
}

}  // namespace

const char* const kUsage =
    R"(Usage: tavrene-batch FOLDER [OPTION]...

Reads the scans in FOLDER/ProcessIn against the profiles in FOLDER/Profiles and moves them, each recognised one
with its result document, to FOLDER/ProcessOut, as the command Process of the window does: by the same settings,
with the same documents and log lines. Settings about the window (one scan at a time, showing each page) have
no meaning here.

  --settings FILE  read the settings from FILE instead of ~/.config/Tavrene CheckBoxes/settings.ini
  --jobs N         read N pages side by side; the outcome is the same as with one
  --precise        read by precise alignment
  --export DIR     write the results in ProcessOut as CSV tables into DIR; tables that are there are replaced
  --watch          go on with what comes to ProcessIn, once nobody writes to it any more, until a signal
  --json           tell of each file on the standard output, one JSON object a line
  --help           show this text
  --version        show the version

SIGINT and SIGTERM end the work after the page at hand. The program does not work on a folder that the window has
open; with --watch it waits. Messages go to the standard error; questions have no one to answer them, so nothing
is replaced or lost for their sake.

Exit status:
  0  all files were taken
  1  the work could not be done: no folder, no active profile, no image library, no tables written
  2  the command line makes no sense
  3  another program works on the folder
  4  all files were taken, but some could not be read or not be written
  5  a signal ended the work; the page at hand was finished
)";

std::optional<Options> ReadOptions(std::span<char* const> arguments) {
    Options options;
    ::optind = 0;
    const int count = static_cast<int>(arguments.size());
    for (int option = 0; option != -1;) {
        option = ::getopt_long(count, arguments.data(), "", kOptions, nullptr);
        if (option != -1 && !Note(options, option)) {
            std::cerr << "tavrene-batch: see tavrene-batch --help\n";
            return std::nullopt;
        }
    }
    if (options.help || options.version)
        return options;
    if (::optind + 1 != count) {
        std::cerr << "tavrene-batch: one working folder is needed; see tavrene-batch --help\n";
        return std::nullopt;
    }
    options.folder = arguments[static_cast<std::size_t>(::optind)];
    return options;
}

}  // namespace tavrene::batch
