#include "window/told_of_opponent.h"

#include <array>
#include <utility>

namespace qarn {
namespace {

// The phrases of the boxes, told of somebody called @ instead; the longer ones first.
constexpr std::array<std::pair<std::string_view, std::string_view>, 6> phrases{{
    {"Do you want", "Does @ want"},
    {"You have", "@ has"},
    {"You ", "@ "},
    {"you roll", "it rolls"},
    {"you try", "it tries"},
    {" Select OK to roll", ""},
}};

void Replace(std::string& text, std::string_view phrase, const std::string& with) {
    for (std::size_t at = text.find(phrase); at != text.npos;
         at = text.find(phrase, at + with.size())) {
        text.replace(at, phrase.size(), with);
    }
}

}  // namespace

std::string ToldOfOpponent(const std::string& name, const MessageBox& box, Answer answer) {
    std::string text = box.Text;
    for (const auto& [phrase, with] : phrases) Replace(text, phrase, std::string(with));
    Replace(text, "@", name);
    if (box.Offered == Buttons::YesNo) text += answer == Answer::Yes ? " Yes." : " No.";
    return text;
}

std::string ToldOfNoMove(const std::string& name) { return name + " found no move."; }

}  // namespace qarn
