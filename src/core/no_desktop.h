#pragma once

#include <optional>
#include <string>

#include "core/ports.h"

namespace qarn {

// Ports of a game that nobody sits at, such as one that the computer plays against itself: there is
// no help, nothing is stored, and no file type is known.

class NoHelp : public HelpViewer {
public:
    void ShowHelp(const std::string&) override {}
};

class NoSettings : public SettingsStore {
public:
    std::string Read(const std::string&, const std::string&, const std::string&,
                     const std::string& defaultValue) override {
        return defaultValue;
    }
    void Write(const std::string&, const std::string&, const std::string&,
               const std::string&) override {}
    std::string LoginName() override { return {}; }
};

class NoFileTypes : public FileTypeRegistry {
public:
    bool CreateKey(const std::string&) override { return false; }
    bool SetDefaultValue(const std::string&, const std::string&) override { return false; }
    std::optional<std::string> DefaultValue(const std::string&) override { return {}; }
};

}  // namespace qarn
