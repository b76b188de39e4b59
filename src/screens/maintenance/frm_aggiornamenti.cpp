#include "screens/maintenance/frm_aggiornamenti.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "archives/archivio.h"
#include "config/ini.h"
#include "screens/common/aiuto.h"
#include "screens/common/messaggi.h"
#include "screens/common/scelta_file.h"
#include "screens/common/stile.h"
#include "screens/maintenance/riquadro_ultima.h"

namespace gorgo::screens {

namespace {

using maintenance::Gioco;
using maintenance::StatoAggiornamento;

QString Testo(const std::string& s) { return QString::fromStdString(s); }

}  // namespace

FrmAggiornamenti::FrmAggiornamenti(Sessione& sessione, archives::Archivio& archivio, QWidget* parent)
    : FrmAggiornamenti(sessione, archivio, Gioco::Lotto, parent) {}

FrmAggiornamenti::FrmAggiornamenti(Sessione& sessione, archives::Archivio& archivio, Gioco gioco, QWidget* parent)
    : QDialog(parent), sessione_(sessione), archivio_(archivio), gioco_(gioco) {
    const bool lotto = gioco == Gioco::Lotto;
    setObjectName(lotto ? "frmAggiornamenti" : "frmAggiornamentiSuper");
    setWindowTitle(lotto ? QStringLiteral("Aggiormanemto estrazioni da file")
                         : QStringLiteral("Aggiornamento estrazioni Superenalotto da file"));
    setAttribute(Qt::WA_DeleteOnClose);

    auto* principale = new QVBoxLayout(this);
    const RiquadroUltima ultima = CreaRiquadroUltima(
        this, "fraUltima", QStringLiteral("Ultima estrazione memorizzata nel sistema:"), QStringLiteral("Data"));
    lblNumero_ = ultima.lblNumero;
    lblAnno_ = ultima.lblAnno;
    lblUltima_ = ultima.lblUltima;
    principale->addWidget(ultima.riquadro);

    auto* file = new QHBoxLayout;
    file->addWidget(new QLabel(QStringLiteral("File aggiornato al :"), this));
    lblFile_ = EtichettaValore(this, "lblFile");
    file->addWidget(lblFile_);
    file->addStretch();
    principale->addLayout(file);
    lblAggiunte_ = new QLabel(this);
    lblAggiunte_->setObjectName("lblAggiunte");
    principale->addWidget(lblAggiunte_);

    auto* pulsanti = new QHBoxLayout;
    auto* cmdApri = new QPushButton(QStringLiteral("Apri file..."), this);
    cmdApri->setObjectName("cmdApri");
    cmdApri->setToolTip(QStringLiteral("Apre un archivio aggiornamento estrazioni precedentemente esportato"));
    cmdAggiorna_ = new QPushButton(QStringLiteral("Aggiorna"), this);
    cmdAggiorna_->setObjectName("cmdAggiorna");
    cmdAggiorna_->setToolTip(QStringLiteral("Aggiorna l'archivio estrazioni con i dati del file selezionato"));
    cmdAggiorna_->setEnabled(false);
    auto* cmdEsci = new QPushButton(QStringLiteral("Esci"), this);
    cmdEsci->setObjectName("cmdEsci");
    pulsanti->addWidget(cmdApri);
    pulsanti->addWidget(cmdAggiorna_);
    pulsanti->addStretch();
    if (!lotto) {
        auto* cmdHelp = new QPushButton(QStringLiteral("Aiuto"), this);
        cmdHelp->setObjectName("cmdHelp");
        pulsanti->addWidget(cmdHelp);
        connect(cmdHelp, &QPushButton::clicked, this,
                [this] { HelpContext(this, sessione_.ini, AiutoAggiornamentiSuper); });
    }
    pulsanti->addWidget(cmdEsci);
    principale->addLayout(pulsanti);

    connect(cmdApri, &QPushButton::clicked, this, &FrmAggiornamenti::Apri);
    connect(cmdAggiorna_, &QPushButton::clicked, this, &FrmAggiornamenti::Aggiorna);
    connect(cmdEsci, &QPushButton::clicked, this, &FrmAggiornamenti::close);

    MostraUltima();
    ApplicaStile(this, sessione_.ini);
    // The tool tip of the system, over the standard one of cmdEsci.
    cmdEsci->setToolTip(QStringLiteral("Esci senza modificare nulla"));
}

FrmAggiornamentiSuper::FrmAggiornamentiSuper(Sessione& sessione, archives::Archivio& archivio, QWidget* parent)
    : FrmAggiornamenti(sessione, archivio, Gioco::SuperEnalotto, parent) {}

void FrmAggiornamenti::MostraUltima() {
    const archives::Archivio& a = archivio_;
    lblNumero_->clear();
    lblAnno_->clear();
    lblUltima_->clear();
    const bool lotto = gioco_ == Gioco::Lotto;
    const int32_t n = lotto ? a.NumeroEstrazioni() : a.NumeroEstrazioniSuper();
    if (n < 1) return;
    int numeroAnno = 0;
    std::string data;
    if (lotto) {
        const archives::RecordEstrazione r = a.LeggiEstrazione(n);
        numeroAnno = r.NumeroAnno;
        data = r.dataTesto();
    } else {
        const archives::RecordSuperEnalotto r = a.LeggiRecordSuper(n);
        numeroAnno = r.NumeroAnno;
        data = r.dataTesto();
    }
    lblNumero_->setText(QString::number(numeroAnno));
    lblAnno_->setText(Testo(data.substr(6)));
    lblUltima_->setText(Testo(data));
}

void FrmAggiornamenti::Chiudi() {
    percorso_.clear();
    dati_.clear();
    cmdAggiorna_->setEnabled(false);
}

void FrmAggiornamenti::Apri() {
    Chiudi();
    const QString filtro = gioco_ == Gioco::Lotto
                               ? QStringLiteral(
                                     "File aggiornamento Gorgo (*.bin)|*.bin|File aggiornamento Gorgo (*.alb)|*.alb|"
                                     "Tutti i file (*.*)|*.*")
                               : QStringLiteral("File aggiornamento Gorgo (*.bin)|*.bin|Tutti i file (*.*)|*.*");
    const QString scelto = ScegliFileManutenzione
                               ? ScegliFileManutenzione(this, ModoSceltaFile::Apri, QStringLiteral("Apri"), filtro,
                                                        Testo(sessione_.PercorsoProgramma.string()))
                               : QString();
    if (scelto.isEmpty()) return;
    const std::string percorso = scelto.toStdString();
    const auto dati = maintenance::LeggiFileAggiornamento(percorso);
    if (!dati) {
        MostraMessaggio(this, maintenance::ErrFile(percorso));
        return;
    }
    const auto c = maintenance::ControllaAggiornamento(archivio_, *dati, gioco_, percorso);
    if (c.stato == StatoAggiornamento::Corrotto || c.stato == StatoAggiornamento::ArchivioVuoto) {
        MostraMessaggio(this, c.messaggio);
        return;
    }
    lblFile_->setText(Testo(c.ultimaData));
    if (c.stato == StatoAggiornamento::Discontinuo) {
        lblFile_->clear();
        MostraMessaggio(this, c.messaggio);
        return;
    }
    // A file that brings nothing new passes the checks and leaves cmdAggiorna disabled.
    if (c.pronto()) {
        percorso_ = percorso;
        dati_ = *dati;
        cmdAggiorna_->setEnabled(true);
    }
}

void FrmAggiornamenti::Aggiorna() {
    if (!cmdAggiorna_->isEnabled() || dati_.empty()) return;
    cmdAggiorna_->setEnabled(false);
    maintenance::EsitoAggiornamento e;
    try {
        e = maintenance::ApplicaAggiornamento(archivio_, dati_, gioco_, percorso_);
    } catch (const archives::ErroreArchivio& errore) {
        Chiudi();
        MostraUltima();
        MostraMessaggio(this, archives::Messaggio{errore.what(), "Errore", archives::Icona::Stop});
        return;
    }
    Chiudi();
    MostraUltima();
    if (!e.riuscito) {
        MostraMessaggio(this, e.messaggio);
        return;
    }
    lblAggiunte_->setText(QStringLiteral("Estrazioni aggiunte: %1").arg(e.aggiunte));
    if (e.aggiunte > 0) emit archivioAggiornato();
    MostraMessaggio(this, e.messaggio);
    close();
}

}  // namespace gorgo::screens
