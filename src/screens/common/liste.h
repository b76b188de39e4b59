#pragma once
// The result lists of the screens sort by the text of their cells, a click on a head by that
// column and a second click the other way; a date column sorts instead by a column of
// progressive indices (often hidden), right-justified so that its text runs in time order.

#include <QStringList>
#include <QTreeWidget>
#include <QTreeWidgetItem>

namespace gorgo::screens {

// A row that compares by the key column its list names for the column being sorted.
class RigaLista : public QTreeWidgetItem {
public:
    using QTreeWidgetItem::QTreeWidgetItem;
    bool operator<(const QTreeWidgetItem& altra) const override;
};

// A click on the head of `colonna` of `lista` sorts its RigaLista rows by the text of `chiave`.
void OrdinaColonnaSecondo(QTreeWidget* lista, int colonna, int chiave);
// The column whose text sorts `colonna`: the one set above, or `colonna` itself.
int ColonnaDiOrdinamento(const QTreeWidget* lista, int colonna);

}  // namespace gorgo::screens
