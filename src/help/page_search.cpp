#include "help/page_search.h"

#include <QTextDocument>
#include <algorithm>

#include "help/topic.h"

namespace qarn {
namespace {

constexpr qsizetype excerptBefore = 30;
constexpr qsizetype excerptLength = 90;

bool HoldsAll(const QString& text, const QStringList& words) {
    return std::all_of(words.begin(), words.end(), [&](const QString& word) {
        return text.contains(word, Qt::CaseInsensitive);
    });
}

qsizetype CountOf(const QString& text, const QStringList& words) {
    qsizetype count = 0;
    for (const QString& word : words) count += text.count(word, Qt::CaseInsensitive);
    return count;
}

// The place from which an excerpt shows the most of the words.
qsizetype BestPlace(const QString& text, const QStringList& words) {
    qsizetype best = 0;
    qsizetype mostWords = 0;
    for (const QString& word : words) {
        for (qsizetype at = text.indexOf(word, 0, Qt::CaseInsensitive); at >= 0;
             at = text.indexOf(word, at + 1, Qt::CaseInsensitive)) {
            const QString around = text.mid(at, excerptLength - excerptBefore);
            const qsizetype held = std::count_if(words.begin(), words.end(), [&](const auto& w) {
                return around.contains(w, Qt::CaseInsensitive);
            });
            if (held <= mostWords) continue;
            mostWords = held;
            best = at;
        }
    }
    return best;
}

// Begins and ends at blanks, so that no word is cut.
QString ExcerptAt(const QString& text, qsizetype place) {
    qsizetype begin = text.indexOf(' ', std::max<qsizetype>(0, place - excerptBefore));
    if (place <= excerptBefore || begin < 0 || begin > place) begin = 0;
    qsizetype end = begin + excerptLength;
    if (end < text.size()) end = std::max(text.lastIndexOf(' ', end), place);
    const QString excerpt = text.mid(begin, end - begin).trimmed();
    return (begin > 0 ? QStringLiteral("... ") : QString()) + excerpt +
           (end < text.size() ? QStringLiteral(" ...") : QString());
}

}  // namespace

QStringList WordsOf(const QString& typed) {
    return typed.simplified().split(' ', Qt::SkipEmptyParts);
}

PageSearch::PageSearch(const HelpFile& file) {
    for (const std::string& name : file.PageNames()) {
        QTextDocument page;
        page.setHtml(ReadPage(file, QString::fromStdString(name)));
        pages_.append({QString::fromStdString(name),
                       page.metaInformation(QTextDocument::DocumentTitle),
                       page.toPlainText().simplified()});
    }
}

QList<FoundPage> PageSearch::Find(const QStringList& words) const {
    QList<FoundPage> found;
    if (words.isEmpty()) return found;
    for (const PageText& page : pages_) {
        if (!HoldsAll(page.text, words)) continue;
        found.append({page.name, page.title, ExcerptAt(page.text, BestPlace(page.text, words)),
                      CountOf(page.text, words)});
    }
    std::stable_sort(found.begin(), found.end(), [&](const FoundPage& a, const FoundPage& b) {
        const bool inTitleOfA = HoldsAll(a.title, words);
        const bool inTitleOfB = HoldsAll(b.title, words);
        return inTitleOfA != inTitleOfB ? inTitleOfA : a.count > b.count;
    });
    return found;
}

}  // namespace qarn
