#pragma once

#include <QString>
#include <string_view>

namespace qarn {

/// A text of the game for a widget that shows it as it stands.
QString ToQt(std::string_view text);

/// A text of the game for a label. The marks of access keys ("Click Done &Moving") are left out: a
/// label has none, and these belong to the button that is spoken of.
QString ToLabelText(std::string_view text);

}  // namespace qarn
