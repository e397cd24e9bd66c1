#include "ui/scenario_picture.h"

#include <QPainter>

#include "rules/terrain.h"
#include "scenarios/setup.h"

namespace qarn {

QPixmap ScenarioPicture(int scenario, int square, qreal devicePixelRatio) {
    const ScenarioData& data = DataOfScenario(scenario);
    const QSize size(columnCount * square + 1, rowCount * square + 1);
    QPixmap picture(size * devicePixelRatio);
    picture.setDevicePixelRatio(devicePixelRatio);
    picture.fill(QColor(0x40, 0x40, 0x40));
    QPainter painter(&picture);
    for (int row = 0; row < rowCount; ++row) {
        for (int column = 0; column < columnCount; ++column) {
            const char code =
                data.Board[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
            const Color color = ColorsOfTerrain(static_cast<std::uint8_t>(code - '0')).BackColor;
            painter.fillRect(column * square + 1, row * square + 1, square - 1, square - 1,
                             QColor::fromRgb(color.rgb));
        }
    }
    return picture;
}

}  // namespace qarn
