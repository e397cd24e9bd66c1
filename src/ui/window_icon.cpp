#include "ui/window_icon.h"

#include <QPainter>
#include <array>

#include "rules/terrain.h"
#include "ui/color.h"

namespace qarn {

QIcon WindowIcon() {
    constexpr int squares = 3;
    constexpr int side = 20;
    constexpr int frame = 2;
    constexpr std::array<std::uint8_t, squares * squares> codes{
        Forest, Plain, Ocean, Plain, Fortress, Stream, Sand, Mountain, Abbey};

    QPixmap picture(squares * side + 2 * frame, squares * side + 2 * frame);
    picture.fill(QColor(0x20, 0x20, 0x20));
    QPainter painter(&picture);
    for (int i = 0; i < squares * squares; ++i) {
        const Color color = ColorsOfTerrain(codes[static_cast<std::size_t>(i)]).BackColor;
        painter.fillRect(frame + i % squares * side + 1, frame + i / squares * side + 1, side - 2,
                         side - 2, ToQt(color));
    }
    return picture;
}

}  // namespace qarn
