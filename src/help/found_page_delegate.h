#pragma once

#include <QStyledItemDelegate>

namespace qarn {

/// Shows a page that was found: its title, and below it the excerpt with the words marked.
class FoundPageDelegate : public QStyledItemDelegate {
public:
    static constexpr int titleRole = Qt::UserRole + 1;
    static constexpr int excerptRole = Qt::UserRole + 2;
    static constexpr int wordsRole = Qt::UserRole + 3;

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace qarn
