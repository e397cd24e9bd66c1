#include "core/code_page.h"

#include <gtest/gtest.h>

#include "support/text.h"

namespace qarn {
namespace {

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
