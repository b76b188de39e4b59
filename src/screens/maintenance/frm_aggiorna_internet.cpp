#include "screens/maintenance/frm_aggiorna_internet.h"

#include <fmt/format.h>
#include <QCloseEvent>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <system_error>

#include "archives/archivio.h"
#include "config/impostazioni.h"
#include "maintenance/importazione.h"
#include "maintenance/internet.h"
#include "network/connessione.h"
#include "network/scaricatore.h"
#include "screens/common/messaggi.h"
#include "screens/common/stile.h"

namespace gorgo::screens {

namespace m = maintenance;

namespace {

QString Q(std::string_view s) { return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size())); }

QPushButton* Pulsante(QWidget* parent, const char* nome, const QString& testo, const QString& suggerimento = {}) {
    auto* b = new QPushButton(testo, parent);
    b->setObjectName(nome);
    if (!suggerimento.isEmpty()) b->setToolTip(suggerimento);
    return b;
}

QLabel* Etichetta(QWidget* parent, const char* nome, const QString& testo = {}) {
    auto* l = new QLabel(testo, parent);
    l->setObjectName(nome);
    return l;
}

// The status line of the transfer, framed as a panel.
QLabel* EtichettaStato(QWidget* parent) {
    QLabel* l = Etichetta(parent, "lblStatus");
    l->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    l->setWordWrap(true);
    l->setMinimumHeight(44);
    l->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return l;
}

// The long form of a stored date: "sabato 21 agosto 2026".
std::string DataLunga(const archives::Data& d) {
    if (!d.valida()) return {};
    return fmt::format("{} {} {} {}", archives::NomeGiorno(d.giornoSettimana()), d.giorno, archives::NomeMese(d.mese),
                       d.anno);
}

std::string LeggiUrl(const config::FileIni& ini, std::string_view chiave) {
    return config::LeggiImpostazione(ini, config::sezioni::Options, chiave,
                                     config::Predefinito(config::sezioni::Options, chiave));
}

}  // namespace

// ---- frmAggiornaInternet and frmAggiornaSuperInternet ------------------------------------

FrmAggiornaInternetBase::FrmAggiornaInternetBase(Sessione& sessione, archives::Archivio& archivio, m::Gioco gioco,
                                                 const char* nome, const QString& titolo, QWidget* parent)
    : QWidget(parent, Qt::Window),
      sessione_(sessione),
      archivio_(archivio),
      gioco_(gioco),
      scaricatore_(new network::Scaricatore(this)) {
    setObjectName(nome);
    setWindowTitle(titolo);

    auto* principale = new QVBoxLayout(this);
    auto* ultima = new QGroupBox(QStringLiteral("Ultima estrazione memorizzata nel sistema:"), this);
    ultima->setObjectName("fraUltima");
    auto* g = new QGridLayout(ultima);
    g->addWidget(Etichetta(ultima, "lblTestoNumero", QStringLiteral("Numero estrazione")), 0, 0);
    g->addWidget(Etichetta(ultima, "lblTestoAnno", QStringLiteral("Anno estrazione")), 0, 1);
    g->addWidget(Etichetta(ultima, "lblTestoUltima", QStringLiteral("Data")), 0, 2);
    lblNumero_ = Etichetta(ultima, "lblNumero");
    lblAnno_ = Etichetta(ultima, "lblAnno");
    lblUltima_ = Etichetta(ultima, "lblUltima");
    for (QLabel* l : {lblNumero_, lblAnno_, lblUltima_}) {
        QFont f = l->font();
        f.setBold(true);
        l->setFont(f);
    }
    g->addWidget(lblNumero_, 1, 0);
    g->addWidget(lblAnno_, 1, 1);
    g->addWidget(lblUltima_, 1, 2);
    g->setColumnStretch(2, 1);
    principale->addWidget(ultima);

    lblStatus_ = EtichettaStato(this);
    principale->addWidget(lblStatus_);

    cmdScarica_ = Pulsante(this, "cmdScarica", QStringLiteral("Scarica aggiornamento dal web..."));
    cmdApri_ = Pulsante(this, "cmdApri", QStringLiteral("Apri file..."));
    cmdAggiorna_ = Pulsante(this, "cmdAggiorna", QStringLiteral("Aggiorna"));
    cmdAnnulla_ = Pulsante(this, "cmdAnnulla", QStringLiteral("Annulla"));
    cmdEsci_ = Pulsante(this, "cmdEsci", QStringLiteral("Esci"));
    auto* riga = new QHBoxLayout;
    for (QPushButton* b : {cmdScarica_, cmdApri_, cmdAggiorna_, cmdAnnulla_}) riga->addWidget(b);
    riga->addStretch();
    riga->addWidget(cmdEsci_);
    principale->addLayout(riga);
    cmdAggiorna_->setEnabled(false);
    cmdAnnulla_->setEnabled(false);

    connect(cmdScarica_, &QPushButton::clicked, this, &FrmAggiornaInternetBase::Scarica);
    connect(cmdApri_, &QPushButton::clicked, this, &FrmAggiornaInternetBase::Apri);
    connect(cmdAggiorna_, &QPushButton::clicked, this, &FrmAggiornaInternetBase::Aggiorna);
    connect(cmdAnnulla_, &QPushButton::clicked, this, &FrmAggiornaInternetBase::Annulla);
    connect(cmdEsci_, &QPushButton::clicked, this, &QWidget::close);
    connect(scaricatore_, &network::Scaricatore::statoCambiato, this, &FrmAggiornaInternetBase::Stato);
    connect(scaricatore_, &network::Scaricatore::terminato, this, &FrmAggiornaInternetBase::FineScaricamento);

    MostraUltima();
    ApplicaStile(this, sessione_.ini);
    // After the standard tips, which give every cmdAnnulla its generic one.
    cmdAnnulla_->setToolTip(QStringLiteral("Interrompe la connessione"));
    cmdEsci_->setToolTip(QStringLiteral("Esci senza modificare nulla"));
    setMinimumWidth(560);
}

FrmAggiornaInternet::FrmAggiornaInternet(Sessione& sessione, archives::Archivio& archivio, QWidget* parent)
    : FrmAggiornaInternetBase(sessione, archivio, m::Gioco::Lotto, "frmAggiornaInternet",
                              QStringLiteral("Aggiormanemto estrazioni lotto da Internet"), parent) {}

FrmAggiornaSuperInternet::FrmAggiornaSuperInternet(Sessione& sessione, archives::Archivio& archivio, QWidget* parent)
    : FrmAggiornaInternetBase(sessione, archivio, m::Gioco::SuperEnalotto, "frmAggiornaSuperInternet",
                              QStringLiteral("Aggiornamento estrazioni Superenalotto da Internet"), parent) {}

std::filesystem::path FrmAggiornaInternetBase::CopiaLocale() const {
    return m::CopiaLocale(sessione_.PercorsoProgramma, gioco_);
}

void FrmAggiornaInternetBase::MostraUltima() {
    const archives::Archivio* a = &archivio_;
    if (gioco_ == m::Gioco::Lotto && a->NumeroEstrazioni() > 0) {
        const archives::RecordEstrazione r = a->LeggiEstrazione(a->NumeroEstrazioni());
        lblNumero_->setText(QString::number(r.NumeroAnno));
        lblAnno_->setText(QString::number(r.data().anno));
        lblUltima_->setText(Q(DataLunga(r.data())));
    } else if (gioco_ == m::Gioco::SuperEnalotto && a->NumeroEstrazioniSuper() > 0) {
        const archives::RecordSuperEnalotto r = a->LeggiRecordSuper(a->NumeroEstrazioniSuper());
        lblNumero_->setText(QString::number(r.NumeroAnno));
        lblAnno_->setText(QString::number(r.data().anno));
        lblUltima_->setText(Q(DataLunga(r.data())));
    }
}

void FrmAggiornaInternetBase::ImpostaStato(const std::string& testo, const std::string& dettaglio) {
    // The system's text first; what failed, when known, on the line below.
    lblStatus_->setText(dettaglio.empty() ? Q(testo) : Q(testo) + QLatin1Char('\n') + Q(dettaglio));
    lblStatus_->setToolTip(Q(dettaglio));
}

void FrmAggiornaInternetBase::Stato(int stato, int codice, const QString& testo) {
    if (stato == m::stati::Errore) {
        lblStatus_->setText(Q(m::TestoStatoErrore(lblStatus_->text().toStdString(), codice, testo.toStdString())));
        errore_ = true;
        return;
    }
    if (const auto t = m::TestoStato(stato)) lblStatus_->setText(Q(*t));
}

void FrmAggiornaInternetBase::Scarica() {
    errore_ = false;
    const std::string indirizzo = m::IndirizzoAggiornamento(LeggiUrl(sessione_.ini, "Url"), gioco_);
    if (!network::VaiInLineaSeServe()) {
        MostraMessaggio(this, {network::MessaggioOffLine, "Errore", archives::Icona::Stop});
        return;
    }
    cmdAnnulla_->setEnabled(true);
    cmdScarica_->setEnabled(false);
    cmdApri_->setEnabled(false);
    cmdAggiorna_->setEnabled(false);
    lblStatus_->setToolTip({});
    scaricatore_->Avvia(Q(indirizzo));
}

void FrmAggiornaInternetBase::Annulla() {
    scaricatore_->Annulla();
    cmdAnnulla_->setEnabled(false);
    ImpostaStato(std::string(m::testi::AzioneAnnullata));
}

void FrmAggiornaInternetBase::FineScaricamento() {
    cmdAnnulla_->setEnabled(false);
    cmdScarica_->setEnabled(true);
    cmdApri_->setEnabled(true);
    const network::RisultatoScaricamento& r = scaricatore_->Risultato();
    const m::Scaricamento s = r.PerIlNucleo();
    const std::filesystem::path copia = CopiaLocale();
    archives::Archivio* a = &archivio_;
    try {
        const auto passo = [&](m::RispostaAllineamento risposta) {
            return m::AggiornamentoInternet(*a, s, gioco_, copia, risposta);
        };
        const m::EsitoInternet e = passo(m::RispostaAllineamento::DaChiedere);
        if (e.erroreCopia) {
            if (gioco_ == m::Gioco::SuperEnalotto)
                MostraMessaggio(this, {m::MessaggioErroreSuper(e.erroreCopia.value(), "Impossibile scrivere il file", 7,
                                                               copia, static_cast<std::uintmax_t>(s.corpo.size())),
                                       "Errore", archives::Icona::Stop});
            else
                MostraMessaggio(this, e.messaggio);
            return;
        }
        if (e.scaricamento.esito != m::EsitoScaricamento::Pronto) {
            if (!e.testoStato.empty())
                ImpostaStato(e.testoStato, e.dettaglio);
            else
                lblStatus_->setToolTip(Q(e.dettaglio));
            if (!e.messaggio.vuoto()) MostraMessaggio(this, e.messaggio);
            return;
        }
        Prosegui(e, passo);
    } catch (const std::exception&) {
        ImpostaStato(std::string(m::testi::ErroreAperturaStato));
        MostraMessaggio(this, {std::string(m::testi::ErroreApertura), "Errore", archives::Icona::Stop});
    }
}

void FrmAggiornaInternetBase::Apri() {
    ImpostaStato(std::string(m::testi::FineConnessione));
    const std::filesystem::path copia = CopiaLocale();
    try {
        std::error_code ec;
        const auto lunghezza = std::filesystem::file_size(copia, ec);
        if (ec || lunghezza == 0) return;
        const auto dati = m::LeggiFileAggiornamento(copia);
        if (!dati) {
            MostraMessaggio(this, m::ErrFile(copia.string()));
            return;
        }
        archives::Archivio* a = &archivio_;
        const auto passo = [&](m::RispostaAllineamento risposta) {
            return m::AggiornamentoDaCopiaLocale(*a, *dati, gioco_, copia, risposta);
        };
        Prosegui(passo(m::RispostaAllineamento::DaChiedere), passo);
    } catch (const std::exception&) {
        ImpostaStato(std::string(m::testi::ErroreAperturaStato));
        MostraMessaggio(this, {std::string(m::testi::ErroreApertura), "Errore", archives::Icona::Stop});
    }
}

template <typename Ancora>
void FrmAggiornaInternetBase::Prosegui(m::EsitoInternet e, Ancora ancora) {
    ImpostaStato(e.testoStato);
    if (e.stato == m::StatoInternet::Domanda) {
        cmdAggiorna_->setEnabled(true);
        const bool si =
            Chiedi(this, e.messaggio, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes) == QMessageBox::Yes;
        if (si) ImpostaStato(std::string(m::testi::FineConnessione));
        try {
            e = ancora(si ? m::RispostaAllineamento::Si : m::RispostaAllineamento::No);
        } catch (...) {
            cmdAggiorna_->setEnabled(false);
            throw;
        }
    }
    switch (e.stato) {
        case m::StatoInternet::Domanda:
        case m::StatoInternet::NonConfermato: return;
        case m::StatoInternet::NienteDiNuovo: MostraMessaggio(this, e.messaggio); return;
        case m::StatoInternet::Rifiutato:
            // A refusal of the update itself, after the Yes, takes the button back.
            if (!e.aggiornamento.messaggio.vuoto()) cmdAggiorna_->setEnabled(false);
            MostraMessaggio(this, e.messaggio);
            return;
        case m::StatoInternet::Aggiornato: break;
    }
    MostraUltima();
    if (e.aggiornamento.aggiunte > 0) emit archivioAggiornato();
    MostraMessaggio(this, e.messaggio);
    close();
}

void FrmAggiornaInternetBase::Aggiorna() {
    if (!cmdAggiorna_->isEnabled()) return;
    const std::filesystem::path copia = CopiaLocale();
    try {
        archives::Archivio* a = &archivio_;
        const auto dati = m::LeggiFileAggiornamento(copia);
        if (!dati) throw archives::ErroreArchivio(copia.string());
        const m::EsitoAggiornamento e = m::ApplicaAggiornamento(*a, *dati, gioco_, copia.string());
        if (!e.riuscito) {
            cmdAggiorna_->setEnabled(false);
            MostraMessaggio(this, e.messaggio);
            return;
        }
        MostraUltima();
        if (e.aggiunte > 0) emit archivioAggiornato();
        MostraMessaggio(this, e.messaggio);
    } catch (const std::exception&) {
        cmdAggiorna_->setEnabled(false);
        ImpostaStato(std::string(m::testi::ErroreAperturaStato));
        MostraMessaggio(this, {std::string(m::testi::ErroreApertura), "Errore", archives::Icona::Stop});
        return;
    }
    close();
}

void FrmAggiornaInternetBase::closeEvent(QCloseEvent* e) {
    // A transfer still running ends with the window.
    if (scaricatore_->InCorso()) {
        scaricatore_->disconnect(this);
        scaricatore_->Annulla();
    }
    e->accept();
}

// ---- frmScaricaStorico --------------------------------------------------------------------

FrmScaricaStorico::FrmScaricaStorico(Sessione& sessione, archives::Archivio& archivio, QWidget* parent)
    : QWidget(parent, Qt::Window),
      sessione_(sessione),
      archivio_(archivio),
      scaricatore_(new network::Scaricatore(this)) {
    setObjectName("frmScaricaStorico");
    setWindowTitle(QStringLiteral("Scarica archivio storico da Internet"));

    auto* principale = new QVBoxLayout(this);
    principale->addWidget(
        Etichetta(this, "lblIndirizzo", QStringLiteral("Indirizzo dell'archivio storico (zip o testo):")));
    txtUrlStorico_ = new QLineEdit(this);
    txtUrlStorico_->setObjectName("txtUrlStorico");
    txtUrlStorico_->setMinimumWidth(420);
    txtUrlStorico_->setText(Q(LeggiUrl(sessione_.ini, "UrlStorico")));
    principale->addWidget(txtUrlStorico_);
    lblStatus_ = EtichettaStato(this);
    principale->addWidget(lblStatus_);

    cmdScarica_ = Pulsante(this, "cmdScarica", QStringLiteral("Scarica e importa"));
    cmdAnnulla_ = Pulsante(this, "cmdAnnulla", QStringLiteral("Annulla"));
    cmdEsci_ = Pulsante(this, "cmdEsci", QStringLiteral("Esci"));
    auto* riga = new QHBoxLayout;
    riga->addWidget(cmdScarica_);
    riga->addWidget(cmdAnnulla_);
    riga->addStretch();
    riga->addWidget(cmdEsci_);
    principale->addLayout(riga);
    cmdAnnulla_->setEnabled(false);

    connect(cmdScarica_, &QPushButton::clicked, this, &FrmScaricaStorico::Scarica);
    connect(cmdAnnulla_, &QPushButton::clicked, this, &FrmScaricaStorico::Annulla);
    connect(cmdEsci_, &QPushButton::clicked, this, &QWidget::close);
    connect(scaricatore_, &network::Scaricatore::statoCambiato, this,
            [this](int stato, int codice, const QString& testo) {
                if (stato == m::stati::Errore)
                    lblStatus_->setText(
                        Q(m::TestoStatoErrore(lblStatus_->text().toStdString(), codice, testo.toStdString())));
                else if (const auto t = m::TestoStato(stato))
                    lblStatus_->setText(Q(*t));
            });
    connect(scaricatore_, &network::Scaricatore::terminato, this, &FrmScaricaStorico::FineScaricamento);

    ApplicaStile(this, sessione_.ini);
    cmdScarica_->setToolTip(QStringLiteral("Scarica l'archivio storico e importa le estrazioni nuove"));
    cmdAnnulla_->setToolTip(QStringLiteral("Interrompe la connessione"));
}

void FrmScaricaStorico::Scarica() {
    const std::string indirizzo = txtUrlStorico_->text().trimmed().toStdString();
    if (indirizzo.empty()) {
        MostraMessaggio(this, {std::string(m::TestoStoricoNonImpostato), std::string(m::TitoloStorico),
                               archives::Icona::Esclamazione});
        return;
    }
    // The address is kept for next time, once it is of the right form.
    if (archives::Messaggio errore =
            config::ControllaValoreImpostazione(config::sezioni::Options, "UrlStorico", indirizzo);
        !errore.vuoto()) {
        MostraMessaggio(this, errore);
        return;
    }
    if (indirizzo != LeggiUrl(sessione_.ini, "UrlStorico"))
        config::ScriviImpostazione(sessione_.ini, config::sezioni::Options, "UrlStorico", indirizzo);
    cmdScarica_->setEnabled(false);
    cmdAnnulla_->setEnabled(true);
    lblStatus_->setToolTip({});
    scaricatore_->Avvia(Q(indirizzo));
}

void FrmScaricaStorico::Annulla() {
    scaricatore_->Annulla();
    cmdAnnulla_->setEnabled(false);
    lblStatus_->setText(Q(m::testi::AzioneAnnullata));
}

void FrmScaricaStorico::FineScaricamento() {
    cmdScarica_->setEnabled(true);
    cmdAnnulla_->setEnabled(false);
    const network::RisultatoScaricamento& r = scaricatore_->Risultato();
    if (r.annullato) {
        lblStatus_->setText(Q(m::testi::AzioneAnnullata));
        return;
    }
    const m::ControlloStorico c = m::ControllaScaricamentoStorico(r.PerIlNucleo());
    if (!c.valido) {
        lblStatus_->setText(Q(c.messaggio.testo));
        lblStatus_->setToolTip(Q(c.dettaglio));
        MostraMessaggio(this, c.messaggio);
        return;
    }
    archives::Archivio* a = &archivio_;
    const std::string_view dati(r.corpo.constData(), static_cast<size_t>(r.corpo.size()));
    try {
        const m::EsitoImportazione prova = m::ControllaDati(*a, dati, m::Gioco::Lotto);
        if (!prova.riuscito) {
            lblStatus_->setText(Q(prova.messaggio.testo));
            MostraMessaggio(this, prova.messaggio);
            return;
        }
        if (prova.aggiunte == 0) {
            lblStatus_->setText(Q(m::TestoNienteDiNuovo));
            MostraMessaggio(this, m::MessaggioNienteDiNuovo());
            return;
        }
        const archives::Messaggio domanda{
            fmt::format("L'archivio storico scaricato porta {} estrazioni nuove, fino al {}. "
                        "Confermi l'importazione ?",
                        prova.aggiunte, prova.ultimaData),
            std::string(m::TitoloStorico), archives::Icona::Domanda};
        if (Chiedi(this, domanda, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes) != QMessageBox::Yes) return;
        const m::EsitoImportazione e = m::ImportaDati(*a, dati, m::Gioco::Lotto);
        lblStatus_->setText(Q(e.messaggio.testo));
        if (e.riuscito && e.aggiunte > 0) emit archivioAggiornato();
        MostraMessaggio(this, e.messaggio);
    } catch (const std::exception& ex) {
        lblStatus_->setText(Q(m::testi::ErroreAperturaStato));
        MostraMessaggio(this, {ex.what(), "Errore", archives::Icona::Stop});
    }
}

void FrmScaricaStorico::closeEvent(QCloseEvent* e) {
    if (scaricatore_->InCorso()) {
        scaricatore_->disconnect(this);
        scaricatore_->Annulla();
    }
    e->accept();
}

}  // namespace gorgo::screens
