#include "shell/told_time.h"

#include <array>

namespace qarn {

std::string ToldTime(std::time_t time) {
    std::tm local{};
    localtime_r(&time, &local);
    std::array<char, 64> text{};
    std::strftime(text.data(), text.size(), "%B %Y, %H:%M:%S", &local);
    return std::to_string(local.tm_mday) + " " + text.data();
}

}  // namespace qarn
