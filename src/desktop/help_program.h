#pragma once

#include <string>

#include "core/ports.h"

namespace qarn {

/// Shows the help file in the viewer program that stands beside this one. A viewer that cannot be
/// started is told in a box.
class HelpProgram : public HelpViewer {
public:
    /// `folder` holds the viewer program and the help file.
    HelpProgram(std::string folder, Dialogs& dialogs);

    void ShowHelp(const std::string& strTopic) override;

private:
    std::string folder_;
    Dialogs& dialogs_;
};

}  // namespace qarn
