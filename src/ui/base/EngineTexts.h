#pragma once

#include <span>

namespace tavrene::ui {

/// The texts that the rooms below the window compose, for the translators: %1 to %9 stand for what is put in,
/// %L1 to %L9 for whole numbers. Where one fits what another one means, the narrower one stands first.
std::span<const char* const> EngineTexts();

/// The same of what ui/commands composes for the window.
std::span<const char* const> CommandTexts();

}  // namespace tavrene::ui
