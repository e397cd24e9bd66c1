#include "scenarios/balance.h"

#include <cmath>
#include <stdexcept>

#include "scenarios/catalogue.h"
#include "scenarios/recorded_shares.h"

namespace qarn {
namespace {

constexpr double even = 0.05;   // so far from one half both sides stand alike
constexpr double clear = 0.15;  // and beyond this one stands much better

// The shares of a record are exact fractions only up to the last bit.
constexpr double lastBit = 1e-9;

}  // namespace

std::string BalanceWord(double firstSide) {
    const double ahead = firstSide - 0.5;
    if (std::abs(ahead) <= even + lastBit) return "even";
    const std::string side = ahead > 0 ? "goodbeasts" : "badbeasts";
    return side + (std::abs(ahead) > clear + lastBit ? " much better" : " better");
}

std::string BalanceOfScenario(int scenario) {
    const std::string_view code = NamesOfScenario(scenario).Code;
    for (const RecordedShare& one : RecordedShares()) {
        if (one.code == code) return BalanceWord(one.firstSide);
    }
    throw std::out_of_range("no games of " + std::string(code));
}

}  // namespace qarn
