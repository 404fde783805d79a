#include "batch/Options.h"

#include <getopt.h>

#include <charconv>
#include <filesystem>
#include <iostream>
#include <string_view>

#include "app/Files.h"

namespace tavrene::batch {
namespace {

constexpr ::option kOptions[] = {
    {"settings", required_argument, nullptr, 's'}, {"jobs", required_argument, nullptr, 'n'},
    {"precise", no_argument, nullptr, 'p'},        {"doubts", no_argument, nullptr, 'd'},
    {"export", required_argument, nullptr, 'e'},   {"groups", no_argument, nullptr, 'g'},
    {"claim", optional_argument, nullptr, 'c'},    {"watch", no_argument, nullptr, 'w'},
    {"json", no_argument, nullptr, 'j'},           {"help", no_argument, nullptr, 'h'},
    {"version", no_argument, nullptr, 'v'},        {nullptr, 0, nullptr, 0}};

// Whole, so that a message names it wherever the program was started. Empty stays empty.
std::string WholePath(const std::string& path) {
    if (path.empty())
        return {};
    std::string whole = app::FromPath(std::filesystem::absolute(app::ToPath(path)).lexically_normal());
    while (whole.size() > 1 && whole.ends_with('/'))
        whole.pop_back();
    return whole;
}

bool NoteNumber(const char* option, std::string_view text, int most, int& number) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error == std::errc() && end == text.data() + text.size() && number >= 1 && number <= most)
        return true;
    std::cerr << "tavrene-batch: " << option << " takes a number from 1 to " << most << '\n';
    return false;
}

bool Note(Options& options, int option) {
    switch (option) {
        case 's':
            options.settings = WholePath(::optarg);
            return !options.settings.empty();
        case 'n':
            return NoteNumber("--jobs", ::optarg, 256, options.jobs);
        case 'c':
            options.patience = 60;
            return ::optarg == nullptr || NoteNumber("--claim", ::optarg, 86'400, options.patience);
        case 'p':
            return options.precise = true;
        case 'd':
            return options.doubts = true;
        case 'e':
            options.exportTo = WholePath(::optarg);
            return !options.exportTo.empty();
        case 'g':
            return options.groups = true;
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
  --doubts         count the boxes in doubt, so that review need not when the window opens FOLDER with these
                   settings; takes about an eighth longer
  --export DIR     write the results in ProcessOut as CSV tables into DIR; tables that are there are replaced
  --groups         with --export: one column a group of boxes instead of one a box
  --claim[=SEC]    share FOLDER with other tavrene-batch --claim, on this machine or others: each takes some
                   files at a time; when it has not been heard of for SEC seconds (60), the others take over
                   what it has; for scans that are there already, so not together with --watch
  --watch          go on with what comes to ProcessIn, once nobody writes to it any more, until a signal
  --json           tell of each file on the standard output, one JSON object a line
  --help           show this text
  --version        show the version

SIGINT and SIGTERM end the work after the page at hand; with --watch that is its usual end, with
status 0. The program does not work on a folder that the window has open; with --watch it waits. Messages go to
the standard error; questions have no one to answer them, so nothing is replaced or lost for their sake.

Exit status:
  0  all files were taken
  1  the work could not be done: no folder, no active profile, no image library, no tables written
  2  the command line makes no sense
  3  another program works on the folder
  4  some files could not be read, not be written or not be claimed
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
    if (options.groups && options.exportTo.empty()) {
        std::cerr << "tavrene-batch: --groups needs --export; see tavrene-batch --help\n";
        return std::nullopt;
    }
    // Claims are taken at once, and what is still being written may not be.
    if (options.watch && options.patience > 0) {
        std::cerr << "tavrene-batch: --watch and --claim do not go together; see tavrene-batch --help\n";
        return std::nullopt;
    }
    options.folder = WholePath(arguments[static_cast<std::size_t>(::optind)]);
    return options;
}

}  // namespace tavrene::batch
