// frmCostruttore's tools on the results: the coverage buttons and the automatic search of
// wheels with its frame and its window.

#include <QGridLayout>
#include <QMetaObject>
#include <algorithm>

#include "builder/automatica.h"
#include "builder/copertura.h"
#include "builder/report_copertura.h"
#include "screens/builder/fra_ricerca_automatica.h"
#include "screens/builder/frm_copertura.h"
#include "screens/builder/frm_copertura_ambi.h"
#include "screens/builder/frm_costruttore.h"
#include "screens/builder/frm_multi_ruota.h"
#include "screens/common/elaborazioni.h"
#include "screens/common/messaggi.h"
#include "screens/common/twips.h"

namespace gorgo::screens {

namespace {

QString Testo(std::string_view s) { return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size())); }

int Quante(const std::array<bool, 12>& caselle) {
    const auto r = builder::RuoteScelte(caselle);
    return static_cast<int>(std::count(r.begin() + 1, r.end(), true));
}

}  // namespace

void FrmCostruttore::CreaStrumenti(QGridLayout* comandi) {
    struct Pulsante {
        const char* nome;
        const char* testo;
        builder::TipoCopertura tipo;
    };
    static const Pulsante kCoperture[] = {
        {"cmdCoperturaTotale_0", "Copertura per ambata", builder::TipoCopertura::Ambata},
        {"cmdCoperturaTotale_1", "Copertura per 2 ambate", builder::TipoCopertura::DueAmbate},
        {"cmdCoperturaTotale_2", "Copertura per 3 ambate", builder::TipoCopertura::TreAmbate},
        {"cmdCoperturaTotaleAmbo", "Copertura per ambo", builder::TipoCopertura::Ambo},
        {"cmdCoperturaTotaleTerzine", "Copertura terzine", builder::TipoCopertura::Terzine},
        {"cmdCoperturaTotaleCodici", "Copertura totale codici", builder::TipoCopertura::Codici}};
    auto* riga = new QHBoxLayout;
    for (size_t i = 0; i < cmdCopertura_.size(); ++i) {
        auto* b = new QPushButton(QString::fromUtf8(kCoperture[i].testo), this);
        b->setObjectName(kCoperture[i].nome);
        const builder::TipoCopertura tipo = kCoperture[i].tipo;
        connect(b, &QPushButton::clicked, this, [this, tipo] { Copertura(tipo); });
        cmdCopertura_[i] = b;
        riga->addWidget(b);
    }
    cmdRicercaAutomatica_ = new QPushButton(QStringLiteral("Ricerca automatica ruote di ricerca/gioco"), this);
    cmdRicercaAutomatica_->setObjectName("cmdRicercaAutomatica");
    connect(cmdRicercaAutomatica_, &QPushButton::clicked, this, &FrmCostruttore::ApriRicercaAutomatica);
    riga->addStretch();
    comandi->addLayout(riga, 4, 0, 1, 4);
    comandi->addWidget(cmdRicercaAutomatica_, 3, 2, 1, 2);
    fraRicercaAutomatica_ = new FraRicercaAutomatica(this);
    fraRicercaAutomatica_->setVisible(false);
    comandi->addWidget(fraRicercaAutomatica_, 5, 0, 1, 4);
    connect(fraRicercaAutomatica_, &FraRicercaAutomatica::avvia, this, &FrmCostruttore::AvviaRicercaAutomatica);
    connect(fraRicercaAutomatica_, &FraRicercaAutomatica::annulla, this, [this] {
        if (automatica_) automatica_->Ferma();
    });
    // Any change of a wheel while the frame is open re-enables its choices.
    for (auto* b : chkRuota_)
        if (b) connect(b, &QCheckBox::toggled, this, &FrmCostruttore::AggiornaRicercaAutomatica);
    for (auto* b : chkRuotaG_)
        if (b) connect(b, &QCheckBox::toggled, this, &FrmCostruttore::AggiornaRicercaAutomatica);
}

void FrmCostruttore::AbilitaStrumenti(bool ambate, bool ambo, bool terzine, bool codici, bool fissa) {
    for (int i = 0; i < 3; ++i) cmdCopertura_[static_cast<size_t>(i)]->setVisible(ambate);
    cmdCopertura_[3]->setVisible(ambo);
    cmdCopertura_[4]->setVisible(terzine);
    cmdCopertura_[5]->setVisible(codici);
    // Coverage reads the cases of one spy value: a fixed spy only.
    for (auto* b : cmdCopertura_) b->setEnabled(fissa);
}

void FrmCostruttore::Copertura(builder::TipoCopertura tipo) {
    if (elaborazione_) return;
    // The rows in the order the list shows them, checked as the user left them.
    builder::EsitoRicerca e = EsitoComeLista();
    for (int i = 0; i < ListaRisultati_->topLevelItemCount() && i < static_cast<int>(e.righe.size()); ++i)
        e.righe[static_cast<size_t>(i)].selezionata = ListaRisultati_->topLevelItem(i)->checkState(0) == Qt::Checked;
    if (std::none_of(e.righe.begin(), e.righe.end(), [](const auto& r) { return r.selezionata; })) {
        MostraMessaggio(this,
                        {std::string(builder::NessunAlgoritmnoSelezionato), "Errore", archives::Icona::Esclamazione});
        return;
    }
    builder::ParametriRicerca p = parametriEsito_;
    p.colpi = txtColpi_->text().toInt();
    const bool ambata = static_cast<int>(tipo) <= static_cast<int>(builder::TipoCopertura::TreAmbate);
    auto esito = std::make_shared<builder::EsitoCopertura>();
    const builder::ContestoRicerca ctx = contesto_->Contesto();
    elaborazione_ = true;
    Elaborazione::Avvia(
        this, sessione_, ambata ? QString() : Testo(builder::AnalisiCoperture),
        [p, ctx, e, tipo, esito](std::stop_token stop, const Progresso&) {
            *esito = builder::CalcolaCopertura(p, ctx, e.casi, e.righe, tipo, stop);
        },
        [this, p, esito](bool fermato) {
            elaborazione_ = false;
            if (fermato || esito->fermata) return;  // a stop during the group search shows nothing
            const archives::StoriaLotto& s = *contesto_->storia;
            QWidget* w = nullptr;
            if (static_cast<int>(esito->tipo) <= static_cast<int>(builder::TipoCopertura::TreAmbate))
                w = new FrmCopertura(sessione_, this, *esito, builder::StampaCoperturaRighe(p, *esito, s),
                                     builder::ReportCopertura(p, *esito, s));
            else
                w = new FrmCoperturaAmbi(sessione_, this, *esito, builder::StampaCoperturaRighe(p, *esito, s),
                                         builder::ReportCopertura(p, *esito, s));
            w->show();
        });
}

void FrmCostruttore::ApriRicercaAutomatica() {
    const builder::ParametriRicerca p = Parametri();
    if (p.modoSpia == builder::ModoSpia::SoloIndiceMensile && Quante(p.ruoteRicerca) < archives::NumeroRuote) {
        MostraMessaggio(this, {std::string(builder::SoloIndiceTutteLeRuote), "Errore", archives::Icona::Esclamazione});
        return;
    }
    fraRicercaAutomatica_->setVisible(true);
    AggiornaRicercaAutomatica();
}

void FrmCostruttore::AggiornaRicercaAutomatica() {
    if (!fraRicercaAutomatica_ || !fraRicercaAutomatica_->isVisible() || caricamento_) return;
    const builder::ParametriRicerca p = Parametri();
    fraRicercaAutomatica_->AggiornaScelte(Quante(p.ruoteRicerca), Quante(p.ruoteGioco));
}

void FrmCostruttore::AvviaRicercaAutomatica() {
    if (elaborazione_) return;
    SvuotaRisultati();
    const builder::ParametriRicerca p = Parametri();
    const int r = fraRicercaAutomatica_->RuoteRicerca(), g = fraRicercaAutomatica_->RuoteGioco();
    if (!frmMultiRuota_) {
        frmMultiRuota_ = new FrmMultiRuota(sessione_, this, TestaSpia());
        // To the left of the builder.
        const QPoint qui = pos();
        frmMultiRuota_->move(std::max(0, qui.x() - PixelDaTwips(2200, screen())), qui.y());
    }
    frmMultiRuota_->Inizia(p, contesto_->storia.get());
    frmMultiRuota_->show();
    frmMultiRuota_->raise();
    QPointer<FrmMultiRuota> finestra = frmMultiRuota_;
    auto esito = std::make_shared<builder::EsitoAutomatica>();
    const builder::ContestoRicerca ctx = contesto_->Contesto();
    elaborazione_ = true;
    cmdRicercaAutomatica_->setEnabled(false);
    fraRicercaAutomatica_->InCorso(true);
    automatica_ = Elaborazione::Avvia(
        this, sessione_, QStringLiteral("Ricerca automatica ruote di ricerca/gioco..."),
        [p, ctx, r, g, esito, finestra](std::stop_token stop, const Progresso& progresso) {
            builder::AvanzamentoAutomatica av;
            av.stop = stop;
            // Rows and progress reach the window on its own thread.
            av.riga = [finestra](const builder::RigaAutomatica& riga) {
                QMetaObject::invokeMethod(
                    finestra,
                    [finestra, riga] {
                        if (finestra) finestra->AggiungiRiga(riga);
                    },
                    Qt::QueuedConnection);
            };
            av.progresso = [finestra, progresso](int fatte, int corse) {
                if (progresso) progresso("Ricerca automatica ruote di ricerca/gioco...", fatte, corse);
                QMetaObject::invokeMethod(
                    finestra,
                    [finestra, fatte, corse] {
                        if (finestra) finestra->Avanzamento(fatte, corse);
                    },
                    Qt::QueuedConnection);
            };
            *esito = builder::RicercaAutomatica(p, ctx, r, g, av);
        },
        [this, esito, finestra](bool fermato) {
            elaborazione_ = false;
            automatica_ = nullptr;
            cmdRicercaAutomatica_->setEnabled(true);
            fraRicercaAutomatica_->InCorso(false);
            if (finestra) finestra->Termina(fermato || esito->fermata);
            if (!esito->errore.vuoto()) {
                MostraMessaggio(this, esito->errore);
                if (QWidget* w = findChild<QWidget*>(QString::fromStdString(esito->focus))) w->setFocus();
            }
        });
}

}  // namespace gorgo::screens
