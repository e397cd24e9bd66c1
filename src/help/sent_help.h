#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "help/help_contents.h"

namespace qarn {

// How the process that reads a compiled help file hands over what it holds: file after file, each
// as the length of its name, the number of its bytes, the name and the bytes.

/// What a help may hold.
inline constexpr std::size_t mostHelpFiles = 4096;
inline constexpr std::size_t longestHelpName = 511;
inline constexpr std::size_t mostBytesOfHelpFile = 16 << 20;
inline constexpr std::size_t mostBytesOfHelp = 64 << 20;

/// A bound of all that is sent.
inline constexpr std::size_t mostBytesSent =
    mostBytesOfHelp + mostHelpFiles * (longestHelpName + 2 * sizeof(std::size_t));

/// What is sent ahead of a file's name and bytes.
std::string HeadOfSentFile(std::size_t nameLength, std::size_t byteCount);

/// What was sent, with the start page and the contents that its file "#SYSTEM" names. Throws
/// HelpFileError when it ends within a file.
HelpContents ContentsOfSentHelp(std::string_view sent);

}  // namespace qarn
