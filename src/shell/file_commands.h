#pragma once

#include <string>

namespace qarn {

struct Game;
struct Ports;

/// Registers a file type: its extension (with the point), the path of the program that opens its
/// files, its class, description and icon (none when empty). What cannot be written is reported in
/// boxes, and everything that would follow it is left out; what was written stays.
void CreateFileType(const Ports& ports, const std::string& strExtension,
                    const std::string& strCommand, const std::string& strClassName,
                    const std::string& strDescription, const std::string& strIconPath);

/// Sets blnRegistered to true when the key can be opened and has a readable default value, whatever
/// that is, and leaves it as it is otherwise.
void IsFileTypeRegistered(const Ports& ports, const std::string& strKey, bool& blnRegistered);

/// Sets the check mark of mnuTGF: whether the type of the game files is registered. A front end
/// calls this before the mark can be seen for the first time; a load of a game leaves it as it is.
void LoadFileTypeMark(Game& game);

/// The menu item Options > Add and Remove the TGF Filetype: registers the type of the game files
/// or, while it is checked, opens the help page that explains how to remove the registration.
void mnuTGF_Click(Game& game);

}  // namespace qarn
