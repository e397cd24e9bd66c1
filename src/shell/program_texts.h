#pragma once

#include <string>

namespace qarn {

/// The account of how the program began, with the titles of the scenarios and the authors' names.
std::string ProgramBackground();

/// The program's name and version, as the about window shows them.
std::string ProductNameVersion();

/// Who made the program, one line each.
std::string Credits();

/// The copyright, the licence, and what the program is built with.
std::string LegalNotices();

}  // namespace qarn
