#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>

#include "core/position.h"

namespace qarn {

/// The middle of two positions, halves rounded to the even neighbour.
constexpr std::size_t MiddleOf(std::size_t low, std::size_t high) {
    const std::size_t middle = (low + high) / 2;
    const bool half = (low + high) % 2 != 0;
    return half && middle % 2 != 0 ? middle + 1 : middle;
}

/// Sorts positions intLow to intHigh of both arrays by key, smallest first; each record moves with
/// its key. The order of equal keys comes from this partition and pivot, and decides which move the
/// computer chooses: keep both.
template <typename Keys, typename List>
void QuickSort(Keys& intKeys, List& Records, std::size_t intLow, std::size_t intHigh) {
    if (intLow >= intHigh) return;
    const auto pivot = intKeys[MiddleOf(intLow, intHigh)];
    std::size_t i = intLow;
    std::size_t j = intHigh;
    do {
        while (intKeys[i] < pivot) ++i;
        while (intKeys[j] > pivot) --j;
        if (i <= j) {
            std::swap(intKeys[i], intKeys[j]);
            std::swap(Records[i], Records[j]);
            ++i;
            --j;
        }
    } while (i < j);
    QuickSort(intKeys, Records, intLow, j);
    QuickSort(intKeys, Records, i, intHigh);
}

/// Sorts positions 1 to n of both arrays by key, largest first. Equal keys come out in the reverse
/// of the order in which QuickSort leaves them.
template <typename Keys, typename List>
void SortDescending(Keys& intKeys, List& Records, std::size_t n) {
    QuickSort(intKeys, Records, 1, n);
    for (std::size_t k = 1; k <= n / 2; ++k) {
        std::swap(intKeys[k], intKeys[n - k + 1]);
        std::swap(Records[k], Records[n - k + 1]);
    }
}

/// True when anyone stands on the square, transport pieces included.
bool IsAnyGroupAt(const Position& position, Square square);

/// True when a character of the side opposing bytSide (1 or 2) stands on the square.
bool IsEnemyAt(const Position& position, Square square, std::uint8_t bytSide);

}  // namespace qarn
