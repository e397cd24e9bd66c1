#pragma once

#include <string>
#include <string_view>

#include "core/player_error.h"

namespace qarn {

/// A text holds a character that the game file's code page does not have.
class CodePageError : public PlayerError {
public:
    using PlayerError::PlayerError;
};

/// Turns UTF-8 into Windows code page 1252, one byte a character. Throws CodePageError, naming the
/// character, when the code page lacks one or the text is not UTF-8.
std::string EncodeCodePage(std::string_view utf8);

/// True when a game file can hold the text on one of its lines: every character is in the code
/// page, and none is a control character.
bool CanStore(std::string_view utf8);

/// Turns Windows code page 1252 into UTF-8. The five bytes that the code page leaves unused become
/// the control characters of the same number, and come back as these bytes.
std::string DecodeCodePage(std::string_view bytes);

}  // namespace qarn
