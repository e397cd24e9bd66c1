#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/played_game.h"

namespace qarn {

/// A position, what is done in it unseen, and what is done then with what comes of it.
struct Sequence {
    std::string name, position, before, transcript;
};

/// The sequences of a text file in the folder of the tests, in which they stand as its head says.
/// Throws std::runtime_error when there is no such file, or no sequence in it.
inline std::vector<Sequence> ReadSequences(const std::string& name) {
    std::vector<Sequence> sequences;
    std::ifstream file(QARN_TESTS_FOLDER "/" + name);
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("== ")) {
            Sequence& next = sequences.emplace_back();
            std::getline(std::istringstream(line.substr(3)) >> next.name, next.position);
        } else if (line.starts_with(": ") && !sequences.empty()) {
            sequences.back().before = line.substr(2);
        } else if (!line.empty() && !sequences.empty()) {
            sequences.back().transcript += line + "\n";
        }
    }
    if (sequences.empty()) throw std::runtime_error("There are no sequences in " + name);
    return sequences;
}

inline void ExpectSequence(const Sequence& sequence) {
    PlayedGame played(sequence.position);
    const std::string before = played.Play("> " + sequence.before);
    EXPECT_EQ(before.find("\nrefused"), before.npos) << before;
    EXPECT_EQ(played.Play(sequence.transcript), sequence.transcript);
}

inline void PrintTo(const Sequence& sequence, std::ostream* out) { *out << sequence.name; }

inline std::string NameOf(const testing::TestParamInfo<Sequence>& info) { return info.param.name; }

}  // namespace qarn
