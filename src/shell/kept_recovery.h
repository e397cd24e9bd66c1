#pragma once

#include <memory>
#include <optional>
#include <string>

namespace qarn {

class OpenFile;
struct Ports;

/// Takes what is kept of a game for this program, until what it gives goes. Null when another
/// program has it, which plays the game, or nothing can be kept.
std::shared_ptr<const OpenFile> TakeRecovery(const Ports& ports, const std::string& strGamePath);

/// Keeps a game, in the text of its file, as it stands at a change of turn: in the person's state
/// folder, for the case that the program does not come to save it. What cannot be kept is not;
/// without a state folder nothing is.
void KeepRecovery(const Ports& ports, const std::string& strGamePath, const std::string& text);

/// The file that was kept for a game last, if it holds anything else than the game's own file.
std::optional<std::string> FindRecovery(const Ports& ports, const std::string& strGamePath);

/// Puts what was kept aside, where nothing that is kept from now on takes its place.
void SetRecoveryAside(const Ports& ports, const std::string& strGamePath);

/// Forgets all that was kept for a game, which has been saved or has ended.
void ForgetRecovery(const Ports& ports, const std::string& strGamePath);

}  // namespace qarn
