#pragma once

#include <optional>
#include <string>

#include "core/ports.h"
#include "shell/shell_ports.h"

namespace qarn {

// What GIO does for the program (see gio_services.h), by way of a module that is loaded when one of
// these is first asked for something.

/// Where the module cannot be loaded there are no file types, and none can be made.
class DeferredFileTypes : public FileTypeRegistry {
public:
    bool CreateKey(const std::string& key) override;
    bool SetDefaultValue(const std::string& key, const std::string& value) override;
    std::optional<std::string> DefaultValue(const std::string& key) override;
};

class DeferredWastebasket : public Wastebasket {
public:
    void MoveThere(const std::string& path) override;
};

class DeferredComputer : public Computer {
public:
    void Restart() override;
};

}  // namespace qarn
