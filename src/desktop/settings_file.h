#pragma once

#include <string>

#include "core/ports.h"

namespace qarn {

/// The settings store of a Linux desktop: one file an application in the person's configuration
/// folder, read afresh at every use. One that is no ordinary file, or larger than a megabyte, is
/// passed over, which standard error is told once, and never written.
class SettingsFile : public SettingsStore {
public:
    std::string Read(const std::string& application, const std::string& section,
                     const std::string& key, const std::string& defaultValue) override;
    void Write(const std::string& application, const std::string& section, const std::string& key,
               const std::string& value) override;
    std::string LoginName() override;

private:
    void TellOnce(const std::string& text);

    bool told_ = false;
};

}  // namespace qarn
