#include "help/found_page_delegate.h"

#include <QAbstractItemView>
#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QPainter>
#include <QRegularExpression>
#include <QTextDocument>

namespace qarn {
namespace {

QString WithWordsBold(const QString& text, const QStringList& words) {
    QStringList patterns;
    for (const QString& word : words) {
        patterns.append(QRegularExpression::escape(word.toHtmlEscaped()));
    }
    const QRegularExpression anyWord("(" + patterns.join('|') + ")",
                                     QRegularExpression::CaseInsensitiveOption);
    return text.toHtmlEscaped().replace(anyWord, "<b>\\1</b>");
}

void LayOut(QTextDocument& document, const QStyleOptionViewItem& option, const QModelIndex& index) {
    document.setDefaultFont(option.font);
    document.setHtml("<b>" + index.data(FoundPageDelegate::titleRole).toString().toHtmlEscaped() +
                     "</b><br>" +
                     WithWordsBold(index.data(FoundPageDelegate::excerptRole).toString(),
                                   index.data(FoundPageDelegate::wordsRole).toStringList()));
    const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
    if (view != nullptr) document.setTextWidth(view->viewport()->width());
}

}  // namespace

void FoundPageDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const {
    QStyleOptionViewItem background = option;
    initStyleOption(&background, index);
    background.text.clear();
    QApplication::style()->drawControl(QStyle::CE_ItemViewItem, &background, painter,
                                       option.widget);

    QTextDocument document;
    LayOut(document, option, index);
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette = option.palette;
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    context.palette.setColor(
        QPalette::Text,
        option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    painter->save();
    painter->translate(option.rect.topLeft());
    document.documentLayout()->draw(painter, context);
    painter->restore();
}

QSize FoundPageDelegate::sizeHint(const QStyleOptionViewItem& option,
                                  const QModelIndex& index) const {
    QTextDocument document;
    LayOut(document, option, index);
    return document.size().toSize();
}

}  // namespace qarn
