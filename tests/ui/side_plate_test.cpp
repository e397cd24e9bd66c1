#include "ui/side_plate.h"

#include <gtest/gtest.h>

#include "support/colors.h"

namespace qarn {
namespace {

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
