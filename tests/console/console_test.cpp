#include <gtest/gtest.h>

#include "console/console_ports.h"
#include "console/words.h"
#include "support/text.h"

namespace qarn {
namespace {

TEST(Words, AreTakenApart) {
    using Words = std::vector<std::string>;
    const std::pair<const char*, Words> rows[] = {
        {"click 1\t 10\r", {"click", "1", "10"}},
        {"  ", {}},
        {R"(new "a b" "" c)", {"new", "a b", "", "c"}},
        {R"("say \"hi\" \\ \n")", {R"(say "hi" \ \n)"}},
        {R"(a"b c" "d"e)", {"a\"b", "c\"", "d", "e"}},
        {R"(C:\games\ "C:\games\\")", {R"(C:\games\)", R"(C:\games\)"}},
    };
    for (const auto& [line, words] : rows) {
        EXPECT_EQ(SplitWords(line), words) << line;
    }
    for (const char* line : {R"("say \"hi\" \\ \n \")", "\"open"}) {
        EXPECT_EQ(ErrorOf<Refusal>([&] { SplitWords(line); }),
                  "A word in double quotes is not closed.");
    }
}

TEST(ConsoleDialogs, AnswersComeFromTheQueueThenFromAPerson) {
    ConsoleDialogs dialogs;
    const MessageBox ok{.Title = "", .Text = "text"};
    const MessageBox yesNo{.Title = "", .Text = "text", .Offered = Buttons::YesNo};
    const MessageBox retry{.Title = "", .Text = "text", .Offered = Buttons::RetryCancel};
    for (const Answer answer : {Answer::Yes, Answer::Retry, Answer::Retry, Answer::Yes}) {
        dialogs.QueueAnswer(answer);
    }
    EXPECT_EQ(dialogs.Show(ok), Answer::OK);  // takes none
    EXPECT_EQ(dialogs.Show(yesNo), Answer::Yes);
    EXPECT_EQ(dialogs.Show(yesNo), Answer::No);  // Retry is not offered
    EXPECT_EQ(dialogs.Show(retry), Answer::Retry);
    EXPECT_EQ(dialogs.Show(retry), Answer::Cancel);
    EXPECT_EQ(dialogs.Show(yesNo), Answer::No);
    EXPECT_EQ(dialogs.TakeShown().size(), 6u);
    EXPECT_TRUE(dialogs.TakeShown().empty());

    dialogs.SetAskPerson([](const MessageBox&) { return Answer::Yes; });
    dialogs.QueueAnswer(Answer::No);
    EXPECT_EQ(dialogs.Show(yesNo), Answer::No);
    EXPECT_EQ(dialogs.Show(yesNo), Answer::Yes);
}

TEST(ConsoleRandomNumbers, ComeFromTheQueueThenFromTheSeed) {
    ConsoleRandomNumbers random;
    random.SetSeed(5);
    const double first = random.Next(), second = random.Next();
    EXPECT_NE(first, second);
    random.SetSeed(5);  // now
    random.QueueNumber(0.25);
    EXPECT_EQ(random.Next(), 0.25);
    EXPECT_EQ(random.Next(), first);
    random.Seed();  // and at a load
    EXPECT_EQ(random.Next(), first);
    EXPECT_EQ(random.Next(), second);
}

}  // namespace
}  // namespace qarn
