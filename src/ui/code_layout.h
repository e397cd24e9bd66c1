#pragma once

#include <QFont>
#include <QRectF>
#include <QStringList>
#include <vector>

namespace qarn {

/// How the codes of one square stand in it.
struct CodeLayout {
    QFont font;
    std::vector<QRectF> cells;  ///< one a code, in the codes' order; text is centred in it
};

/// The room that one code takes, by the size of the font.
struct CodeRoom {
    double height = 1.1;
    double aside = 0;  ///< at its left and right
    double least = 0;  ///< the width of short codes

    double largestFont = 0.28;  ///< by the width of the square
};
inline constexpr CodeRoom plateRoom{.height = 1.2, .aside = 0.25, .least = 1.9};  ///< on a plate

/// Lays the codes of one square out so that all of them can be read: bold and one below the other
/// while they are few, else in rows that are filled one after the other, in the largest size in
/// which these fit.
CodeLayout LayOutCodes(const QStringList& codes, const QRectF& square, QFont font,
                       const CodeRoom& each = {});

}  // namespace qarn
