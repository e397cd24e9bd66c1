#pragma once

#include "shell/shell_ports.h"

namespace qarn {

/// The computer as the system's login manager restarts it, which may ask the person for leave.
class LoginManager : public Computer {
public:
    void Restart() override;
};

}  // namespace qarn
