#include <gtest/gtest.h>

#include "core/code_page.h"
#include "core/game_file.h"
#include "core/random_numbers.h"
#include "support/text.h"

namespace qarn {
namespace {

TEST(RandomNumbers, AreTheSameEverywhere) {
    UniformGenerator generator;
    generator.Seed(5489);
    for (int draw = 1; draw < 10'000; ++draw) {
        const double number = generator.Next();
        ASSERT_TRUE(number >= 0 && number < 1);
    }
    // The generator's published ten-thousandth value.
    EXPECT_EQ(generator.Next(), static_cast<double>(9981545732273789042u >> 11) * 0x1.0p-53);
    generator.SeedFromClock();
    const double first = generator.Next();
    generator.SeedFromClock();
    EXPECT_NE(generator.Next(), first);
}

TEST(GameFile, NewGame) {
    const std::string longest(50, 'n');
    EXPECT_EQ(
        NewGameText("CF", {Player{"Red", false}, Player{longest + "Zoë€", true}}),
        "CF\r\nRed" + std::string(51, ' ') + "False\r\n" + longest + "Zo\xEB\x80True\r\n 0 \r\n");

    const auto reason = [](const std::string& name) {
        return ErrorOf<SaveError>([&] {
            NewGameText("CF", {Player{"Red", false}, Player{name, false}});
        });
    };
    EXPECT_EQ(reason(longest + "Zoë€!"),
              "The name \"" + longest + "Zoë€!\" is longer than 54 characters.");
    EXPECT_EQ(reason("Łucja"),
              "A player's name can not be stored. The character \"Ł\" can not be stored in a game "
              "file.");
    EXPECT_EQ(reason("Red\nBlue"), "A player's name can not hold a line break.");
}

// ---- The code page ----

TEST(CodePage, EveryByteComesBack) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
    EXPECT_EQ(EncodeCodePage(DecodeCodePage(bytes)), bytes);
}

TEST(CodePage, CharactersStandAtTheirBytes) {
    EXPECT_EQ(EncodeCodePage("Zoë €5 „Šœ™“ ÿ"),
              "Zo\xEB \x80"
              "5 \x84\x8A\x9C\x99\x93 \xFF");
    EXPECT_EQ(DecodeCodePage("\x81\x8D\x8F\x90\x9D"), "\u0081\u008D\u008F\u0090\u009D");
}

TEST(CodePage, RefusesWhatItCanNotHold) {
    const std::string invalid = "The text is not valid UTF-8.";
    const std::pair<std::string, std::string> rows[] = {
        {"Łódź", "The character \"Ł\" can not be stored in a game file."},
        {"ok 🐭", "The character \"🐭\" can not be stored in a game file."},
        {"\u0080", "The character \"\u0080\" can not be stored in a game file."},
        {"a\xFF", invalid},  // no character begins like this
        {"\x80", invalid},   // the middle of one
        {"\xC3", invalid},   // cut off
        {"\xC3(", invalid},  // continued wrongly
        {"\xE2\x82", invalid},
        {"\xC1\x81", invalid},  // an A that is too long
        {"\xE0\x81\x81", invalid},
    };
    for (const auto& [text, reason] : rows) {
        EXPECT_FALSE(CanStore(text));
        EXPECT_EQ(ErrorOf<CodePageError>([&, &text = text] { EncodeCodePage(text); }), reason);
    }
    EXPECT_TRUE(CanStore("Zoë €5"));
    for (const char* line : {"a\nb", "a\tb", "\x7F"}) EXPECT_FALSE(CanStore(line));
}

}  // namespace
}  // namespace qarn
