#pragma once

#include <QString>
#include <string>

namespace qarn {

/// A text of the game for a widget that shows it as it stands.
QString ToQt(const std::string& text);

/// A text of the game for a label. The marks of access keys ("Click Done &Moving") are left out: a
/// label has none, and these belong to the button that is spoken of.
QString ToLabelText(const std::string& text);

}  // namespace qarn
