#pragma once

#include <string>

#include "help_pages/fill.h"

namespace qarn {

/// The name of the page about scenario 1 to 12.
std::string ScenarioPageName(int scenario);

/// What fills the marks of the page about a scenario.
Fillers ScenarioFillers(int scenario);

/// The overview of all scenarios, with links to their pages.
std::string ScenarioOverview();

/// The entries of the scenarios' pages in the table of contents.
std::string ScenarioContents();

}  // namespace qarn
