#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QLocalServer>
#include <QLocalSocket>
#include <QMessageBox>
#include <QProcess>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTabBar>
#include <QTest>
#include <QTimer>

#include "help/hand_over.h"
#include "help/help_window.h"
#include "help/page_search.h"
#include "help/viewer.h"
#include "support/sequence.h"

namespace qarn {
namespace {

class Viewer : public testing::Test {
protected:
    using Facts = std::map<std::string, QString>;

    void SetUp() override {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    // "topic NAME", "type TEXT", "words TEXT" put into the box at once, "tab 1", "page" for the
    // focus, "zoom 120", or a key.
    void Do(const QString& command) {
        const QString rest = command.section(' ', 1);
        if (command.startsWith("topic")) return window.ShowTopic(rest);
        if (command.startsWith("type")) return QTest::keyClicks(QApplication::focusWidget(), rest);
        if (command.startsWith("words")) return box->setText(rest);
        if (command.startsWith("zoom")) return browser->SetZoom(rest.toInt());
        if (command == "page") return browser->setFocus();
        if (command.startsWith("tab ")) {
            auto* tabs = window.findChild<QTabBar*>();
            const QPoint place = tabs->tabRect(rest.toInt()).center();
            return QTest::mouseClick(tabs, Qt::LeftButton, {}, place);
        }
        const QKeyCombination key = QKeySequence(command)[0];
        QTest::keyClick(QApplication::focusWidget(), key.key(), key.keyboardModifiers());
    }

    // Which of the marked places the cursor is at.
    QString Mark() {
        const auto marks = browser->extraSelections();
        for (qsizetype i = 0; i < marks.size(); ++i) {
            if (marks[i].cursor.position() != browser->textCursor().position()) continue;
            return i + 1 == marks.size() ? "the last" : QString::number(i + 1);
        }
        return marks.isEmpty() ? "none" : "off";
    }

    Facts Seen() {
        const auto* item = window.findChild<ContentsTree*>()->currentItem();
        const bool below = browser->verticalScrollBar()->value() > 0;
        return {{"page", browser->PageName() + (below ? ", below its top" : "")},
                {"anchor", browser->source().fragment()},
                {"title", window.windowTitle()},
                {"contents", item == nullptr ? "none" : item->text(0)},
                {"mark", Mark() + " (" + browser->textCursor().selectedText() + ")"},
                {"box", box->text()},
                {"found", window.findChild<QListWidget*>()->count() > 0 ? "some" : "none"}};
    }

    std::string Play(const std::string& commands) {
        Facts before = Seen();
        for (const std::string& command : Parts(commands)) Do(QString::fromStdString(command));
        std::string changes;
        for (const auto& [name, value] : Seen()) {
            if (before[name] != value) changes += "# " + name + "=" + value.toStdString() + "\n";
        }
        return changes;
    }

    HelpFile file{QARN_HELP_FILE, HelpReader()};
    FakeSettings settings;
    HelpWindow window{file, settings};
    HelpBrowser* browser = window.findChild<HelpBrowser*>();
    QLineEdit* box = window.findChild<QLineEdit*>();
};

class PlayedViewer : public Viewer, public testing::WithParamInterface<Sequence> {};

TEST_P(PlayedViewer, GoesAsPlayed) {
    const auto play = [&](const std::string& commands) { return Play(commands); };
    EXPECT_EQ(PlayLines(GetParam().transcript, play), GetParam().transcript);
}

INSTANTIATE_TEST_SUITE_P(Commands, PlayedViewer,
                         testing::ValuesIn(ReadSequences("help/viewer.txt")), NameOf);

TEST_F(Viewer, ShowsPicturesInTheSizeOfTheZoom) {
    const auto widthAt = [&](int zoom) {
        browser->SetZoom(zoom);
        const QUrl board("help:/pictures/board-HM.png");
        const auto picture =
            browser->document()->resource(QTextDocument::ImageResource, board).value<QImage>();
        return picture.deviceIndependentSize().width();
    };
    window.ShowTopic("HMdetails.htm");
    const qreal usual = widthAt(100);
    EXPECT_GT(usual, 600);
    EXPECT_NEAR(widthAt(150), usual * 1.5, 1);
    browser->SetZoom(1000);
    EXPECT_EQ(browser->Zoom(), 300);
    EXPECT_EQ(browser->PageName(), "HMdetails.htm");
}

TEST_F(Viewer, RemembersItsSize) {
    window.resize(777, 555);
    window.close();
    const HelpWindow again(file, settings);
    EXPECT_EQ(again.size(), QSize(777, 555));
}

TEST(PageSearch, RanksTitlesFirstAndShowsThePlace) {
    const PageSearch search(HelpFile(QARN_HELP_FILE, HelpReader()));
    const auto pages = search.Find(WordsOf("  COMPUTER   opponent "));
    ASSERT_FALSE(pages.isEmpty());
    EXPECT_EQ(pages.front().name, "Computer.htm");
    EXPECT_TRUE(pages.front().excerpt.contains("Computer Opponent", Qt::CaseInsensitive));
    EXPECT_TRUE(search.Find(WordsOf("turnips dormice xyzzy")).isEmpty());
    EXPECT_TRUE(search.Find(WordsOf("   ")).isEmpty());
    ASSERT_EQ(search.Find(WordsOf("turnips")).size(), 2);  // its page and the overview
}

// ---- One window for all ----

class SecondStart : public testing::Test {
protected:
    // Runs the viewer program on the file, and gives its exit status.
    int Start(const QString& topic) {
        QProcess program;
        program.setProcessChannelMode(QProcess::ForwardedChannels);
        program.start(QARN_HELP_PROGRAM, {QARN_HELP_FILE, topic});
        return QTest::qWaitFor([&] { return program.state() == QProcess::NotRunning; }, 15000)
                   ? program.exitCode()
                   : -1;
    }
};

TEST_F(SecondStart, HandsItsTopicOver) {
    HandOver first(QFileInfo(QARN_HELP_FILE).absoluteFilePath());
    QSignalSpy topics(&first, &HandOver::TopicReceived);
    ASSERT_FALSE(first.GiveAway(""));
    EXPECT_EQ(Start("Troubleshooting.htm#Remove"), 0);
    EXPECT_EQ(Start(""), 0);
    ASSERT_EQ(topics.size(), 2);
    EXPECT_EQ(topics[0][0].toString(), "Troubleshooting.htm#Remove");
    EXPECT_EQ(topics[1][0].toString(), "");
}

TEST_F(SecondStart, OpensAnotherFileInAWindowOfItsOwn) {
    const TempFolder folder;
    ASSERT_TRUE(QFile::copy(QARN_HELP_FILE, QString::fromStdString(folder / "Help.chm")));
    HandOver first(QARN_HELP_FILE);
    HandOver second(QString::fromStdString(folder / "Help.chm"));
    ASSERT_FALSE(first.GiveAway(""));
    EXPECT_FALSE(second.GiveAway(""));
}

TEST_F(SecondStart, TakesOverFromAViewerThatCrashedOrHangs) {
    HandOver next(QARN_HELP_FILE);
    const TempFolder folder;
    WriteFile(next.SocketName().toStdString(), "left behind");
    EXPECT_FALSE(next.GiveAway(""));

    QLocalServer hanging;  // accepts connections, and never answers
    QLocalServer::removeServer(next.SocketName());
    ASSERT_TRUE(hanging.listen(next.SocketName()));
    QElapsedTimer clock;
    clock.start();
    HandOver later(QARN_HELP_FILE);
    QSignalSpy topics(&later, &HandOver::TopicReceived);
    EXPECT_FALSE(later.GiveAway(""));
    EXPECT_LT(clock.elapsed(), 8000);
    EXPECT_EQ(Start("Combat.htm"), 0);
    EXPECT_EQ(topics.size(), 1);
}

TEST_F(SecondStart, IsNotDisturbedByStrangers) {
    HandOver viewer(QARN_HELP_FILE);
    QSignalSpy topics(&viewer, &HandOver::TopicReceived);
    ASSERT_FALSE(viewer.GiveAway(""));
    QLocalSocket stranger;
    stranger.connectToServer(viewer.SocketName());
    ASSERT_TRUE(stranger.waitForConnected(1000));
    stranger.write(QByteArray("\0\0\0\x10half a topic", 16));
    stranger.disconnectFromServer();
    EXPECT_EQ(Start("Combat.htm"), 0);
    EXPECT_EQ(topics.size(), 1);
}

// A folder that others can write to, or none, could hold another person's socket.
TEST_F(SecondStart, HandsNothingOverWithoutATrustedFolder) {
    const QByteArray trusted = qgetenv("XDG_RUNTIME_DIR");
    const TempFolder shared;
    std::filesystem::permissions(shared.Path(), std::filesystem::perms(0777));
    std::filesystem::current_path(shared.Path());
    const QByteArray folder = QByteArray::fromStdString(shared.Path().string());
    for (const QByteArray& untrusted : {QByteArray(), QByteArray("."), folder, folder + "/none"}) {
        qputenv("XDG_RUNTIME_DIR", untrusted);
        if (untrusted.isEmpty()) qunsetenv("XDG_RUNTIME_DIR");
        HandOver first(QARN_HELP_FILE);
        HandOver second(QARN_HELP_FILE);
        EXPECT_FALSE(first.GiveAway("")) << untrusted.toStdString();
        EXPECT_FALSE(second.GiveAway("")) << untrusted.toStdString();
        EXPECT_EQ(second.SocketName(), "");
    }
    EXPECT_TRUE(std::filesystem::is_empty(shared.Path()));
    std::filesystem::current_path("/");
    qputenv("XDG_RUNTIME_DIR", trusted);
}

// ---- Without a help file ----

TEST(RunViewer, TellsThatTheHelpFileIsMissingAndGivesStatus1) {
    QString text;
    QTimer::singleShot(0, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        text = box->text() + "\n" + box->informativeText();
        box->accept();
    });
    const TempFolder folder;
    const QString path = QString::fromStdString(folder / "Help.chm");
    EXPECT_EQ(RunViewer(HelpReader(), path, ""), 1);
    EXPECT_EQ(text, "The help file can not be opened.\nNo such file or directory.\n" + path);
}

}  // namespace
}  // namespace qarn

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    const qarn::TempFolder sockets;  // a viewer that a person has open stays out of this
    qputenv("XDG_RUNTIME_DIR", QByteArray::fromStdString(sockets.Path()));
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
