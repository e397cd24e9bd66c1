#pragma once

#include "shell/shell_ports.h"

namespace qarn {

/// The wastebasket of a freedesktop.org desktop.
class DesktopWastebasket : public Wastebasket {
public:
    void MoveThere(const std::string& path) override;
};

}  // namespace qarn
