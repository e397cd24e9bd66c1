#include <QMenuBar>
#include <QStyleOptionButton>

#include "scenarios/catalogue.h"
#include "scenarios/setup.h"
#include "support/game_window.h"
#include "ui/text.h"

namespace qarn {
namespace {

// Where the controls belong, in twips of the window's client area of 15240 x 10440.
struct Row {
    const char* name;
    int left, top, width, height;
};

constexpr int none = -1;  // what is not laid down

constexpr std::array rows{
    Row{"lblTerrKey(0)", 13320, 120, 1335, 255},
    Row{"lblTerrKey(1)", 13320, 480, 1335, 255},
    Row{"lblTerrKey(2)", 13320, 840, 1335, 255},
    Row{"lblTerrKey(3)", 13320, 1200, 1335, 255},
    Row{"lblTerrKey(4)", 13320, 1560, 1335, 255},
    Row{"lblTerrKey(5)", 13320, 1920, 1335, 255},
    Row{"lblTerrKey(6)", 13320, 2280, 1335, 255},
    Row{"lblTerrKey(7)", 13320, 2640, 1335, 255},
    Row{"lblTerrKey(8)", 13320, 3000, 1335, 255},
    Row{"cmdSeeTerDet(0)", 14760, none, none, none},
    Row{"cmdSeeTerDet(1)", 14760, none, none, none},
    Row{"cmdSeeTerDet(2)", 14760, none, none, none},
    Row{"cmdSeeTerDet(3)", 14760, none, none, none},
    Row{"cmdSeeTerDet(4)", 14760, none, none, none},
    Row{"cmdSeeTerDet(5)", 14760, none, none, none},
    Row{"cmdSeeTerDet(6)", 14760, none, none, none},
    Row{"cmdSeeTerDet(7)", 14760, none, none, none},
    Row{"cmdSeeTerDet(8)", 14760, none, none, none},
    Row{"lblTerrainDescription", 10320, 1200, 2895, 1575},  // of the stream
    Row{"cmdSquareDetails", 13320, 3360, 1695, 375},
    Row{"lblDetailMore", 13200, 3840, 1815, 1335},
    Row{"fraCheckBoxes", 13200, 5400, 1935, 3255},
    Row{"chkItems(1)", 13320, 5520, 732, 312},
    Row{"chkItems(2)", 13320, 6000, 732, 312},
    Row{"chkItems(3)", 13320, 6480, 732, 312},
    Row{"chkItems(4)", 13320, 6960, 732, 312},
    Row{"chkItems(5)", 13320, 7440, 732, 312},
    Row{"chkItems(6)", 14280, 5520, 732, 312},
    Row{"chkItems(7)", 14280, 6000, 732, 312},
    Row{"chkItems(8)", 14280, 6480, 732, 312},
    Row{"chkItems(9)", 14280, 6960, 732, 312},
    Row{"chkItems(10)", 14280, 7440, 732, 312},
    Row{"chkItems(11)", 13800, 7800, 732, 312},
    Row{"cmdDoneSel", 13320, 8160, 1695, 375},
    Row{"cmdAttack", 13320, 8880, 1695, 375},
    Row{"cmdMove", 13320, 9360, 1695, 375},
    Row{"lblStatus", 120, 9840, 8895, 495},
};

class Places : public GameWindow {
protected:
    // Makes the client area this large, which is `scale` times its design, in the middle.
    void Resize(QSize client, double scale) {
        scale_ = scale;
        window->resize(client + QSize(0, window->menuBar()->height()));
        QApplication::processEvents();
    }

    void ExpectAt(const std::string& name, const QRect& pixels, const Row& place,
                  double tolerance) {
        const double pixel = scale_ / 15;
        const double origin = (window->centralWidget()->width() - 15240 * pixel) / 2;
        const auto expect = [&](double is, double twips, const char* what) {
            EXPECT_NEAR(is, twips * pixel, tolerance) << what << " of " << name << " at " << scale_;
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
    Key(Qt::Key_I, Qt::AltModifier);
    struct Size {
        QSize client;
        double scale;
    };
    for (const Size& size : {Size{{1016, 696}, 1}, Size{{2032, 1392}, 2}, Size{{1270, 870}, 1.25},
                             Size{{1500, 696}, 1}}) {
        Resize(size.client, size.scale);
        for (const Row& row : rows) ExpectAt(row.name, PixelsOf(Find(row.name)), row, 0.51);
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
                ExpectAt("a square", square.translated(corner),
                         {"", 120 + 720 * (X - 1), 120 + 960 * (Y - 1), 735, 975}, 1.01);
            }
        }
        for (const Row& row :
             {Row{"5,5", 3730, 4930, 1575, 1215}, Row{"17,5", 10060, 4930, 1575, 1215},
              Row{"18,10", 10780, 7540, 1575, 1215}}) {
            int X = 0, Y = 0;
            std::sscanf(row.name, "%d,%d", &X, &Y);
            ClickSquare(X, Y);
            ExpectAt("the quick information", PixelsOf(Find("fraQuickDetails")), row, 0.51);
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
    struct Colors {
        QRgb back, text;
    };
    constexpr std::array<Colors, terrainKindCount> colors{{{0xFFFFFF, 0x000080},
                                                           {0x808000, 0xFFFF80},
                                                           {0x0000FF, 0xFFFFFF},
                                                           {0x00FFFF, 0x404000},
                                                           {0xFFFF00, 0x400000},
                                                           {0x404000, 0xFF8000},
                                                           {0x008000, 0x000080},
                                                           {0x800000, 0xFFE0C0},
                                                           {0xC00000, 0xFFFFFF}}};
    Open(
        "AM 1,1=0 2,1=1 3,1=2 4,1=3 5,1=4 6,1=5 7,1=6 8,1=7 9,1=8 PF@1,1 AS@2,1 PC@3,1 "
        "SE@4,1 AG@5,1 AP@6,1 SV@7,1 MS@8,1 FS@9,1 CL@17,5");
    const auto has = [](const QImage& picture, QRgb color) {
        for (int x = 0; x < picture.width(); ++x) {
            for (int y = 0; y < picture.height(); ++y) {
                if ((picture.pixel(x, y) & RGB_MASK) == color) return true;
            }
        }
        return false;
    };
    const QImage picture = Picture();
    EXPECT_EQ(picture.pixel(PlaceOfSquare(1, 1).topLeft()) & RGB_MASK, 0x404040u) << "a line";
    for (int code = 0; code < terrainKindCount; ++code) {
        const Colors& color = colors[static_cast<std::size_t>(code)];
        const QImage square = picture.copy(PlaceOfSquare(code + 1, 1));
        EXPECT_EQ(square.pixel(3, 3) & RGB_MASK, color.back) << code;
        EXPECT_TRUE(has(square, color.text)) << code;
        const QWidget* label = Find("lblTerrKey(" + std::to_string(code) + ")");
        const QImage key = picture.copy(QRect(label->mapTo(window.get(), QPoint()), label->size()));
        EXPECT_EQ(key.pixel(1, 1) & RGB_MASK, color.back) << code;
        EXPECT_TRUE(has(key, color.text)) << code;
    }
}

}  // namespace
}  // namespace qarn
