#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <iterator>

namespace qarn {

/// A set of roster entries, 1 to 24, walked in roster order.
class PeopleSet {
public:
    /// Walks the entries of a set, the lowest number first.
    class Iterator {
    public:
        using iterator_category = std::input_iterator_tag;
        using value_type = std::uint8_t;
        using difference_type = std::ptrdiff_t;
        using pointer = const std::uint8_t*;
        using reference = std::uint8_t;

        explicit constexpr Iterator(std::uint32_t rest) : rest_(rest) {}
        constexpr std::uint8_t operator*() const {
            return static_cast<std::uint8_t>(std::countr_zero(rest_));
        }
        constexpr Iterator& operator++() {
            rest_ &= rest_ - 1;
            return *this;
        }
        friend constexpr bool operator==(Iterator, Iterator) = default;

    private:
        std::uint32_t rest_;
    };

    constexpr PeopleSet() = default;
    constexpr PeopleSet(std::initializer_list<std::uint8_t> entries) {
        for (const std::uint8_t i : entries) Add(i);
    }
    /// The set of the entries of a list.
    template <typename List>
    static constexpr PeopleSet Of(const List& entries) {
        PeopleSet set;
        for (const std::uint8_t i : entries) set.Add(i);
        return set;
    }

    constexpr void Add(std::uint8_t i) { bits_ |= Bit(i); }
    constexpr bool Contains(std::uint8_t i) const { return (bits_ & Bit(i)) != 0; }
    constexpr bool Empty() const { return bits_ == 0; }
    constexpr int Count() const { return std::popcount(bits_); }
    /// The entry with the lowest number, of a set that is not empty.
    constexpr std::uint8_t First() const { return *begin(); }

    constexpr Iterator begin() const { return Iterator(bits_); }
    constexpr Iterator end() const { return Iterator(0); }

    friend constexpr PeopleSet operator|(PeopleSet a, PeopleSet b) {
        return PeopleSet(a.bits_ | b.bits_);
    }
    friend constexpr PeopleSet operator&(PeopleSet a, PeopleSet b) {
        return PeopleSet(a.bits_ & b.bits_);
    }
    friend constexpr PeopleSet operator-(PeopleSet a, PeopleSet b) {
        return PeopleSet(a.bits_ & ~b.bits_);
    }
    friend constexpr bool operator==(PeopleSet, PeopleSet) = default;

private:
    explicit constexpr PeopleSet(std::uint32_t bits) : bits_(bits) {}
    static constexpr std::uint32_t Bit(std::uint8_t i) { return std::uint32_t{1} << i; }

    std::uint32_t bits_ = 0;
};

}  // namespace qarn
