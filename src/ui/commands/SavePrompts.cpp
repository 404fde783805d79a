#include "ui/commands/SavePrompts.h"

#include <utility>

namespace tavrene::commands {
namespace {

bool Passes(const SavePrompts::Prompt& prompt) {
    return !prompt || prompt();
}

}  // namespace

SavePrompts::SavePrompts(Prompt profile, Prompt form)
    : profile_(std::move(profile)), form_(std::move(form)) {}

bool SavePrompts::ProfileThenForm() const {
    return Passes(profile_) && Passes(form_);
}

bool SavePrompts::FormThenProfile() const {
    return Passes(form_) && Passes(profile_);
}

}  // namespace tavrene::commands
