#pragma once

#include <string>
#include <string_view>

namespace qarn {

/// The caption of a button or menu item without the mark of its access key.
std::string PlainCaption(std::string_view caption);

/// A text of the game without the marks of access keys in the captions that it speaks of, as in
/// "Click Done &Moving". Ampersands in players' names stay.
std::string PlainText(std::string_view text);

}  // namespace qarn
