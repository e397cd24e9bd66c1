#pragma once

#include <iosfwd>

#include "console/answers.h"

namespace qarn {

/// Prints the answers that were given, for a person: the squares that can be reached, a line for
/// each cost; the odds, a sentence for each way of attacking; the journal.
void PrintAnswers(std::ostream& out, const Answers& answers);

}  // namespace qarn
