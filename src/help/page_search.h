#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "help/help_file.h"

namespace qarn {

/// A page that holds all the words that were looked for.
struct FoundPage {
    QString name;
    QString title;
    QString excerpt;  ///< the place with the most of the words, and what stands around it
    qsizetype count = 0;
};

/// The words of what was typed into a search field.
QStringList WordsOf(const QString& typed);

/// Looks for words in all pages of a help file. A word is found inside longer words too, and case
/// does not count.
class PageSearch {
public:
    explicit PageSearch(const HelpFile& file);

    /// The pages that hold every one of the words: those with the words in their titles first, then
    /// those with the most places.
    QList<FoundPage> Find(const QStringList& words) const;

private:
    struct PageText {
        QString name;
        QString title;
        QString text;
    };
    QList<PageText> pages_;
};

}  // namespace qarn
