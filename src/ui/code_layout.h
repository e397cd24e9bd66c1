#pragma once

#include <QFont>
#include <QRectF>
#include <QStringList>
#include <vector>

namespace qarn {

/// The codes in the caption of a square, without their padding.
QStringList CodesOf(const QString& caption);

/// How the codes of one square stand in it.
struct CodeLayout {
    QFont font;
    std::vector<QRectF> cells;  ///< one a code, in the codes' order; text is centred in it
};

/// Lays the codes of one square out so that all of them can be read: bold and one below the other
/// while they are few, else in rows that are filled one after the other, in the largest size in
/// which these fit.
CodeLayout LayOutCodes(const QStringList& codes, const QRectF& square, QFont font);

}  // namespace qarn
