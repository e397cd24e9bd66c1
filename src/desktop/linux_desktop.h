#pragma once

#include "core/ports.h"
#include "desktop/deferred_services.h"
#include "desktop/program_folders.h"
#include "desktop/settings_file.h"

namespace qarn {

/// What a Linux desktop keeps for the program. It outlives whoever uses its ports.
class LinuxDesktop {
public:
    DesktopPorts Ports() { return {settings_, fileTypes_, FindProgramFolders()}; }

private:
    SettingsFile settings_;
    DeferredFileTypes fileTypes_;
};

}  // namespace qarn
