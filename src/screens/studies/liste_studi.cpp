#include "screens/studies/liste_studi.h"

#include <QHeaderView>

#include "screens/common/liste.h"
#include "screens/common/messaggi.h"
#include "screens/common/stile.h"

namespace gorgo::screens {

QTreeWidget* CreaListaStudi(QWidget* parent, const char* nome, const QStringList& intestazioni, bool ordinabile) {
    auto* l = new QTreeWidget(parent);
    l->setObjectName(nome);
    l->setRootIsDecorated(false);
    l->setUniformRowHeights(true);
    l->setAlternatingRowColors(false);
    l->setHeaderLabels(intestazioni);
    // Rows keep the engine's order until a head is clicked.
    l->header()->setSortIndicator(-1, Qt::AscendingOrder);
    l->setSortingEnabled(ordinabile);
    l->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    l->header()->setStretchLastSection(false);
    QFont f = l->font();
    f.setFamily(QStringLiteral("Courier New"));
    f.setStyleHint(QFont::Monospace);
    l->setFont(f);
    return l;
}

void RiempiListaStudi(QTreeWidget* lista, const std::vector<studies::Riga>& righe) {
    const bool ordinabile = lista->isSortingEnabled();
    lista->setSortingEnabled(false);
    lista->header()->setSortIndicator(-1, Qt::AscendingOrder);
    lista->clear();
    QList<QTreeWidgetItem*> items;
    items.reserve(static_cast<qsizetype>(righe.size()));
    for (const studies::Riga& r : righe) {
        QStringList testi;
        for (const studies::Cella& c : r.celle) testi << Q(c.testo);
        auto* it = new RigaLista(testi);
        it->setData(0, Qt::UserRole, Q(r.chiave));
        for (int k = 0; k < static_cast<int>(r.celle.size()); ++k) {
            const studies::Cella& c = r.celle[static_cast<size_t>(k)];
            const uint32_t colore = c.colore != studies::colori::Nessuno ? c.colore : r.colore;
            if (colore != studies::colori::Nessuno) it->setForeground(k, ColoreDaImpostazione(colore));
            if (c.grassetto || r.grassetto) {
                QFont f = lista->font();
                f.setBold(true);
                it->setFont(k, f);
            }
            if (k > 0) it->setTextAlignment(k, Qt::AlignRight | Qt::AlignVCenter);
        }
        items << it;
    }
    lista->addTopLevelItems(items);
    if (ordinabile) lista->setSortingEnabled(true);
}

QDateEdit* CreaDataEstrazione(QWidget* parent, const char* nome) {
    auto* d = new QDateEdit(parent);
    d->setObjectName(nome);
    d->setDisplayFormat("dd/MM/yyyy");
    d->setCalendarPopup(true);
    d->setMinimumDate(QDate(1871, 1, 1));
    return d;
}

void StampaStudio(QWidget* parent, const config::ReportTesto& r, bool vuoto, const OpzioniStampa& opzioni) {
    if (vuoto) {
        MostraMessaggio(parent, {std::string(config::NullaDaStampare), "", archives::Icona::Esclamazione});
        return;
    }
    StampaReport(parent, r.righe(), opzioni);
}

void SalvaStudio(QWidget* parent, Sessione& sessione, const config::ReportTesto& r, bool vuoto,
                 const QString& nomeProposto, DomandaFile domanda, const QString& filtro,
                 std::string_view vuotoMessaggio) {
    if (vuoto) {
        MostraMessaggio(parent, {std::string(vuotoMessaggio), "", archives::Icona::Esclamazione});
        return;
    }
    SalvaReportSuFile(parent, sessione, r.righe(), nomeProposto, domanda, filtro);
}

}  // namespace gorgo::screens
