#pragma once

#include <algorithm>
#include <array>
#include <initializer_list>
#include <stdexcept>

#include "core/square.h"

namespace qarn {

/// The most squares of a path.
inline constexpr std::size_t longestPath = 64;

/// Squares one after the other, each a neighbour of the one before. A small value that takes no
/// memory of its own.
class Path {
public:
    constexpr Path() = default;
    constexpr Path(std::initializer_list<Square> squares) {
        for (const Square square : squares) push_back(square);
    }

    /// Adds a square at the end. Throws std::length_error when there are longestPath already.
    constexpr void push_back(Square square) {
        if (count_ == longestPath) throw std::length_error("The path is too long.");
        squares_[count_++] = square;
    }

    constexpr std::size_t size() const { return count_; }
    constexpr bool empty() const { return count_ == 0; }
    constexpr const Square& operator[](std::size_t i) const { return squares_[i]; }
    constexpr const Square& back() const { return squares_[count_ - 1]; }
    constexpr const Square* begin() const { return squares_.data(); }
    constexpr const Square* end() const { return begin() + count_; }

    friend constexpr bool operator==(const Path& a, const Path& b) {
        return std::equal(a.begin(), a.end(), b.begin(), b.end());
    }

private:
    std::array<Square, longestPath> squares_{};
    std::size_t count_ = 0;
};

}  // namespace qarn
