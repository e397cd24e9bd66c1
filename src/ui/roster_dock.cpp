#include "ui/roster_dock.h"

#include <QHeaderView>

#include "core/blanks.h"
#include "play/square_text.h"
#include "ui/contrast.h"
#include "ui/text.h"

namespace qarn {
namespace {

// What a glance is for stands first, where a narrow list shows it.
enum Column { Code, Mobility, Attack, Defense, Place, Name, Owner, columnsOfRoster };

constexpr int sortRole = Qt::UserRole;
constexpr int squareRole = Qt::UserRole + 1;
constexpr int afterAllSquares = 1000;

// Numbers are sorted as numbers, places column by column, and the lost behind all places.
class Item : public QTreeWidgetItem {
public:
    bool operator<(const QTreeWidgetItem& other) const override {
        const int column = treeWidget()->sortColumn();
        const QVariant key = data(column, sortRole);
        if (!key.isValid()) {
            return text(column).localeAwareCompare(other.text(column)) < 0;
        }
        return key.toInt() < other.data(column, sortRole).toInt();
    }
};

// Not every dark palette has a dark colour for every other row.
bool CanReadEveryOtherRow(const QPalette& palette) {
    constexpr double readable = 4.5;
    return ContrastOf(palette.color(QPalette::Text), palette.color(QPalette::AlternateBase)) >=
           readable;
}

void ShowNumber(QTreeWidgetItem& item, Column column, int number) {
    item.setText(column, QString::number(number));
    item.setData(column, sortRole, number);
    item.setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
}

void ShowOwner(QTreeWidgetItem& item, const GameRecord& record, const PeopleRecord& people) {
    item.setText(Owner,
                 IsTransport(people) ? QString("Nobody") : ToQt(NameOfSide(record, people.Side)));
    item.setData(Owner, sortRole, IsTransport(people) ? 3 : int{people.Side});
}

void ShowPlace(QTreeWidgetItem& item, const PeopleRecord& people) {
    const QPoint square(people.LocationX, people.LocationY);
    const bool lost = !OnBoard(people);
    item.setText(Place,
                 lost ? QString("Lost") : QString("(%1, %2)").arg(square.x()).arg(square.y()));
    item.setData(Place, sortRole,
                 lost ? afterAllSquares : square.x() * (rowCount + 1) + square.y());
    item.setData(Place, squareRole, square);
    for (int column = 0; column < columnsOfRoster; ++column) {
        QFont font = item.font(column);
        font.setStrikeOut(lost && column == Name);
        item.setFont(column, font);
    }
}

}  // namespace

RosterDock::RosterDock() : SideDock("dckRoster", "Roster", new QTreeWidget) {
    list_ = static_cast<QTreeWidget*>(widget());
    list_->setObjectName("lstRoster");
    list_->setAccessibleName("Roster");
    list_->setRootIsDecorated(false);
    list_->setIndentation(0);
    list_->setUniformRowHeights(true);
    list_->setAllColumnsShowFocus(true);
    list_->setHeaderLabels({"Code", "Mob.", "Att.", "Def.", "Place", "Name", "Side"});
    const char* const whole[] = {"Code", "Mobility", "Attack", "Defense", "Place", "Name", "Side"};
    for (int column = 0; column < columnsOfRoster; ++column) {
        list_->headerItem()->setToolTip(column, whole[column]);
    }
    for (const Column number : {Mobility, Attack, Defense}) {
        list_->headerItem()->setTextAlignment(number, Qt::AlignRight | Qt::AlignVCenter);
    }
    list_->header()->setStretchLastSection(false);
    list_->setSortingEnabled(true);
    list_->sortByColumn(Owner, Qt::AscendingOrder);
    connect(list_->header(), &QHeaderView::sortIndicatorChanged, list_,
            &QTreeWidget::resizeColumnToContents);
    connect(list_, &QTreeWidget::itemClicked, this, &RosterDock::GoTo);
    connect(list_, &QTreeWidget::itemActivated, this, &RosterDock::GoTo);
}

void RosterDock::Show(const GameRecord& record) {
    list_->setAlternatingRowColors(CanReadEveryOtherRow(list_->palette()));
    const bool first = items_[1] == nullptr;
    list_->setSortingEnabled(false);  // until all is there
    for (std::size_t i = 1; i <= peopleCount; ++i) {
        const PeopleRecord& people = record.People[i];
        if (first) list_->addTopLevelItem(items_[i] = new Item);
        QTreeWidgetItem& item = *items_[i];
        item.setText(Code, ToQt(WithoutBlanks(people.Code)));
        item.setText(Name, ToQt(people.Name));
        ShowOwner(item, record, people);
        ShowNumber(item, Mobility, people.Mobility);
        ShowNumber(item, Attack, people.Attack);
        ShowNumber(item, Defense, people.Defense);
        ShowPlace(item, people);
    }
    list_->setSortingEnabled(true);
    if (first) FitColumns();
}

// Only the sorted column has room for the mark of the order: a narrow list shows the places too.
void RosterDock::FitColumns() {
    list_->header()->setSortIndicatorShown(false);
    for (int column = 0; column < columnsOfRoster; ++column) list_->resizeColumnToContents(column);
    list_->header()->setSortIndicatorShown(true);
    list_->resizeColumnToContents(list_->sortColumn());
}

void RosterDock::GoTo(const QTreeWidgetItem* item) {
    const QPoint square = item->data(Place, squareRole).toPoint();
    if (!square.isNull()) emit SquareWanted(square);
}

}  // namespace qarn
