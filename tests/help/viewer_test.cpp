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
#include "support/fake_ports.h"
#include "support/temp_folder.h"

namespace qarn {
namespace {

class Viewer : public testing::Test {
protected:
    void SetUp() override {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    void Key(int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
    }
    std::string PageName() { return browser->PageName().toStdString(); }
    std::string Title() { return window.windowTitle().toStdString(); }
    std::string MarkedText() {
        return browser->textCursor().selectedText().toLower().toStdString();
    }

    HelpFile file{QARN_HELP_FILE, HelpReader()};
    FakeSettings settings;
    HelpWindow window{file, settings};
    HelpBrowser* browser = window.findChild<HelpBrowser*>();
    ContentsTree* contents = window.findChild<ContentsTree*>();
};

TEST_F(Viewer, ShowsTopics) {
    window.ShowTopic("");
    EXPECT_EQ(PageName(), "index.htm");
    EXPECT_EQ(contents->currentItem()->text(0).toStdString(), "Welcome");

    window.ShowTopic("Terrain Info.htm");
    EXPECT_EQ(Title(), "Terrain");
    EXPECT_EQ(contents->currentItem()->text(0).toStdString(), "Terrain");
    EXPECT_EQ(browser->verticalScrollBar()->value(), 0);

    window.ShowTopic("Troubleshooting.htm#Remove");
    EXPECT_EQ(Title(), "Troubleshooting");
    EXPECT_GT(browser->verticalScrollBar()->value(), 0);

    window.ShowTopic("Nowhere.htm");
    EXPECT_EQ(Title(), "Page not found");
    EXPECT_EQ(contents->currentItem(), nullptr);
}

TEST_F(Viewer, GoesBackForwardAndHomeByKeyboard) {
    window.ShowTopic("");
    window.ShowTopic("Movement.htm");
    Key(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(PageName(), "index.htm");
    Key(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(PageName(), "Movement.htm");
    Key(Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(PageName(), "index.htm");
    Key(Qt::Key_T, Qt::ControlModifier);
    Key(Qt::Key_Down);
    EXPECT_EQ(PageName(), "GettingStarted.htm");
}

TEST_F(Viewer, FollowsLinksByKeyboard) {
    window.ShowTopic("Troubleshooting.htm");
    Key(Qt::Key_Tab);
    Key(Qt::Key_Return);
    EXPECT_EQ(browser->source().fragment().toStdString(), "ManualFix");
    window.ShowTopic("Rules.htm");
    Key(Qt::Key_Tab);
    Key(Qt::Key_Return);
    EXPECT_EQ(PageName(), "Terrain Info.htm");
}

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
    EXPECT_EQ(PageName(), "HMdetails.htm");
}

TEST_F(Viewer, SearchesAllPagesAndMarksThePlaces) {
    Key(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), "five-sided die");
    auto* list = window.findChild<QListWidget*>();
    EXPECT_EQ(list->count(), 0);  // the pages say it in other words

    window.findChild<QLineEdit*>()->setText("burn abbey");
    ASSERT_GT(list->count(), 0);
    Key(Qt::Key_Return);
    EXPECT_EQ(PageName(), "Combat.htm");
    EXPECT_GT(browser->extraSelections().size(), 3);
    const std::string first = MarkedText();
    EXPECT_TRUE(first == "burn" || first == "abbey") << first;

    const int place = browser->textCursor().position();
    Key(Qt::Key_F3);
    EXPECT_GT(browser->textCursor().position(), place);
    Key(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(browser->textCursor().position(), place);
    Key(Qt::Key_F3, Qt::ShiftModifier);  // from the first to the last
    EXPECT_GT(browser->textCursor().position(), place);

    browser->SetZoom(120);
    EXPECT_GT(browser->extraSelections().size(), 3);
    window.ShowTopic("Movement.htm");
    EXPECT_EQ(browser->extraSelections().size(), 0);
}

TEST_F(Viewer, PutsTheCursorIntoTheBoxOfTheSearchTab) {
    auto* box = window.findChild<QLineEdit*>();
    auto* bar = window.findChild<QTabBar*>();
    const auto type = [&] {
        box->clear();
        QTest::keyClicks(QApplication::focusWidget(), "abbey");
        return box->text().toStdString();
    };
    for (int times = 1; times <= 2; ++times) {  // also when it is open already
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(1).center());
        EXPECT_EQ(type(), "abbey");
        browser->setFocus();
    }
    Key(Qt::Key_C, Qt::AltModifier);
    Key(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(type(), "abbey");
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
