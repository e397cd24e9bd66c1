#pragma once

#include <memory>
#include <string>

#include "core/ports.h"

namespace qarn {

/// The settings store of a Linux desktop: one file an application in the person's configuration
/// folder, read again whenever it has changed. One that is no ordinary file, or larger than a
/// megabyte, is passed over, which standard error is told once, and never written.
class SettingsFile : public SettingsStore {
public:
    SettingsFile();
    ~SettingsFile() override;

    std::string Read(const std::string& application, const std::string& section,
                     const std::string& key, const std::string& defaultValue) override;
    void Write(const std::string& application, const std::string& section, const std::string& key,
               const std::string& value) override;
    std::string LoginName() override;

private:
    struct Kept;  // a file as it was read last

    const Kept& Load(const std::string& application);
    void TellOnce(const std::string& text);

    std::unique_ptr<const Kept> kept_;
    bool told_ = false;
};

}  // namespace qarn
