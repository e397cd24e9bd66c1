#include "ui/paint_codes.h"

#include <QtMath>

#include "ui/code_layout.h"
#include "ui/contrast.h"
#include "ui/side_plate.h"
#include "ui/text.h"

namespace qarn {
namespace {

constexpr double largeFont = 0.4;      // by the width of the square
constexpr double readable = 4.5;       // the contrast that texts should have
constexpr double haloWidth = 0.16;     // by the size of the font, on each side
constexpr double narrowestHalo = 1.5;  // pixels
constexpr int haloDirections = 16;

QStringList TextsOf(const std::vector<SquareCode>& codes) {
    QStringList texts;
    for (const SquareCode& code : codes) texts << ToQt(code.text);
    return texts;
}

CodeRoom RoomOf(const CodeLook& look) {
    CodeRoom room = look.plates ? plateRoom : CodeRoom();
    if (look.large) room.largestFont = largeFont;
    return room;
}

// A rim around the letters that they stand out from: the letters themselves, all around.
void PaintHalo(QPainter& painter, const QRectF& cell, const QString& text, const QColor& color) {
    const double width = std::max(narrowestHalo, painter.font().pixelSize() * haloWidth);
    painter.setPen(color);
    for (const double radius : {width / 2, width}) {
        for (int i = 0; i < haloDirections; ++i) {
            const double angle = 2 * M_PI * i / haloDirections;
            painter.drawText(cell.translated(radius * qSin(angle), radius * qCos(angle)),
                             Qt::AlignCenter | Qt::TextDontClip, text);
        }
    }
}

void PaintBareCode(QPainter& painter, const QRectF& cell, const QString& text,
                   const CodeLook& look) {
    if (look.large && ContrastOf(look.ink, look.ground) < readable) {
        PaintHalo(painter, cell, text, StandingOutFrom(look.ink));
    }
    painter.setPen(look.ink);
    painter.drawText(cell, Qt::AlignCenter | Qt::TextDontClip, text);
}

}  // namespace

void PaintCodes(QPainter& painter, const QRectF& square, const std::vector<SquareCode>& codes,
                const QFont& font, const CodeLook& look) {
    if (codes.empty()) return;
    const QStringList texts = TextsOf(codes);
    const CodeLayout layout = LayOutCodes(texts, square, font, RoomOf(look));
    painter.save();
    painter.setFont(layout.font);
    for (std::size_t i = 0; i < codes.size(); ++i) {
        const QString& text = texts[static_cast<qsizetype>(i)];
        if (look.plates) {
            PaintPlate(painter, layout.cells[i], codes[i].side, text);
        } else {
            PaintBareCode(painter, layout.cells[i], text, look);
        }
    }
    painter.restore();
}

}  // namespace qarn
