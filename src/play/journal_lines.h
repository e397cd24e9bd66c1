#pragma once

#include <string>

namespace qarn {

struct Journal;

/// A journal as lines of words, an entry each, for ReadJournal.
std::string JournalLines(const Journal& journal);

/// The journal that lines tell of. Lines that JournalLines does not write are passed over.
Journal ReadJournal(const std::string& lines);

}  // namespace qarn
