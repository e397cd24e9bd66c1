#include "help_pages/board_picture.h"

#include <QPainter>
#include <vector>

#include "rules/terrain.h"
#include "ui/color.h"
#include "ui/side_plate.h"

namespace qarn {
namespace {

constexpr int squareWidth = 38;
constexpr int squareHeight = 48;
constexpr int border = 18;  // holds the numbers
constexpr int thumbnailWidth = 8;
constexpr int thumbnailHeight = 10;
constexpr int chipHeight = 12;
constexpr int chipsInColumn = 4;
constexpr QColor grid{0x60, 0x60, 0x60};
constexpr QColor numbers{0x55, 0x55, 0x55};

QColor BackColor(std::uint8_t code) { return ToQt(ColorsOfTerrain(code).BackColor); }

std::uint8_t TerrainAt(const ScenarioData& data, int X, int Y) {
    const char digit = data.Board[static_cast<std::size_t>(Y) - 1][static_cast<std::size_t>(X) - 1];
    return static_cast<std::uint8_t>(digit - '0');
}

QImage Blank(QSize size, int ratio) {
    QImage image(size * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    return image;
}

QFont PictureFont(double pixels, bool bold) {
    QFont font("DejaVu Sans");
    font.setPixelSize(static_cast<int>(pixels));
    font.setBold(bold);
    return font;
}

void DrawSquares(QPainter& painter, const ScenarioData& data, QRect corner) {
    for (int X = 1; X <= columnCount; ++X) {
        for (int Y = 1; Y <= rowCount; ++Y) {
            const QRect square =
                corner.translated((X - 1) * corner.width(), (Y - 1) * corner.height());
            painter.fillRect(square, BackColor(TerrainAt(data, X, Y)));
            painter.setPen(grid);
            painter.drawRect(square);
        }
    }
}

void DrawNumbers(QPainter& painter) {
    painter.setPen(numbers);
    painter.setFont(PictureFont(10, false));
    for (int X = 1; X <= columnCount; ++X) {
        painter.drawText(QRect(border + (X - 1) * squareWidth, 0, squareWidth, border),
                         Qt::AlignCenter, QString::number(X));
    }
    for (int Y = 1; Y <= rowCount; ++Y) {
        painter.drawText(QRect(0, border + (Y - 1) * squareHeight, border, squareHeight),
                         Qt::AlignCenter, QString::number(Y));
    }
}

void PaintChip(QPainter& painter, QRect place, std::uint8_t side, const QString& code,
               bool narrow) {
    painter.setFont(PictureFont(narrow ? 7 : 9, true));
    PaintPlate(painter, place, side, code);
}

// One below the other; more than a column holds stand in two.
void DrawChips(QPainter& painter, QRect square, const std::vector<const RosterEntry*>& entries) {
    const int count = static_cast<int>(entries.size());
    const bool narrow = count > chipsInColumn;
    const int rows = narrow ? (count + 1) / 2 : count;
    const int width = narrow ? squareWidth / 2 - 1 : 30;
    const int left = narrow ? square.left() + 1 : square.center().x() - width / 2 + 1;
    const int top = square.top() + (squareHeight - rows * chipHeight) / 2 + 1;
    for (int i = 0; i < count; ++i) {
        const QRect place(left + i / rows * width, top + i % rows * chipHeight, width,
                          chipHeight - 1);
        const RosterEntry& entry = *entries[static_cast<std::size_t>(i)];
        const std::string code(entry.Code.Text());
        PaintChip(painter, place, entry.Side, QString::fromStdString(code), narrow);
    }
}

}  // namespace

QImage DrawBoard(const ScenarioData& data, int ratio) {
    QImage image = Blank(
        QSize(border + columnCount * squareWidth + 1, border + rowCount * squareHeight + 1), ratio);
    QPainter painter(&image);
    const QRect corner(border, border, squareWidth, squareHeight);
    DrawSquares(painter, data, corner);
    DrawNumbers(painter);
    for (int X = 1; X <= columnCount; ++X) {
        for (int Y = 1; Y <= rowCount; ++Y) {
            std::vector<const RosterEntry*> there;
            for (const RosterEntry& entry : data.Roster) {
                if (entry.LocationX == X && entry.LocationY == Y) there.push_back(&entry);
            }
            DrawChips(painter, corner.translated((X - 1) * squareWidth, (Y - 1) * squareHeight),
                      there);
        }
    }
    return image;
}

QImage DrawThumbnail(const ScenarioData& data, int ratio) {
    QImage image =
        Blank(QSize(columnCount * thumbnailWidth + 1, rowCount * thumbnailHeight + 1), ratio);
    QPainter painter(&image);
    DrawSquares(painter, data, QRect(0, 0, thumbnailWidth, thumbnailHeight));
    return image;
}

QImage DrawChip(std::uint8_t side, const QString& code, int ratio) {
    QImage image = Blank(QSize(32, chipHeight + 2), ratio);
    QPainter painter(&image);
    PaintChip(painter, QRect(1, 1, 30, chipHeight - 1), side, code, false);
    return image;
}

}  // namespace qarn
