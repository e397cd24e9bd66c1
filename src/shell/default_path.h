#pragma once

#include <string>

namespace qarn {

struct Game;
struct Ports;

/// The default folder for game files: the person's setting; where there is none, or the file system
/// cannot even look for it, the program's own folder. When that is a build tree, or the person may
/// not write there, the person's data folder takes its place and is made.
std::string DefaultPath(const Ports& ports);

/// The menu item Options > Default Filepath: asks for the folder and stores what was typed, unless
/// that is empty. A setting that cannot be stored is reported in a box.
void mnuDefaultFilepath_Click(Game& game);

}  // namespace qarn
