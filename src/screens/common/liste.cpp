#include "screens/common/liste.h"

#include <QVariant>

namespace gorgo::screens {

namespace {

QByteArray Proprieta(int colonna) { return "gorgo_ordina_" + QByteArray::number(colonna); }

}  // namespace

void OrdinaColonnaSecondo(QTreeWidget* lista, int colonna, int chiave) {
    lista->setProperty(Proprieta(colonna).constData(), chiave);
}

int ColonnaDiOrdinamento(const QTreeWidget* lista, int colonna) {
    if (!lista) return colonna;
    const QVariant v = lista->property(Proprieta(colonna).constData());
    return v.isValid() ? v.toInt() : colonna;
}

bool RigaLista::operator<(const QTreeWidgetItem& altra) const {
    const QTreeWidget* lista = treeWidget();
    const int colonna = lista ? lista->sortColumn() : 0;
    const int chiave = ColonnaDiOrdinamento(lista, colonna);
    if (chiave == colonna) return QTreeWidgetItem::operator<(altra);
    return text(chiave) < altra.text(chiave);
}

}  // namespace gorgo::screens
