#include <gtest/gtest.h>

#include "rules/terrain.h"
#include "support/colors.h"
#include "ui/side_plate.h"
#include "ui/terrain_pattern.h"

namespace qarn {
namespace {

constexpr QSize square(54, 72);
constexpr int cell = square.width() / 3;

QImage PictureOf(std::uint8_t code) {
    QImage picture(square, QImage::Format_RGB32);
    picture.fill(ColorsOfTerrain(code).BackColor.rgb);
    QPainter painter(&picture);
    PaintTerrainPattern(painter, picture.rect(), code, cell);
    painter.end();
    return picture;
}

// The marks of a terrain as somebody sees them.
struct Marks {
    std::vector<bool> there;  // by pixels, row by row
    double contrast = 1;      // to the ground, of what can be seen best
};

Marks Seen(const Blindness& blindness, std::uint8_t code) {
    const QImage picture = PictureOf(code);
    const Light ground = SeenBy(blindness, ColorsOfTerrain(code).BackColor.rgb);
    Marks marks;
    for (int i = 0; i < square.width() * square.height(); ++i) {
        const QRgb pixel = picture.pixel(i % square.width(), i / square.width());
        const double contrast = Contrast(SeenBy(blindness, pixel), ground);
        marks.there.push_back(contrast > 1.25);
        marks.contrast = std::max(marks.contrast, contrast);
    }
    return marks;
}

// The part of the pixels in which two patterns differ however one lays one on the other.
double LeastDifference(const Marks& a, const Marks& b) {
    const int width = square.width(), height = square.height();
    int least = width * height;
    for (int dx = 0; dx < cell; dx += 2) {
        for (int dy = 0; dy < 2 * cell; dy += 2) {
            int difference = 0;
            for (int i = 0; i < width * height; ++i) {
                const int x = (i % width + dx) % width, y = (i / width + dy) % height;
                difference += a.there[static_cast<std::size_t>(i)] !=
                              b.there[static_cast<std::size_t>(y * width + x)];
            }
            least = std::min(least, difference);
        }
    }
    return double(least) / (width * height);
}

TEST(TerrainPattern, TellsEachPairApartWithoutColours) {
    for (const Blindness& blindness : {withoutRed, withoutGreen, withoutBlue}) {
        std::vector<Marks> all;
        for (std::uint8_t code = 0; code < terrainKindCount; ++code) {
            all.push_back(Seen(blindness, code));
            EXPECT_GE(all.back().contrast, 1.5) << int{code};
            for (std::size_t other = 0; other < code; ++other) {
                EXPECT_GE(LeastDifference(all[other], all.back()), 0.03) << other << int{code};
            }
        }
    }
}

// The strokes do not get into the way of the codes.
TEST(TerrainPattern, LeavesTheCodesReadable) {
    for (std::uint8_t code = 0; code < terrainKindCount; ++code) {
        const TerrainColors colors = ColorsOfTerrain(code);
        const double onGround = Contrast(colors.ForeColor.rgb, colors.BackColor.rgb);
        const QImage picture = PictureOf(code);
        double least = 21;
        for (int i = 0; i < square.width() * square.height(); ++i) {
            const QRgb pixel = picture.pixel(i % square.width(), i / square.width());
            least = std::min(least, Contrast(colors.ForeColor.rgb, pixel));
        }
        EXPECT_GE(least, std::min(onGround, 4.5) - 0.01) << int{code};
    }
}

// ---- Plates of the sides ----

constexpr QRgb ground = 0xFF00FF00;  // of no plate

QImage PictureOfPlate(std::uint8_t side, const QString& code) {
    QImage picture(60, 30, QImage::Format_RGB32);
    picture.fill(ground);
    QPainter painter(&picture);
    QFont font = painter.font();
    font.setPixelSize(18);
    font.setBold(true);
    painter.setFont(font);
    PaintPlate(painter, QRectF(5, 4, 50, 22), side, code);
    painter.end();
    return picture;
}

// Which pixels the plate covers, for its shape.
std::vector<bool> ShapeOf(const QImage& plate) {
    std::vector<bool> shape;
    for (int i = 0; i < plate.width() * plate.height(); ++i) {
        shape.push_back(plate.pixel(i % plate.width(), i / plate.width()) != ground);
    }
    return shape;
}

TEST(SidePlate, CanBeReadAndToldFromTheOthers) {
    constexpr QPoint beside(13, 15);  // the code
    std::vector<QRgb> fills;
    std::vector<std::vector<bool>> shapes;
    for (std::uint8_t side = 0; side <= 2; ++side) {
        const QImage plate = PictureOfPlate(side, QString(QChar(0x2588)));  // a full block
        fills.push_back(plate.pixel(beside));
        shapes.push_back(ShapeOf(plate));
        EXPECT_GE(Contrast(plate.pixel(plate.rect().center()), fills.back()), 7) << int{side};
        for (std::uint8_t other = 0; other < side; ++other) {
            EXPECT_NE(shapes[other], shapes[side]) << int{other} << int{side};
            EXPECT_GE(Contrast(fills[other], fills[side]), 1.5) << int{other} << int{side};
        }
    }
}

}  // namespace
}  // namespace qarn
