#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QWidget>
#include <memory>

#include "help/page_search.h"

namespace qarn {

/// The field to type words into and the list of the pages that hold them. The list follows the
/// typing.
class SearchPane : public QWidget {
    Q_OBJECT

public:
    /// `file` must outlive the pane.
    SearchPane(const HelpFile& file, QWidget* parent);

    /// Gives the focus to the field, with its text selected.
    void FocusField();

signals:
    /// A page was chosen from the list.
    void PageChosen(const QString& name, const QStringList& words);

private:
    void Search();
    void Choose(const QListWidgetItem* item);

    const HelpFile& file_;
    std::unique_ptr<PageSearch> search_;  // reads all pages: made when first needed
    QLineEdit* field_;
    QLabel* result_;
    QListWidget* list_;
};

}  // namespace qarn
