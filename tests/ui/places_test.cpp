#include <QMenuBar>
#include <QStyleOptionButton>

#include "scenarios/catalogue.h"
#include "scenarios/setup.h"
#include "support/game_window.h"
#include "ui/text.h"
#include "ui/window_place.h"

namespace qarn {
namespace {

// Where a control belongs, in twips of the window's client area of 15240 x 10440.
struct Row {
    std::string name;
    int left, top, width, height;
};

constexpr int none = -1;  // what is not laid down

std::vector<Row> Rows() {
    std::vector<Row> rows{{"lblTerrainDescription", 10320, 1200, 2895, 1575},  // of the stream
                          {"cmdSquareDetails", 13320, 3360, 1695, 375},
                          {"lblDetailMore", 13200, 3840, 1815, 1335},
                          {"fraCheckBoxes", 13200, 5400, 1935, 3255},
                          {"chkItems(11)", 13800, 7800, 732, 312},
                          {"cmdDoneSel", 13320, 8160, 1695, 375},
                          {"cmdAttack", 13320, 8880, 1695, 375},
                          {"cmdMove", 13320, 9360, 1695, 375},
                          {"lblStatus", 120, 9840, 8895, 495}};
    for (int i = 0; i < terrainKindCount; ++i) {
        const std::string index = "(" + std::to_string(i) + ")";
        rows.push_back({"lblTerrKey" + index, 13320, 120 + 360 * i, 1335, 255});
        rows.push_back({"cmdSeeTerDet" + index, 14760, none, none, none});
    }
    for (int i = 0; i < 10; ++i) {
        const std::string name = "chkItems(" + std::to_string(i + 1) + ")";
        rows.push_back({name, i < 5 ? 13320 : 14280, 5520 + 480 * (i % 5), 732, 312});
    }
    return rows;
}

class Places : public GameWindow {
protected:
    // Makes the client area this large, which is `scale` times its design, in the middle.
    void Resize(QSize client, double scale) {
        scale_ = scale;
        window->resize(client + QSize(0, window->menuBar()->height()));
        QApplication::processEvents();
    }

    void ExpectAt(const QRect& pixels, const Row& place, double tolerance) {
        const double pixel = scale_ / 15;
        const double origin = (window->centralWidget()->width() - 15240 * pixel) / 2;
        const auto expect = [&](double is, double twips, const char* what) {
            EXPECT_NEAR(is, twips * pixel, tolerance)
                << what << " of " << place.name << " at " << scale_;
        };
        expect(pixels.x() - origin, place.left, "left");
        if (place.top == none) return;
        expect(pixels.y(), place.top, "top");
        expect(pixels.x() + pixels.width() - origin, place.left + place.width, "right");
        expect(pixels.y() + pixels.height(), place.top + place.height, "bottom");
    }

    QRect PixelsOf(const QWidget* widget) {
        return QRect(widget->mapTo(window->centralWidget(), QPoint()), widget->size());
    }

    double scale_ = 1;
};

TEST_F(Places, AreThoseOfTheDesignAtEverySize) {
    Open("Q@9,5 WA@17,2");
    QTest::mouseClick(Button("cmdSeeTerDet(3)"), Qt::LeftButton);
    Do("Alt+I");
    for (const auto& [client, scale] : {std::pair{QSize(1016, 696), 1.0},
                                        {QSize(2032, 1392), 2.0},
                                        {QSize(1270, 870), 1.25},
                                        {QSize(1500, 696), 1.0}}) {
        Resize(client, scale);
        for (const Row& row : Rows()) ExpectAt(PixelsOf(Find(row.name)), row, 0.51);
        for (int i = 0; i < terrainKindCount; ++i) {
            const std::string index = "(" + std::to_string(i) + ")";
            EXPECT_NEAR(PixelsOf(Find("cmdSeeTerDet" + index)).center().y(),
                        PixelsOf(Find("lblTerrKey" + index)).center().y(), 1);
        }
        const QPoint corner = PixelsOf(board).topLeft();
        for (int X = 1; X <= columnCount; ++X) {
            for (int Y = 1; Y <= rowCount; ++Y) {
                const QRect square = board->PlaceOfSquare({X, Y});
                EXPECT_EQ(board->SquareAt(square.center()), QPoint(X, Y));
                const Row place{"a square", 120 + 720 * (X - 1), 120 + 960 * (Y - 1), 735, 975};
                ExpectAt(square.translated(corner), place, 1.01);
            }
        }
        for (const Row& row :
             {Row{"5,5", 3730, 4930, 1575, 1215}, Row{"17,5", 10060, 4930, 1575, 1215},
              Row{"18,10", 10780, 7540, 1575, 1215}}) {
            int X = 0, Y = 0;
            std::sscanf(row.name.c_str(), "%d,%d", &X, &Y);
            ClickSquare(X, Y);
            ExpectAt(PixelsOf(Find("fraQuickDetails")), row, 0.51);
            EXPECT_TRUE(PixelsOf(Find("fraQuickDetails")).contains(PixelsOf(Find("lblSummary"))));
        }
    }
}

TEST_F(Places, HaveRoomForTheirTexts) {
    Open("Q@9,5 WA@17,2");
    auto* box = Find<QCheckBox>("chkItems(1)");
    QStyleOptionButton option;
    int fontSize = 0;
    for (const double scale : {1.0, 1.5, 2.0}) {
        Resize(QSize(1016, 696) * scale, scale);
        const auto* widest = Button("cmdSquareDetails");
        EXPECT_LE(widest->fontMetrics().horizontalAdvance("Square Information"),
                  widest->width() - 4);
        if (scale == 1.0) fontSize = box->font().pixelSize();
        EXPECT_NEAR(box->font().pixelSize(), fontSize * scale, 1);
        option.initFrom(box);
        const int room =
            box->style()->subElementRect(QStyle::SE_CheckBoxContents, &option, box).width();
        for (int scenario = 1; scenario <= scenarioCount; ++scenario) {
            for (const RosterEntry& people : DataOfScenario(scenario).Roster) {
                const QString code = ToQt(people.Code.Text());
                EXPECT_LE(box->fontMetrics().horizontalAdvance(code), room)
                    << code.toStdString() << " at " << scale;
            }
        }
    }
}

// The colours of every kind of terrain, 0xRRGGBB, on the board and in the key.
TEST_F(Places, ShowTheirTerrainInItsColours) {
    constexpr QRgb back[] = {0xFFFFFF, 0x808000, 0x0000FF, 0x00FFFF, 0xFFFF00,
                             0x404000, 0x008000, 0x800000, 0xC00000};
    constexpr QRgb text[] = {0x000080, 0xFFFF80, 0xFFFFFF, 0x404000, 0x400000,
                             0xFF8000, 0x000080, 0xFFE0C0, 0xFFFFFF};
    Open(
        "AM 1,1=0 2,1=1 3,1=2 4,1=3 5,1=4 6,1=5 7,1=6 8,1=7 9,1=8 PF@1,1 AS@2,1 PC@3,1 "
        "SE@4,1 AG@5,1 AP@6,1 SV@7,1 MS@8,1 FS@9,1 CL@17,5");
    const QImage picture = Picture();
    EXPECT_EQ(picture.pixel(PlaceOfSquare(1, 1).topLeft()) & RGB_MASK, 0x404040u) << "a line";
    for (int code = 0; code < terrainKindCount; ++code) {
        const QWidget* label = Find("lblTerrKey(" + std::to_string(code) + ")");
        const QRect key(label->mapTo(window.get(), QPoint()), label->size());
        for (const auto& [place, inset] : {std::pair{PlaceOfSquare(code + 1, 1), 3}, {key, 1}}) {
            const QPoint ground = place.topLeft() + QPoint(inset, inset);
            EXPECT_EQ(picture.pixel(ground) & RGB_MASK, back[code]) << code;
            EXPECT_GT(CountOf(text[code], picture, place), 0) << code;
        }
    }
}

// ---- The window and its boxes ----

TEST(PlaceWithin, KeepsAWindowWithItsFrameOnTheScreen) {
    const QRect room(100, 0, 1280, 720);
    const QMargins frame(1, 20, 1, 5);
    const auto within = [&](const QRect& place) { return PlaceWithin(room, place, frame); };
    EXPECT_EQ(within({200, 30, 900, 600}), QRect(200, 30, 900, 600));
    EXPECT_EQ(within({101, 20, 1278, 695}), QRect(101, 20, 1278, 695));
    EXPECT_EQ(within({100, 0, 1016, 718}), QRect(101, 20, 1016, 695));
    EXPECT_EQ(within({2500, 900, 900, 600}), QRect(479, 115, 900, 600));
    EXPECT_EQ(within({-50, -50, 5000, 5000}), QRect(101, 20, 1278, 695));
}

TEST(PlaceClearOf, IsTheNearestPlaceThatHidesNothing) {
    const QRect room(0, 0, 1000, 700);
    const QRect status(0, 660, 600, 40), square(480, 300, 50, 60), beside(530, 300, 50, 60);
    const QRect middle(300, 250, 400, 150);
    const auto clear = [&](const QRect& place, const std::vector<QRect>& keptClear) {
        const QRect found = PlaceClearOf(room, place, keptClear);
        EXPECT_EQ(found.size(), place.size());
        return found.topLeft();
    };
    EXPECT_EQ(clear(middle, {}), QPoint(300, 250));
    EXPECT_EQ(clear(middle, {status}), QPoint(300, 250));
    EXPECT_EQ(clear(middle, {status, square, beside}), QPoint(300, 150));
    EXPECT_EQ(clear({300, 400, 400, 280}, {status, square}), QPoint(300, 380));
    EXPECT_EQ(clear({0, 200, 1000, 150}, {status, square}), QPoint(0, 150));
    EXPECT_EQ(clear({0, 200, 1000, 700}, {square}), QPoint(0, 200));
}

TEST_F(GameWindow, ItsBoxesHideNeitherTheFightNorTheStatusLine) {
    Open("9,5=0 9,6=0 Q@9,5 TS@9,5 WA@9,6 Z@17,2");
    Do("Alt+M; 9,5; Alt+S");
    random.QueueRoll(5);
    AnswerBoxes({Qt::Key_Return, Qt::Key_Return, Qt::Key_Return});
    Do("9,6");
    ASSERT_EQ(places.size(), 3u);
    const QPoint corner = window->mapToGlobal(QPoint());
    for (const QRect& place : places) {
        for (const QRect& kept :
             {PlaceOfSquare(9, 5), PlaceOfSquare(9, 6),
              QRect(Find("lblStatus")->mapTo(window.get(), QPoint()), Find("lblStatus")->size())}) {
            EXPECT_FALSE(place.intersects(kept.translated(corner)));
        }
    }
}

TEST_F(GameWindow, HasAStatusLineThatGrowsAndIsNeverCovered) {
    Open("Q@9,9 WA@17,2");
    auto* line = Find<QLabel>("lblStatus");
    const auto growth = [&] {
        return double(line->font().pixelSize()) / board->font().pixelSize();
    };
    EXPECT_EQ(growth(), 1);
    Do("Alt+I; 9,9");
    const int covered = (Find("fraQuickDetails")->geometry() & line->geometry()).height();
    EXPECT_GT(covered, 0);
    EXPECT_EQ(line->contentsRect().top(), covered);
    Do("9,8");
    window->resize(window->size() * 2);
    EXPECT_GT(growth(), 1.4);
    EXPECT_EQ(line->contentsRect(), line->rect());
}

TEST_F(GameWindow, OpensWhereItWasButWithItsFrameOnTheScreen) {
    const QRect room = window->screen()->availableGeometry();
    const auto expectOnScreen = [&] {
        EXPECT_TRUE(room.contains(window->frameGeometry()));
        EXPECT_EQ(Find("lblStatus")->visibleRegion().boundingRect().size(),
                  Find("lblStatus")->size());
    };
    EXPECT_LE(window->width(), room.width());
    EXPECT_LT(window->height(), room.height());
    Open("Q@9,5 WA@17,2");
    expectOnScreen();
    for (const QRect& place :
         {QRect(20, 50, 770, 650), QRect(1000, 50, 770, 780), QRect(0, 0, 5000, 5000)}) {
        window->setGeometry(place);
        window->close();
        OpenAnew("Q@9,5 WA@17,2");
        expectOnScreen();
        EXPECT_EQ(window->geometry() == place, room.contains(place)) << "on a larger screen";
    }
}

}  // namespace
}  // namespace qarn
