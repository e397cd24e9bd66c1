#include "ui/paint_codes.h"

#include "ui/code_layout.h"
#include "ui/side_plate.h"
#include "ui/text.h"

namespace qarn {
namespace {

QStringList TextsOf(const std::vector<SquareCode>& codes) {
    QStringList texts;
    for (const SquareCode& code : codes) texts << ToQt(code.text);
    return texts;
}

}  // namespace

void PaintCodes(QPainter& painter, const QRectF& square, const std::vector<SquareCode>& codes,
                const QFont& font, const CodeLook& look) {
    if (codes.empty()) return;
    const QStringList texts = TextsOf(codes);
    const CodeLayout layout =
        LayOutCodes(texts, square, font, look.plates ? plateRoom : CodeRoom());
    painter.save();
    painter.setFont(layout.font);
    painter.setPen(look.ink);
    for (std::size_t i = 0; i < codes.size(); ++i) {
        const QString& text = texts[static_cast<qsizetype>(i)];
        if (look.plates) {
            PaintPlate(painter, layout.cells[i], codes[i].side, text);
        } else {
            painter.drawText(layout.cells[i], Qt::AlignCenter | Qt::TextDontClip, text);
        }
    }
    painter.restore();
}

}  // namespace qarn
