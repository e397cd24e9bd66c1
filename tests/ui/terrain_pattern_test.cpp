#include "ui/terrain_pattern.h"

#include <gtest/gtest.h>

#include "rules/terrain.h"
#include "support/colors.h"

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

}  // namespace
}  // namespace qarn
