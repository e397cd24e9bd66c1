#pragma once

#include <string>

#include "core/ports.h"

namespace qarn {

/// The help in the folder of the programs: the compiled file Help.chm; where none has been made,
/// the folder Help of its pages.
std::string HelpPathIn(const std::string& folder);

/// Shows the help in the viewer program that stands beside this one. A viewer that cannot be
/// started is reported in a box.
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
