#include "help/help_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <random>
#include <set>

#include "help/lock_in.h"
#include "scenarios/balance.h"
#include "scenarios/catalogue.h"
#include "scenarios/setup.h"
#include "support/temp_folder.h"
#include "support/text.h"

namespace qarn {
namespace {

HelpFile Open(const std::string& path) { return HelpFile(path, HelpReader()); }

std::string Refusal(const std::string& path) {
    return ErrorOf<HelpFileError>([&] { Open(path); });
}

// QARN_HELP_FILE is the Help.chm of this build, QARN_HELP_PAGES the folder it was made of.
const HelpFile& Help() {
    static const HelpFile file = Open(QARN_HELP_FILE);
    return file;
}

std::string Page(const std::string& name) {
    const std::string* page = Help().Find(name);
    EXPECT_NE(page, nullptr) << name;
    return page == nullptr ? "" : *page;
}

// A page without its tags, its words told apart by one blank.
std::string TextOf(const std::string& page) {
    std::string text;
    bool inTag = false;
    for (const char letter : Replaced(page, "&#39;", "'")) {
        if (letter == '<') inTag = true;
        const bool blank = inTag || letter == '\n' || letter == ' ';
        if (!blank) text += letter;
        if (blank && !text.ends_with(' ')) text += ' ';
        if (letter == '>') inTag = false;
    }
    return text;
}

std::vector<std::string> ValuesOf(const std::string& page, const std::string& attribute) {
    const std::string mark = " " + attribute + "=\"";
    std::vector<std::string> values;
    for (std::size_t at = page.find(mark); at != page.npos; at = page.find(mark, at)) {
        at += mark.size();
        values.push_back(page.substr(at, page.find('"', at) - at));
    }
    return values;
}

// True when there is such a page, picture or style sheet, and the anchor on it, if one is named.
bool Leads(const std::string& address, const std::string& from) {
    const std::string plain = Replaced(address, "%20", " ");
    const std::size_t hash = std::min(plain.find('#'), plain.size());
    const std::string name = hash == 0 ? from : plain.substr(0, hash);
    const std::string* target = Help().Find(name);
    if (target == nullptr) return false;
    if (hash == plain.size()) return true;
    for (const std::string& anchor : ValuesOf(*target, "name")) {
        if (anchor == plain.substr(hash + 1)) return true;
    }
    return false;
}

void AddPages(const std::vector<ContentsEntry>& entries, std::set<std::string>& pages) {
    for (const ContentsEntry& entry : entries) {
        if (!entry.page.empty()) pages.insert(entry.page);
        AddPages(entry.entries, pages);
    }
}

TEST(HelpFile, HasEveryPageThatTheProgramOpens) {
    std::vector<std::string> topics = Parts(
        "GettingStarted.htm; Terrain Info.htm; Troubleshooting.htm#Remove; "
        "Troubleshooting.htm#ManualFix; details.htm");
    topics.push_back(Help().StartPage());
    for (int scenario = 1; scenario <= scenarioCount; ++scenario) {
        topics.push_back(std::string(NamesOfScenario(scenario).Code) + "details.htm");
    }
    for (const std::string& topic : topics) EXPECT_TRUE(Leads(topic, "")) << topic;
}

TEST(HelpFile, EveryLinkAndPictureLeadsSomewhere) {
    int links = 0;
    for (const std::string& name : Help().PageNames()) {
        const std::string page = Page(name);
        for (const char* attribute : {"href", "src"}) {
            for (const std::string& address : ValuesOf(page, attribute)) {
                EXPECT_TRUE(Leads(address, name)) << name << " leads to " << address;
                ++links;
            }
        }
    }
    EXPECT_GT(links, 100);
}

TEST(HelpFile, ContentsListEveryPage) {
    std::set<std::string> listed;
    AddPages(Help().Contents(), listed);
    const std::vector<std::string> pages = Help().PageNames();
    EXPECT_EQ(listed, std::set<std::string>(pages.begin(), pages.end()));
}

TEST(HelpFile, RostersAreThoseOfTheGame) {
    for (int scenario = 1; scenario <= scenarioCount; ++scenario) {
        const std::string name = std::string(NamesOfScenario(scenario).Code) + "details.htm";
        const std::string text = TextOf(Page(name));
        for (const RosterEntry& entry : DataOfScenario(scenario).Roster) {
            if (entry.Side == 0) continue;
            const std::string row = " " + std::string(entry.Code.Text()) + " " +
                                    std::string(entry.Name) + " " + std::to_string(entry.Mobility) +
                                    " " + std::to_string(entry.Attack) + " " +
                                    std::to_string(entry.Defense) + " ";
            const std::size_t badbeasts = text.find(" Badbeasts ");
            const std::size_t at = text.find(row);
            ASSERT_NE(at, text.npos) << name << row;
            EXPECT_EQ(at > badbeasts, entry.Side == 2) << name << row;
        }
    }
}

TEST(HelpFile, OddsAndCostsAreThoseOfTheRules) {
    for (const auto& [page, row] :
         {std::pair{"Combat.htm", " 1 or less &ndash; &ndash; 1 to 5 0% 0% 100% yes "},
          {"Combat.htm", " 2 &ndash; 1 2 to 5 0% 20% 80% yes "},
          {"Combat.htm", " 3 &ndash; 1 2 to 5 0% 20% 80% no "},
          {"Combat.htm", " 6 or 7 1 to 2 3 4 to 5 40% 20% 40% no "},
          {"Combat.htm", " 10 or 11 1 to 4 5 &ndash; 80% 20% 0% no "},
          {"Combat.htm", " 12 or more 1 to 5 &ndash; &ndash; 100% 0% 0% no "},
          {"SpecialMovers.htm", " Mountain 5 2 1 "},
          {"SpecialMovers.htm", " Sand 3 3 1 "},
          {"SpecialMovers.htm", " Forest 2 1 1 "},
          {"SpecialMovers.htm", " Abbey 1 1 1 "},
          {"Terrain Info.htm", " Gallowrock 1 0 3 yes no 1 to move and 3"}}) {
        EXPECT_TRUE(Has(TextOf(Page(page)), row));
    }
}

TEST(HelpFile, BalanceIsThatOfTheStartWindow) {
    const std::string text = TextOf(Page("Opponents.htm"));
    for (int scenario = 1; scenario <= scenarioCount; ++scenario) {
        const std::size_t row = text.find(NamesOfScenario(scenario).ListTitle);
        ASSERT_NE(row, text.npos) << scenario;
        const std::string end = ") " + BalanceOfScenario(scenario) + " ";
        EXPECT_EQ(text.find(") ", row), text.find(end, row)) << scenario << end;
    }
}

// ---- Damage ----

class DamagedHelpFile : public testing::Test {
protected:
    std::string ErrorOf(const std::string& contents) {
        WriteFile(path_, contents);
        return Refusal(path_);
    }

    TempFolder folder_;
    const std::string path_ = folder_ / "Help.chm";
    const std::string whole_ = ReadFile(QARN_HELP_FILE);
};

TEST_F(DamagedHelpFile, CutShortAnywhereIsRefused) {
    EXPECT_EQ(ErrorOf(whole_), "");
    for (std::size_t part = 0; part < 24; ++part) {
        EXPECT_NE(ErrorOf(whole_.substr(0, whole_.size() * part / 24)), "") << part;
    }
    EXPECT_NE(ErrorOf(whole_.substr(0, whole_.size() - 1)), "");
}

TEST_F(DamagedHelpFile, WrongBytesAreReadOrRefused) {
    int refused = 0;
    for (unsigned seed = 1; seed <= 60; ++seed) {
        std::mt19937 random(seed);
        std::string bytes = whole_;
        const std::size_t range = seed % 2 == 0 ? bytes.size() : 0x2000;
        for (int i = 0; i < 8; ++i) bytes[random() % range] = static_cast<char>(random());
        refused += ErrorOf(bytes).empty() ? 0 : 1;
    }
    EXPECT_GT(refused, 0);
}

TEST_F(DamagedHelpFile, WhatIsNoHelpFileIsRefusedWithTheReason) {
    EXPECT_EQ(ErrorOf(std::string(100000, 'x')), "It is damaged, or it is not a help file.");
    EXPECT_EQ(ErrorOf("ITSF"), "It is damaged, or it is not a help file.");
    EXPECT_EQ(Refusal(folder_ / "missing.chm"), "No such file or directory.");
}

// The one block of the directory names itself as the one behind it, with an entry and without any,
// or as the one that it leads to as an index.
TEST_F(DamagedHelpFile, ADirectoryThatLeadsBackIntoItselfIsRefused) {
    const std::size_t block = whole_.find("PMGL");
    const auto setWord = [](std::string& bytes, std::size_t at, std::uint32_t word) {
        bytes.replace(at, 4, reinterpret_cast<const char*>(&word), 4);
    };
    std::string again = whole_;
    setWord(again, block + 16, 0);
    again.replace(block + 20, 6, std::string("\2/a\0\0\0", 6));
    setWord(again, block + 4, 4096 - 26);
    EXPECT_EQ(ErrorOf(again), "It is too large.");

    std::string empty = again;
    setWord(empty, block + 4, 4096 - 20);
    EXPECT_EQ(ErrorOf(empty), "It is damaged, or it is not a help file.");

    std::string index = whole_;
    index.replace(block, 11, std::string("PMGI\0\0\0\0\1!\0", 11));
    setWord(index, block + 4, 4096 - 11);
    setWord(index, whole_.find("ITSP") + 28, 0);
    EXPECT_EQ(ErrorOf(index), "It is damaged, or it is not a help file.");
}

// ---- The process that reads ----

TEST(LockedIn, LeavesNothingButReadingOneFile) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "The sanitizer needs more than that.";
#endif
    const auto lockedIn = [](auto deed) {
        const LockedIn process;
        _exit(deed() ? 0 : 1);
    };
    const auto openToRead = [] { return open("/dev/null", O_RDONLY); };
    const testing::ExitedWithCode fine(0);
    const testing::KilledBySignal killed(SIGSYS);
    EXPECT_EXIT(lockedIn([&] { return openToRead() >= 0 && openToRead() < 0; }), fine, "");
    EXPECT_EXIT(lockedIn([&] { return close(openToRead()) != 0; }), fine, "");
    EXPECT_EXIT(lockedIn([] { return malloc(std::size_t{2} << 30) == nullptr; }), fine, "");
    EXPECT_EXIT(lockedIn([] { return open("/dev/null", O_WRONLY) >= 0; }), killed, "");
    EXPECT_EXIT(lockedIn([] { return socket(AF_UNIX, SOCK_STREAM, 0) >= 0; }), killed, "");
    EXPECT_EXIT(lockedIn([] { return fork() >= 0; }), killed, "");
}

// ---- A folder of pages ----

std::string TitlesOf(const std::vector<ContentsEntry>& entries) {
    std::string titles;
    for (const ContentsEntry& entry : entries) {
        titles += entry.title + "(" + entry.page + TitlesOf(entry.entries) + ")";
    }
    return titles;
}

TEST(PageFolder, IsReadAsTheFileThatIsMadeOfIt) {
    const HelpFile pages = Open(QARN_HELP_PAGES);
    EXPECT_EQ(pages.StartPage(), Help().StartPage());
    EXPECT_EQ(TitlesOf(pages.Contents()), TitlesOf(Help().Contents()));
    EXPECT_EQ(pages.PageNames(), Help().PageNames());
    for (const char* name : {"terrain info.HTM", "style.css", "pictures/odds.png"}) {
        ASSERT_TRUE(pages.Find(name) != nullptr && Help().Find(name) != nullptr) << name;
        EXPECT_EQ(*pages.Find(name), *Help().Find(name)) << name;
    }
    for (const char* name : {"terrain%20info.htm", ""}) {
        EXPECT_TRUE(pages.Find(name) == nullptr && Help().Find(name) == nullptr) << name;
    }
}

TEST(PageFolder, WithoutWhatItNeedsOrThatWouldTakeForEverIsRefused) {
    const TempFolder folder;
    const std::string path = folder.Path().string();
    EXPECT_EQ(Refusal(path), "Its file help.hhp can not be read.");
    WriteFile(folder / "help.hhp", "[OPTIONS]\r\nDefault topic=Start.htm\r\n");
    EXPECT_EQ(Refusal(path), "Its start page is missing.");
    WriteFile(folder / "start.htm", "");
    EXPECT_EQ(Refusal(path), "");
    std::filesystem::create_symlink("nowhere", folder / "page.htm");
    EXPECT_EQ(Refusal(path), "");

    WriteFile(folder / "help.hhp", "Default topic=Start.htm\n");
    std::string tags;
    for (int tag = 0; tag < 4999; ++tag) tags += "<br>";
    WriteFile(folder / "start.htm", tags);
    EXPECT_EQ(Refusal(path), "");
    WriteFile(folder / "start.htm", tags + "<P></p>");
    EXPECT_EQ(Refusal(path), "");
    WriteFile(folder / "start.htm", tags + "</p><p></div><div>");
    EXPECT_EQ(Refusal(path), "Its page start.htm has too many open tags.");
    WriteFile(folder / "start.htm", "");
    std::filesystem::resize_file(folder / "start.htm", (16 << 20) + 1);
    EXPECT_EQ(Refusal(path), "Its file start.htm is too large.");
    for (const char* name : {"1.png", "2.png", "3.png", "4.png", "start.htm"}) {
        WriteFile(folder / name, "");
        std::filesystem::resize_file(folder / name, 14 << 20);
    }
    EXPECT_EQ(Refusal(path), "It holds too much.");
    std::filesystem::remove(folder / "help.hhp");
    ASSERT_EQ(mkfifo((folder / "help.hhp").c_str(), 0600), 0);
    EXPECT_EQ(Refusal(path), "Its file help.hhp can not be read.");
}

// ---- Contents ----

std::string Object(const std::string& name, const std::string& page) {
    return "<LI><OBJECT type=\"text/sitemap\"><param name=\"Name\" value=\"" + name +
           "\"><PARAM NAME=\"Local\" VALUE=\"" + page + "\"></OBJECT>\n";
}

TEST(ParseContents, ReadsNestedLists) {
    const std::string html = "<UL>" + Object("A", "a.htm") + "<UL>" +
                             Object("B &amp; C", "b.htm#c") + "</UL>" + Object("D", "") + "</UL>";
    EXPECT_EQ(TitlesOf(ParseContents(html)), "A(a.htmB & C(b.htm#c))D()");
}

TEST(ParseContents, GoesOnAfterMistakes) {
    EXPECT_TRUE(ParseContents("").empty());
    EXPECT_TRUE(ParseContents("<UL><LI").empty());
    EXPECT_EQ(ParseContents("</UL></UL>" + Object("A", "a.htm")).size(), 1u);
    EXPECT_EQ(ParseContents("<OBJECT><param name=\"Name\" value=\"A").size(), 1u);
    std::string deep;
    for (int i = 0; i < 100000; ++i) deep += "<UL>" + Object("A", "a.htm");
    EXPECT_FALSE(ParseContents(deep).empty());
}

}  // namespace
}  // namespace qarn
