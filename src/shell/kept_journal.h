#pragma once

#include <string>

namespace qarn {

struct Ports;

/// What is kept of a game in the person's data folder and is no part of its file: the text of its
/// journal, and the fingerprint of how the game stood then.
struct KeptJournal {
    std::string position;
    std::string text;
};

/// The journal that is kept for the game in this file. Empty when there is none, or none that can
/// be read.
KeptJournal ReadKeptJournal(const Ports& ports, const std::string& strGamePath);

/// Keeps a journal for the game in this file, for the hundred games that were saved last; of a very
/// long one the older lines are left out. Throws std::system_error with the reason when it cannot.
/// Without a data folder none is kept.
void KeepJournalText(const Ports& ports, const std::string& strGamePath,
                     const KeptJournal& journal);

/// Forgets the journal of a game that is no more.
void ForgetJournal(const Ports& ports, const std::string& strGamePath);

}  // namespace qarn
