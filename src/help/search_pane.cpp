#include "help/search_pane.h"

#include <QVBoxLayout>

#include "help/found_page_delegate.h"

namespace qarn {
namespace {

constexpr int nameRole = Qt::UserRole;

}  // namespace

SearchPane::SearchPane(const HelpFile& file, QWidget* parent)
    : QWidget(parent),
      file_(file),
      field_(new QLineEdit(this)),
      result_(new QLabel(this)),
      list_(new QListWidget(this)) {
    auto* prompt = new QLabel("&Look for:", this);
    prompt->setBuddy(field_);
    field_->setClearButtonEnabled(true);
    field_->setAccessibleDescription("Words that the pages have to hold");
    list_->setAccessibleName("Pages found");
    list_->setItemDelegate(new FoundPageDelegate(list_));
    list_->setResizeMode(QListView::Adjust);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    auto* layout = new QVBoxLayout(this);
    for (QWidget* widget : std::initializer_list<QWidget*>{prompt, field_, result_, list_}) {
        layout->addWidget(widget);
    }
    connect(field_, &QLineEdit::textChanged, this, &SearchPane::Search);
    connect(field_, &QLineEdit::returnPressed, this, [this] { Choose(list_->item(0)); });
    connect(list_, &QListWidget::itemClicked, this, &SearchPane::Choose);
    connect(list_, &QListWidget::itemActivated, this, &SearchPane::Choose);
    Search();
}

void SearchPane::FocusField() {
    field_->setFocus(Qt::ShortcutFocusReason);
    field_->selectAll();
}

void SearchPane::Search() {
    list_->clear();
    const QStringList words = WordsOf(field_->text());
    if (words.isEmpty()) {
        result_->setText("Type one word or more.");
        return;
    }
    if (!search_) search_ = std::make_unique<PageSearch>(file_);
    for (const FoundPage& page : search_->Find(words)) {
        auto* item = new QListWidgetItem(page.title + "\n" + page.excerpt, list_);
        item->setData(nameRole, page.name);
        item->setData(FoundPageDelegate::titleRole, page.title);
        item->setData(FoundPageDelegate::excerptRole, page.excerpt);
        item->setData(FoundPageDelegate::wordsRole, words);
    }
    const int count = list_->count();
    result_->setText(count == 0   ? "No page holds this."
                     : count == 1 ? "1 page"
                                  : QString::number(count) + " pages");
}

void SearchPane::Choose(const QListWidgetItem* item) {
    if (item == nullptr) return;
    emit PageChosen(item->data(nameRole).toString(), WordsOf(field_->text()));
}

}  // namespace qarn
