#pragma once

#include <QString>
#include <string>

class QWidget;

namespace qarn {

/// Asks into which text file the journal of a game goes: one beside the game, by its name, unless
/// the person says otherwise. Empty when it is to go nowhere.
QString AskForJournalFile(QWidget* window, const std::string& strGamePath);

}  // namespace qarn
