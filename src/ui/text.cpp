#include "ui/text.h"

namespace qarn {
namespace {

bool MarksAccessKey(const QString& text, qsizetype i) {
    const bool beginsWord = i == 0 || text[i - 1].isSpace();
    return text[i] == '&' && beginsWord && i + 1 < text.size() && text[i + 1].isLetter();
}

}  // namespace

QString ToQt(const std::string& text) { return QString::fromStdString(text).replace("\r\n", "\n"); }

QString ToLabelText(const std::string& text) {
    const QString marked = ToQt(text);
    QString label;
    for (qsizetype i = 0; i < marked.size(); ++i) {
        if (!MarksAccessKey(marked, i)) label += marked[i];
    }
    return label;
}

}  // namespace qarn
