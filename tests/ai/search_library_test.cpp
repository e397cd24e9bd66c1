#include "ai/classic/search_library.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "ai/classic/paths.h"

namespace qarn {
namespace {

std::vector<std::string> PathsBetween(int X1, int Y1, int X2, int Y2) {
    static PathTable Paths;
    const auto byte = [](int number) { return static_cast<std::uint8_t>(number); };
    const std::size_t length = EnumeratePaths(byte(X1), byte(Y1), byte(X2), byte(Y2), Paths);
    std::vector<std::string> texts;
    for (int path = 1; path <= Paths[0].intCount; ++path) {
        std::string text;
        for (std::size_t k = 1; k <= length; ++k) {
            text += static_cast<char>('0' + Paths[static_cast<std::size_t>(path)].bytSteps[k]);
        }
        texts.push_back(text);
    }
    return texts;
}

// Every arrangement of the steps, in order, up to the 1800 that a table holds.
std::vector<std::string> ArrangementsOf(int dx, int dy) {
    std::string steps = std::string(static_cast<std::size_t>(dx), '1') +
                        std::string(static_cast<std::size_t>(dy), '2');
    std::vector<std::string> texts;
    do {
        texts.push_back(steps);
    } while (texts.size() < mostPaths && std::next_permutation(steps.begin(), steps.end()));
    return texts;
}

TEST(EnumeratePaths, ListsEveryShortestPathInOrder) {
    const std::vector<std::string> toTheRightAndDown{"1122", "1212", "1221",
                                                     "2112", "2121", "2211"};
    EXPECT_EQ(PathsBetween(3, 5, 5, 7), toTheRightAndDown);
    EXPECT_EQ(PathsBetween(4, 2, 1, 2), std::vector<std::string>{"111"});
    for (int dx = 0; dx < columnCount; ++dx) {
        for (int dy = 0; dy < rowCount; ++dy) {
            const auto arrangements = ArrangementsOf(dx, dy);
            ASSERT_EQ(PathsBetween(1, 1, 1 + dx, 1 + dy), arrangements);
            ASSERT_EQ(PathsBetween(18, 10, 18 - dx, 10 - dy), arrangements);
        }
    }
}

TEST(SortDescending, OrdersEqualKeysByItsPartition) {
    struct Row {
        std::vector<int> keys;  // of the records A, B, C...
        std::string sorted;     // worked out by hand from the partition and its pivot
    };
    const Row rows[] = {
        {{5}, "A"},
        {{5, 3, 5, 7}, "DACB"},
        {{4, 4, 4}, "CAB"},
        {{2, 9, 2, 9, 2}, "DBAEC"},
        {{7, 7, 7, 7, 7, 7}, "ACBDFE"},
        {{3, 1, 3, 1, 3, 1, 3}, "ECGABFD"},
        {{5, 5, 4, 4, 5, 5, 4, 4}, "FEABCDHG"},
        // These come out otherwise when half a position is rounded down, or up.
        {{1, 1, 2, 1, 2, 1}, "ECBAFD"},
        {{1, 1, 2, 3, 2, 1}, "DECABF"},
    };
    for (const Row& row : rows) {
        std::vector<int> intKeys{-1};
        std::string Records = "-";
        for (const int key : row.keys) {
            intKeys.push_back(key);
            Records += static_cast<char>('A' + Records.size() - 1);
        }
        SortDescending(intKeys, Records, row.keys.size());
        EXPECT_EQ(Records, "-" + row.sorted);
        EXPECT_TRUE(std::is_sorted(intKeys.begin() + 1, intKeys.end(), std::greater<>()));
    }
}

TEST(Occupancy, CountsTransportPiecesAsGroupsButNotAsEnemies) {
    Position position;
    position.People[1].Side = 2;
    Place(position, {1}, {3, 4});
    Place(position, {24}, {5, 6});
    EXPECT_TRUE(IsAnyGroupAt(position, {3, 4}) && IsAnyGroupAt(position, {5, 6}));
    EXPECT_FALSE(IsAnyGroupAt(position, {4, 3}));
    EXPECT_TRUE(IsEnemyAt(position, {3, 4}, 1));
    EXPECT_FALSE(IsEnemyAt(position, {3, 4}, 2) || IsEnemyAt(position, {5, 6}, 1));
}

}  // namespace
}  // namespace qarn
