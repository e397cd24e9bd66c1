#include "core/game_record.h"

namespace qarn {

SquareList LocationOfPeople(const GameRecord& record, int LocationX, int LocationY) {
    SquareList list;
    for (std::uint8_t i = 1; i <= peopleCount; ++i) {
        const PeopleRecord& people = record.People[i];
        if (people.LocationX != LocationX || people.LocationY != LocationY) continue;
        list.bytPeopleNumbers[++list.bytNumberofPeople] = i;
        if (!IsTransport(people)) ++list.bytTotalPeople;
    }
    return list;
}

std::span<const std::uint8_t> Selection(const GameRecord& record) {
    return {record.bytSelectedPeople.data() + 1, record.bytSelectedCount};
}

void SumStrength(const GameRecord& record, std::span<const std::uint8_t> people, Strength& totals) {
    Strength sums = totals;
    for (const std::uint8_t i : people) AddStrength(sums, record.People.at(i));
    totals = sums;
}

std::vector<std::string_view> GetPeopleCodes(const GameRecord& record,
                                             std::span<const std::uint8_t> people) {
    std::vector<std::string_view> codes;
    for (const std::uint8_t i : people) codes.push_back(record.People.at(i).Code);
    return codes;
}

std::vector<std::string_view> GetPeopleNames(const GameRecord& record,
                                             std::span<const std::uint8_t> people) {
    std::vector<std::string_view> names;
    for (const std::uint8_t i : people) names.push_back(record.People.at(i).Name);
    return names;
}

bool IsComputersTurn(const GameRecord& record) {
    return (record.bytTurn == 1 && record.blnComputer[1]) ||
           (record.bytTurn == 2 && record.blnComputer[2]);
}

}  // namespace qarn
