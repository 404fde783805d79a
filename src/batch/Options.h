#pragma once

#include <optional>
#include <span>
#include <string>

namespace tavrene::batch {

/// What the command line asks for. Paths are whole, whatever was typed, and end in no separator.
struct Options {
    std::string folder;    ///< The working folder.
    std::string settings;  ///< Empty for the window's settings file.
    std::string exportTo;  ///< Empty for no tables.
    int jobs = 1;
    int patience = 0;  ///< Of claims: seconds until an owner counts as dead; 0 where none are made.
    bool precise = false;
    bool doubts = false;  ///< Count them for review.
    bool groups = false;  ///< Of tables: one column a group of boxes.
    bool watch = false;
    bool json = false;
    bool help = false;
    bool version = false;
};

/// What `--help` prints.
extern const char* const kUsage;

/// Nothing, with a line on the standard error, when the arguments (the program's name first) make no sense.
std::optional<Options> ReadOptions(std::span<char* const> arguments);

}  // namespace tavrene::batch
