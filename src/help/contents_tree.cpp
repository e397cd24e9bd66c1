#include "help/contents_tree.h"

#include <QSignalBlocker>
#include <QTreeWidgetItemIterator>

namespace qarn {
namespace {

constexpr int topicRole = Qt::UserRole;

QTreeWidgetItem* ItemOf(const ContentsEntry& entry) {
    auto* item = new QTreeWidgetItem({QString::fromStdString(entry.title)});
    item->setData(0, topicRole, QString::fromStdString(entry.page));
    for (const ContentsEntry& below : entry.entries) item->addChild(ItemOf(below));
    return item;
}

}  // namespace

ContentsTree::ContentsTree(const HelpFile& file, QWidget* parent) : QTreeWidget(parent) {
    setHeaderHidden(true);
    setAccessibleName("Contents");
    setFrameShape(QFrame::NoFrame);
    for (const ContentsEntry& entry : file.Contents()) addTopLevelItem(ItemOf(entry));
    expandAll();
    connect(this, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* item) {
        const QString topic = item == nullptr ? QString() : item->data(0, topicRole).toString();
        if (!topic.isEmpty()) emit TopicChosen(topic);
    });
}

void ContentsTree::Select(const QString& pageName) {
    const auto isOfPage = [&](const QTreeWidgetItem* item) {
        const QString page = item->data(0, topicRole).toString().section('#', 0, 0);
        return page.compare(pageName, Qt::CaseInsensitive) == 0;
    };
    if (currentItem() != nullptr && isOfPage(currentItem())) return;
    const QSignalBlocker quiet(this);
    setCurrentItem(nullptr);
    for (QTreeWidgetItemIterator item(this); *item != nullptr; ++item) {
        if (!isOfPage(*item)) continue;
        setCurrentItem(*item);
        return;
    }
}

}  // namespace qarn
