#include "screens/consultation/frm_dieci_estrazioni.h"

#include <fmt/format.h>

#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "screens/common/aiuto.h"
#include "screens/common/messaggi.h"
#include "screens/common/stampa.h"
#include "screens/common/stile.h"
#include "screens/common/twips.h"
#include "screens/consultation/controlli.h"

namespace gorgo::screens {

using namespace consultazione;
using consultation::ConsultazioneDieci;

FrmDieciEstrazioni::FrmDieciEstrazioni(Sessione& sessione, std::unique_ptr<ConsultazioneDieci> cursore,
                                       const char* nome, const QString& titolo, QWidget* parent)
    : QWidget(parent, Qt::Window), sessione_(sessione), cursore_(std::move(cursore)) {
    setObjectName(nome);
    setWindowTitle(titolo);
    setAttribute(Qt::WA_DeleteOnClose);
    setFocusPolicy(Qt::StrongFocus);
    const bool super = cursore_->gioco() == consultation::Gioco::SuperEnalotto;
    const int quanti = super ? 6 : 20;
    auto* v = new QVBoxLayout(this);
    auto* g = new QGridLayout;
    g->setSpacing(2);
    g->addWidget(new QLabel(QStringLiteral("N. Estraz."), this), 0, 0);
    g->addWidget(new QLabel(QStringLiteral("Data"), this), 0, 1);
    g->addWidget(new QLabel(super ? QStringLiteral("Sestina vincente") : QStringLiteral("Numeri estratti"), this), 0, 2,
                 1, quanti);
    if (super) {
        g->addWidget(new QLabel(QStringLiteral("Jolly"), this), 0, 2 + quanti);
        g->addWidget(new QLabel(QStringLiteral("SuperStar"), this), 0, 3 + quanti);
    }
    for (int r = 0; r < 10; ++r) {
        txtNumeroEstrazione_[static_cast<size_t>(r)] = Etichetta(this, QStringLiteral("txtNumeroEstrazione_%1").arg(r));
        lblData_[static_cast<size_t>(r)] = Etichetta(this, QStringLiteral("lblData_%1").arg(r));
        g->addWidget(txtNumeroEstrazione_[static_cast<size_t>(r)], r + 1, 0);
        g->addWidget(lblData_[static_cast<size_t>(r)], r + 1, 1);
        for (int k = 0; k < quanti; ++k) {
            auto* c = CasellaNumero(this, QStringLiteral("txtNumero_%1_%2").arg(r).arg(k), 28);
            numeri_[static_cast<size_t>(r)].push_back(c);
            g->addWidget(c, r + 1, 2 + k);
        }
        if (super) {
            jolly_[static_cast<size_t>(r)] = CasellaNumero(this, QStringLiteral("txtJolly_%1").arg(r), 28);
            superstar_[static_cast<size_t>(r)] = CasellaNumero(this, QStringLiteral("txtSuperStar_%1").arg(r), 28);
            g->addWidget(jolly_[static_cast<size_t>(r)], r + 1, 2 + quanti);
            g->addWidget(superstar_[static_cast<size_t>(r)], r + 1, 3 + quanti);
        }
    }
    v->addLayout(g);

    Slider1_ = new QSlider(Qt::Horizontal, this);
    Slider1_->setObjectName("Slider1");
    Slider1_->setToolTip(QStringLiteral("Slider numero estrazione"));
    Slider1_->setRange(std::min(1, cursore_->NumeroEstrazioni()), cursore_->NumeroEstrazioni());
    Slider1_->setPageStep(10);
    Slider1_->setFocusPolicy(Qt::NoFocus);
    connect(Slider1_, &QSlider::valueChanged, this, [this](int valore) {
        if (inAggiornamento_) return;
        cursore_->VaiA(valore);
        Aggiorna();
    });
    v->addWidget(Slider1_);

    auto* mosse = new QHBoxLayout;
    auto* fastPrec =
        Pulsante(this, "cmdFastPrec", QStringLiteral("<<"), QStringLiteral("Indietro di 10-100 estrazioni"));
    auto* prec = Pulsante(this, "cmdPrecedente", QStringLiteral("< Precedente"), QStringLiteral("- 1 Estrazione"));
    auto* succ = Pulsante(this, "cmdSuccessiva", QStringLiteral("Successiva >"), QStringLiteral("+ 1 Estrazione"));
    auto* fastSucc = Pulsante(this, "cmdFastSucc", QStringLiteral(">>"), QStringLiteral("Avanti di 10-100 estrazioni"));
    cboSalto_ = new QComboBox(this);
    cboSalto_->setObjectName("cboSalto");
    cboSalto_->setToolTip(QStringLiteral("Salto estrazioni"));
    cboSalto_->setFocusPolicy(Qt::NoFocus);
    for (int s = 10; s <= 100; s += 10) cboSalto_->addItem(QString::number(s));
    connect(cboSalto_, &QComboBox::currentIndexChanged, this, [this](int i) {
        cursore_->Salto = (i + 1) * 10;
        Slider1_->setPageStep(cursore_->Salto);
    });
    connect(fastPrec, &QPushButton::clicked, this, [this] { Muovi(&ConsultazioneDieci::IndietroVeloce); });
    connect(prec, &QPushButton::clicked, this, [this] { Muovi(&ConsultazioneDieci::Precedente); });
    connect(succ, &QPushButton::clicked, this, [this] { Muovi(&ConsultazioneDieci::Successiva); });
    connect(fastSucc, &QPushButton::clicked, this, [this] { Muovi(&ConsultazioneDieci::AvantiVeloce); });
    for (QWidget* c : std::initializer_list<QWidget*>{fastPrec, prec, succ, fastSucc, cboSalto_}) mosse->addWidget(c);
    v->addLayout(mosse);

    auto* fam = new QGridLayout;
    const std::pair<int, const char*> formazioni[] = {{consultation::DieciGemelli, "Gemelli"},
                                                      {consultation::DieciRadicali, "Radicali"},
                                                      {consultation::DieciDecinaNaturale, "Decine"},
                                                      {consultation::DieciCadenza, "Cadenze"},
                                                      {consultation::DieciFigura, "Figure"}};
    for (int i = 0; i < 5; ++i) {
        auto* b = Pulsante(this, QStringLiteral("cmdFormazione_%1").arg(i), QString::fromUtf8(formazioni[i].second));
        const int codice = formazioni[i].first;
        connect(b, &QPushButton::clicked, this, [this, codice] { ScegliFamiglia(codice); });
        fam->addWidget(b, 0, i);
    }
    std::vector<std::pair<int, const char*>> analisi = {{consultation::DieciPari, "Numeri pari"},
                                                        {consultation::DieciDispari, "Numeri dispari"}};
    if (!super) {
        analisi.push_back({consultation::DieciSortitiPrecedente, "Sortiti estraz. precedente"});
        analisi.push_back({consultation::DieciNonSortitiPrecedente, "Non sortiti estraz. preced."});
    }
    for (size_t i = 0; i < analisi.size(); ++i) {
        auto* b = Pulsante(this, QStringLiteral("cmdAnalisi_%1").arg(i), QString::fromUtf8(analisi[i].second));
        const int codice = analisi[i].first;
        connect(b, &QPushButton::clicked, this, [this, codice] { ScegliFamiglia(codice); });
        fam->addWidget(b, 1, static_cast<int>(i));
    }
    auto* cifre = new QHBoxLayout;
    for (int c = 0; c < 10; ++c) {
        cmdNumero_[static_cast<size_t>(c)] = Pulsante(this, QStringLiteral("cmdNumero_%1").arg(c), QString::number(c));
        cmdNumero_[static_cast<size_t>(c)]->setMaximumWidth(28);
        cmdNumero_[static_cast<size_t>(c)]->setEnabled(false);
        connect(cmdNumero_[static_cast<size_t>(c)], &QPushButton::clicked, this, [this, c] {
            cursore_->NumeroFamiglia = c;
            Aggiorna();
        });
        cifre->addWidget(cmdNumero_[static_cast<size_t>(c)]);
    }
    fam->addLayout(cifre, 2, 0, 1, 5);
    lblDescrFamiglia_ = Etichetta(this, "lblDescrFamiglia", QStringLiteral("Nessuna selezione"));
    QFont f = lblDescrFamiglia_->font();
    f.setBold(true);
    lblDescrFamiglia_->setFont(f);
    fam->addWidget(lblDescrFamiglia_, 3, 0, 1, 3);
    auto* cancella = Pulsante(this, "cmdCancella", QStringLiteral("Cancella"));
    connect(cancella, &QPushButton::clicked, this, [this] { ScegliFamiglia(0); });
    fam->addWidget(cancella, 3, 3);
    v->addLayout(fam);

    auto* basso = new QHBoxLayout;
    auto* stampa = Pulsante(this, "cmdStampa", QStringLiteral("Stampa"));
    connect(stampa, &QPushButton::clicked, this, [this] {
        OpzioniStampa o;
        o.punti = 12;
        o.titolo1 = QString::fromStdString(cursore_->TitoloReport());
        StampaReport(this, RigheStampa(), o);
    });
    auto* help = Pulsante(this, "cmdHelp", QStringLiteral("?"));
    connect(help, &QPushButton::clicked, this, [this] { HelpContext(this, sessione_.ini, AiutoConsultazione); });
    auto* esci = Pulsante(this, "cmdEsci", QStringLiteral("Esci"));
    connect(esci, &QPushButton::clicked, this, &QWidget::close);
    basso->addStretch();
    for (QWidget* c : std::initializer_list<QWidget*>{stampa, help, esci}) basso->addWidget(c);
    v->addLayout(basso);

    ApplicaStile(this, sessione_.ini);
    // Both games keep one place.
    RipristinaPosizione(this, sessione_.ini, "Consulta10eLotto10Left", "Consulta10eLotto10Top");
    Aggiorna();
}

void FrmDieciEstrazioni::ScegliFamiglia(int codice) {
    cursore_->FamigliaScelta = codice;
    cursore_->NumeroFamiglia = -1;
    const auto cifre = ConsultazioneDieci::CifreAmmesse(codice);
    for (int c = 0; c < 10; ++c)
        cmdNumero_[static_cast<size_t>(c)]->setEnabled(std::find(cifre.begin(), cifre.end(), c) != cifre.end());
    Aggiorna();
}

void FrmDieciEstrazioni::Muovi(void (ConsultazioneDieci::*mossa)()) {
    ((*cursore_).*mossa)();
    Aggiorna();
}

void FrmDieciEstrazioni::keyPressEvent(QKeyEvent* e) {
    switch (e->key()) {
        case Qt::Key_Left:
        case Qt::Key_Up: Muovi(&ConsultazioneDieci::Precedente); break;
        case Qt::Key_Right:
        case Qt::Key_Down: Muovi(&ConsultazioneDieci::Successiva); break;
        case Qt::Key_PageUp: Muovi(&ConsultazioneDieci::IndietroVeloce); break;
        case Qt::Key_PageDown: Muovi(&ConsultazioneDieci::AvantiVeloce); break;
        default: QWidget::keyPressEvent(e);
    }
}

void FrmDieciEstrazioni::Aggiorna() {
    if (inAggiornamento_) return;
    inAggiornamento_ = true;
    elenco_ = cursore_->Aggiorna();
    const auto due = [](int n) { return n == 0 ? QString() : QStringLiteral("%1").arg(n, 2, 10, QLatin1Char('0')); };
    for (size_t r = 0; r < 10; ++r) {
        const consultation::RigaDieci& riga = elenco_.righe[r];
        txtNumeroEstrazione_[r]->setText(riga.indice ? QString::number(riga.indice) : QString());
        lblData_[r]->setText(QString::fromStdString(riga.data));
        for (size_t k = 0; k < numeri_[r].size(); ++k) {
            const bool c = k < riga.numeri.size();
            const bool m = c && riga.marcati[k];
            MostraCasella(numeri_[r][k], c ? due(riga.numeri[k]) : QString(),
                          m ? consultation::Marcatura.sfondo : consultation::SfondoNormale,
                          m ? consultation::Marcatura.testo : consultation::TestoNormale);
        }
        if (jolly_[r]) {
            MostraCasella(jolly_[r], due(riga.jolly), consultation::SfondoNormale, consultation::TestoNormale);
            MostraCasella(superstar_[r], due(riga.superstar), consultation::SfondoNormale, consultation::TestoNormale);
        }
    }
    lblDescrFamiglia_->setText(QString::fromStdString(elenco_.descrizione));
    Slider1_->setValue(cursore_->IndiceCorrente);
    inAggiornamento_ = false;
    for (const auto& m : elenco_.messaggi) MostraMessaggio(this, {m, "Errore", archives::Icona::Esclamazione});
}

std::vector<config::RigaTesto> FrmDieciEstrazioni::RigheStampa() const {
    std::vector<config::RigaTesto> r;
    for (auto& l : cursore_->Report(elenco_)) r.push_back({std::move(l)});
    return r;
}

void FrmDieciEstrazioni::closeEvent(QCloseEvent* e) {
    SalvaPosizione(this, sessione_.ini, "Consulta10eLotto10Left", "Consulta10eLotto10Top");
    e->accept();
}

}  // namespace gorgo::screens
