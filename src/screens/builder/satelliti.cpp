#include "screens/builder/satelliti.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "builder/report.h"
#include "config/ini.h"
#include "screens/common/liste.h"
#include "screens/common/messaggi.h"
#include "screens/common/stampa.h"
#include "screens/common/stile.h"

namespace gorgo::screens {

namespace {

QFont FontFisso() {
    QFont f(QStringLiteral("Monospace"));
    f.setStyleHint(QFont::TypeWriter);
    return f;
}

QPushButton* Pulsante(QWidget* w, const char* nome, const QString& testo) {
    auto* b = new QPushButton(testo, w);
    b->setObjectName(nome);
    return b;
}

// Print, file and close at the foot of a report window; the caller connects the first two.
struct Piede {
    QPushButton *stampa, *file;
};
Piede AggiungiPiede(QWidget* w, QBoxLayout* l, const char* nomeStampa, const char* nomeFile) {
    auto* pulsanti = new QHBoxLayout;
    Piede p{Pulsante(w, nomeStampa, QStringLiteral("Stampa")), Pulsante(w, nomeFile, QStringLiteral("Su file"))};
    QPushButton* esci = Pulsante(w, "cmdEsci", QStringLiteral("Esci"));
    pulsanti->addWidget(p.stampa);
    pulsanti->addWidget(p.file);
    pulsanti->addStretch();
    pulsanti->addWidget(esci);
    l->addLayout(pulsanti);
    QObject::connect(esci, &QPushButton::clicked, w, &QWidget::close);
    return p;
}

}  // namespace

FrmReportGorgo::FrmReportGorgo(Sessione& sessione, QWidget* parent, const std::vector<std::string>& righe)
    : QWidget(parent, Qt::Window), sessione_(sessione) {
    setObjectName("frmReportGorgo");
    setWindowTitle(QStringLiteral("Riepilogo della tecnica selezionata"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* l = new QVBoxLayout(this);
    auto* lista = new QListWidget(this);
    lista->setObjectName("lstReport");
    lista->setFont(FontFisso());
    for (const std::string& r : righe) {
        lista->addItem(QString::fromStdString(r));
        righe_.push_back({r, false, false});
    }
    l->addWidget(lista);
    const auto [stampa, file] = AggiungiPiede(this, l, "cmdStampa", "cmdPrintToFile");
    connect(stampa, &QPushButton::clicked, this, [this] {
        OpzioniStampa o;
        StampaReport(this, righe_, o);
    });
    connect(file, &QPushButton::clicked, this, [this] {
        SalvaReportSuFile(this, sessione_, righe_, QStringLiteral("ReportGorgo"), DomandaFile::Sovrascrivi);
    });
    resize(640, 480);
    ApplicaStile(this, sessione_.ini);
}

FrmAlgoritmiCalcolati::FrmAlgoritmiCalcolati(Sessione& sessione, QWidget* parent, const builder::EsitoPrevisioni& esito,
                                             config::ReportTesto perStampa, config::ReportTesto perFile)
    : QWidget(parent, Qt::Window), sessione_(sessione), stampa_(std::move(perStampa)), file_(std::move(perFile)) {
    setObjectName("frmAlgoritmiCalcolati");
    setWindowTitle(QString::fromStdString(esito.titolo));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* l = new QVBoxLayout(this);
    auto* lista = new QTreeWidget(this);
    lista->setObjectName("lvConvergenze");
    lista->setRootIsDecorated(false);
    lista->setFont(FontFisso());
    lista->setHeaderLabels({QStringLiteral("Descrizione algoritmo"), QStringLiteral("Previsione"),
                            QStringLiteral("Rit."), QStringLiteral("R.Max"), QStringLiteral("Freq."),
                            QStringLiteral("I.C.")});
    for (const builder::RigaPrevisione& r : esito.righe)
        new QTreeWidgetItem(lista, {QString::fromStdString(r.descrizione), QString::fromStdString(r.previsione),
                                    QString::fromStdString(r.ritardo), QString::fromStdString(r.ritardoMax),
                                    QString::fromStdString(r.frequenza), QString::fromStdString(r.indiceConvenienza)});
    for (int c = 0; c < lista->columnCount(); ++c) lista->resizeColumnToContents(c);
    l->addWidget(lista);
    const auto [stampa, file] = AggiungiPiede(this, l, "cmdStampaAlgoritmi", "cmdPrintToFileAlgoritmi");
    connect(stampa, &QPushButton::clicked, this, [this] {
        OpzioniStampa o;
        o.titolo1 = QStringLiteral("Gorgo 2 - Ideato da Sergio Tordelli");
        o.titolo2 = windowTitle();
        StampaReport(this, stampa_.righe(), o);
    });
    connect(file, &QPushButton::clicked, this, [this] {
        SalvaReportSuFile(this, sessione_, file_.righe(), QStringLiteral("Calcolo_previsioni"), DomandaFile::InCalce);
    });
    resize(800, 400);
    ApplicaStile(this, sessione_.ini);
}

FrmListaSortite::FrmListaSortite(const config::FileIni& ini, QWidget* parent,
                                 const std::vector<builder::CasoSpia>& casi, const QString& testaSpia)
    : QWidget(parent, Qt::Window) {
    setObjectName("frmListaSortite");
    setWindowTitle(QStringLiteral("Dettaglio delle sortite"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* l = new QVBoxLayout(this);
    auto* descrizione = new QLabel(QString::fromStdString(builder::DescrizioneListaSortite(casi.size())), this);
    descrizione->setObjectName("lblDescrizione");
    l->addWidget(descrizione);
    auto* lista = new QTreeWidget(this);
    lista->setObjectName("lstVListaUscite");
    lista->setRootIsDecorated(false);
    lista->setSortingEnabled(true);
    lista->setFont(FontFisso());
    lista->setHeaderLabels({QStringLiteral("Data"), QStringLiteral("Ruota"), testaSpia, QStringLiteral("Pos."),
                            QStringLiteral("Ind.m."), QStringLiteral("Ind.a."), QStringLiteral("Progr.")});
    for (const builder::CasoSpia& c : casi) {
        QStringList colonne;
        for (const std::string& t : builder::ColonneListaSortite(c)) colonne << QString::fromStdString(t);
        new RigaLista(lista, colonne);
    }
    OrdinaColonnaSecondo(lista, 0, 6);  // the date by the progressive index
    lista->sortByColumn(6, Qt::DescendingOrder);
    l->addWidget(lista);
    QPushButton* esci = Pulsante(this, "cmdEsci", QStringLiteral("Esci"));
    l->addWidget(esci, 0, Qt::AlignRight);
    connect(esci, &QPushButton::clicked, this, &QWidget::close);
    resize(640, 480);
    ApplicaStile(this, ini);
}

}  // namespace gorgo::screens
