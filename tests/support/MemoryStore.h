#pragma once

#include <map>
#include <string>

#include "app/SettingsStore.h"

namespace tavrene::test {

/// Settings in memory: the values of section `Common` by name.
class MemoryStore final : public app::SettingsStore {
  public:
    std::map<std::string, std::string> values;
    bool isReadOnly = false;

    std::string ReadSettingValue(std::string_view application, std::string_view section,
                                 std::string_view name) const override {
        const auto found = values.find(std::string(name));
        const bool here = application == app::kApplicationName && section == app::kCommonSection;
        return here && found != values.end() ? found->second : std::string();
    }
    bool WriteSettingValue(std::string_view, std::string_view, std::string_view name,
                           std::string_view text) override {
        if (!isReadOnly)
            values[std::string(name)] = text;
        return !isReadOnly;
    }
};

}  // namespace tavrene::test
