#include "screens/consultation/frm_analisi.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "screens/common/messaggi.h"
#include "screens/common/stampa.h"
#include "screens/common/stile.h"
#include "screens/common/twips.h"
#include "screens/consultation/controlli.h"

namespace gorgo::screens {

using namespace consultazione;

FrmAnalisi::FrmAnalisi(Sessione& sessione, QWidget* parent) : QWidget(parent, Qt::Window), sessione_(sessione) {
    setObjectName("frmAnalisi");
    setWindowTitle(QStringLiteral("Analisi estrazioni"));
    auto* v = new QVBoxLayout(this);
    lstAnalisi_ = new QListWidget(this);
    lstAnalisi_->setObjectName("lstAnalisi");
    lstAnalisi_->setFont(FontReport(QStringLiteral("Courier New"), 10));
    v->addWidget(lstAnalisi_);
    auto* h = new QHBoxLayout;
    auto* stampa = Pulsante(this, "cmdStampa", QStringLiteral("Stampa"));
    auto* ok = Pulsante(this, "cmdOk", QStringLiteral("Ok"));
    connect(stampa, &QPushButton::clicked, this, &FrmAnalisi::Stampa);
    connect(ok, &QPushButton::clicked, this, &QWidget::close);
    h->addStretch();
    h->addWidget(stampa);
    h->addWidget(ok);
    v->addLayout(h);
    resize(520, 420);
    ApplicaStile(this, sessione_.ini);
    RipristinaPosizione(this, sessione_.ini, "AnalisiLeft", "AnalisiTop");
}

void FrmAnalisi::Mostra(const std::vector<std::string>& righe) {
    lstAnalisi_->clear();
    for (const auto& r : righe) lstAnalisi_->addItem(QString::fromStdString(r));
    show();
}

void FrmAnalisi::Stampa() {
    std::vector<config::RigaTesto> righe;
    for (int i = 0; i < lstAnalisi_->count(); ++i) righe.push_back({lstAnalisi_->item(i)->text().toStdString()});
    if (righe.empty()) {
        MostraMessaggio(this, {std::string(config::NullaDaStampare), "", archives::Icona::Esclamazione});
        return;
    }
    OpzioniStampa o;
    o.punti = 12;
    o.titolo1 = QStringLiteral("Gorgo - Analisi estrazioni");
    StampaReport(this, righe, o);
}

void FrmAnalisi::closeEvent(QCloseEvent* e) {
    SalvaPosizione(this, sessione_.ini, "AnalisiLeft", "AnalisiTop");
    e->accept();
}

}  // namespace gorgo::screens
