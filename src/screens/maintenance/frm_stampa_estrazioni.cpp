#include "screens/maintenance/frm_stampa_estrazioni.h"

#include <QEvent>
#include <QFileDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "archives/regole.h"
#include "config/impostazioni.h"
#include "config/ini.h"
#include "screens/common/aiuto.h"
#include "screens/common/caselle.h"
#include "screens/common/elaborazioni.h"
#include "screens/common/messaggi.h"
#include "screens/common/stile.h"
#include "screens/common/twips.h"

namespace gorgo::screens {

namespace {

QString Q(std::string_view s) { return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size())); }

QDate DataQt(const std::string& gg_mm_aaaa) { return QDate::fromString(Q(gg_mm_aaaa), "dd/MM/yyyy"); }

}  // namespace

FrmStampaEstrazioni::FrmStampaEstrazioni(Sessione& sessione, const archives::Archivio& archivio, QWidget* parent,
                                         Gioco gioco)
    : QWidget(parent, Qt::Window), sessione_(sessione), archivio_(archivio), gioco_(gioco) {
    switch (gioco_) {
        case Gioco::Lotto:
            setObjectName("frmStampaEstrazioni");
            setWindowTitle(Q(maintenance::CaptionStampaEstrazioni));
            break;
        case Gioco::SuperEnalotto:
            setObjectName("frmStampaEstrazioniSuperEnalotto");
            setWindowTitle(QStringLiteral("Gorgo 2 - Stampa estrazioni Superenalotto"));
            break;
        case Gioco::DieciELotto:
            setObjectName("frmStampaEstrazioni10eLotto");
            setWindowTitle(QStringLiteral("Gorgo 2 - Stampa estrazioni 10eLotto"));
            break;
    }
    setAttribute(Qt::WA_DeleteOnClose);
    CreaControlli();
    ApplicaStile(this, sessione_.ini);
}

void FrmStampaEstrazioni::CreaControlli() {
    const archives::Archivio& a = archivio_;
    const bool super = gioco_ == Gioco::SuperEnalotto;
    auto* principale = new QVBoxLayout(this);

    // The stretch: the saved search range for Lotto, the whole archive for SuperEnalotto.
    std::string da, al, primo;
    if (super) {
        da = a.DataEstrazione(1, archives::ArchivioSuper);
        al = a.DataEstrazione(a.NumeroEstrazioniSuper(), archives::ArchivioSuper);
        primo = std::string(archives::DataInizioSuper);
    } else {
        const config::IndiciRicerca r = config::LeggiIndiciRicerca(sessione_.ini, a.NumeroEstrazioni());
        da = a.DataEstrazione(r.IndiceInizio);
        al = a.DataEstrazione(r.IndiceFine);
        primo = std::string(archives::PrimaDataArchivio);
    }
    const std::string ultima = super ? a.DataEstrazione(a.NumeroEstrazioniSuper(), archives::ArchivioSuper)
                                     : a.DataEstrazione(a.NumeroEstrazioni());
    auto* fraPeriodo = new QGroupBox(this);
    fraPeriodo->setObjectName("fraPeriodo");
    auto* gp = new QGridLayout(fraPeriodo);
    DTPickerDa_ = new QDateEdit(DataQt(da), fraPeriodo);
    DTPickerDa_->setObjectName("DTPickerDa");
    DTPickerA_ = new QDateEdit(DataQt(al), fraPeriodo);
    DTPickerA_->setObjectName("DTPickerA");
    txtDataInizio_ = new QLineEdit(Q(da), fraPeriodo);
    txtDataInizio_->setObjectName("txtDataInizio");
    txtDataFine_ = new QLineEdit(Q(al), fraPeriodo);
    txtDataFine_->setObjectName("txtDataFine");
    for (QDateEdit* d : {DTPickerDa_, DTPickerA_}) {
        d->setDisplayFormat("dd/MM/yyyy");
        d->setCalendarPopup(true);
        d->setMinimumDate(DataQt(primo));
        d->setMaximumDate(DataQt(ultima));
    }
    for (QLineEdit* t : {txtDataInizio_, txtDataFine_}) {
        t->setMaxLength(10);
        t->setFixedWidth(96);
    }
    // The text boxes hold what is checked; the pickers fill them.
    connect(DTPickerDa_, &QDateEdit::dateChanged, this,
            [this](const QDate& d) { txtDataInizio_->setText(d.toString("dd/MM/yyyy")); });
    connect(DTPickerA_, &QDateEdit::dateChanged, this,
            [this](const QDate& d) { txtDataFine_->setText(d.toString("dd/MM/yyyy")); });
    gp->addWidget(new QLabel(QStringLiteral("Estrazioni dal"), fraPeriodo), 0, 0);
    gp->addWidget(txtDataInizio_, 0, 1);
    gp->addWidget(DTPickerDa_, 0, 2);
    gp->addWidget(new QLabel(QStringLiteral("al"), fraPeriodo), 1, 0);
    gp->addWidget(txtDataFine_, 1, 1);
    gp->addWidget(DTPickerA_, 1, 2);
    if (gioco_ == Gioco::Lotto) {
        gp->addWidget(new QLabel(QStringLiteral("Ruota :"), fraPeriodo), 2, 0);
        cboRuota_ = new QComboBox(fraPeriodo);
        cboRuota_->setObjectName("cboRuota");
        for (int w = 0; w <= archives::NumeroRuote; ++w)
            cboRuota_->addItem(Q(archives::NomiRuota[static_cast<size_t>(w)]));
        gp->addWidget(cboRuota_, 2, 1, 1, 2);
    }
    principale->addWidget(fraPeriodo);

    // The month and near-date choices.
    auto* fraScelte = new QGroupBox(this);
    fraScelte->setObjectName("fraScelte");
    auto* gs = new QGridLayout(fraScelte);
    chkMeseDi_ = new QCheckBox(QStringLiteral("Solo mese di :"), fraScelte);
    chkMeseDi_->setObjectName("chkMeseDi");
    chkMeseDi_->setToolTip(QStringLiteral("Permette di selezionare un singolo mese"));
    cboMesi_ = new QComboBox(fraScelte);
    cboMesi_->setObjectName("cboMesi");
    cboMesi_->addItems(NomiMesiCaselle());
    chkData_ = new QCheckBox(QStringLiteral("Data estrazione :"), fraScelte);
    chkData_->setObjectName("chkData");
    chkData_->setToolTip(QStringLiteral("Permette di selezionare una singola data di estrazione"));
    cboGiorno_ = new QComboBox(fraScelte);
    cboGiorno_->setObjectName("cboGiorno");
    for (int g = 1; g <= 31; ++g) cboGiorno_->addItem(QString::number(g));
    cboMesi1_ = new QComboBox(fraScelte);
    cboMesi1_->setObjectName("cboMesi1");
    cboMesi1_->addItems(NomiMesiCaselle());
    auto* nota = new QLabel(QStringLiteral("(Se spuntata, la casella soprastante permette di considerare solo le "
                                           "estrazioni con data uguale o immediatamente successiva alla data "
                                           "impostata, negli anni selezionati)"),
                            fraScelte);
    nota->setObjectName("lblNota");
    nota->setWordWrap(true);
    gs->addWidget(chkMeseDi_, 0, 0);
    gs->addWidget(cboMesi_, 0, 1, 1, 2);
    gs->addWidget(chkData_, 1, 0);
    gs->addWidget(cboGiorno_, 1, 1);
    gs->addWidget(cboMesi1_, 1, 2);
    gs->addWidget(nota, 2, 0, 1, 3);
    principale->addWidget(fraScelte);

    // A working list of the system with no part in what is printed.
    lstOrdin_ = new QListWidget(this);
    lstOrdin_->setObjectName("lstOrdin");
    lstOrdin_->hide();

    auto* pulsanti = new QHBoxLayout;
    if (gioco_ == Gioco::Lotto) {
        chkDettagliata_ = new QCheckBox(QStringLiteral("Dettagliata"), this);
        chkDettagliata_->setObjectName("chkDettagliata");
        pulsanti->addWidget(chkDettagliata_);
    }
    pulsanti->addStretch();
    auto pulsante = [this, pulsanti](const char* nome, const char* testo) {
        auto* b = new QPushButton(QString::fromUtf8(testo), this);
        b->setObjectName(nome);
        pulsanti->addWidget(b);
        return b;
    };
    cmdStampa_ = pulsante("cmdStampa", "Stampa");
    cmdAnteprima_ = pulsante("cmdAnteprima", "Anteprima");
    cmdAnteprima_->setToolTip(QStringLiteral("Mostra le pagine prima di stamparle"));
    cmdPdf_ = pulsante("cmdPdf", "PDF...");
    cmdPdf_->setToolTip(QStringLiteral("Salva le pagine in un file PDF"));
    cmdHelp_ = pulsante("cmdHelp", "?");
    cmdEsci_ = pulsante("cmdEsci", "Esci");
    principale->addLayout(pulsanti);

    connect(cmdStampa_, &QPushButton::clicked, this, [this] { Stampa(DestinazioneStampa::Dialogo); });
    connect(cmdAnteprima_, &QPushButton::clicked, this, [this] { Stampa(DestinazioneStampa::Anteprima); });
    connect(cmdPdf_, &QPushButton::clicked, this, [this] { ScegliPdf(); });
    connect(cmdHelp_, &QPushButton::clicked, this, [this] { HelpContext(this, sessione_.ini, AiutoStampaEstrazioni); });
    connect(cmdEsci_, &QPushButton::clicked, this, [this] { close(); });
}

maintenance::ParametriStampaEstrazioni FrmStampaEstrazioni::Parametri() const {
    maintenance::ParametriStampaEstrazioni p;
    p.dataInizio = txtDataInizio_->text().toStdString();
    p.dataFine = txtDataFine_->text().toStdString();
    p.ruota = cboRuota_ ? cboRuota_->currentIndex() : 0;
    p.soloMese = chkMeseDi_->isChecked();
    p.mese = cboMesi_->currentIndex() + 1;
    p.dataVicina = chkData_->isChecked();
    p.giorno = cboGiorno_->currentIndex() + 1;
    p.meseVicino = cboMesi1_->currentIndex() + 1;
    p.dettagliata = chkDettagliata_ && chkDettagliata_->isChecked();
    return p;
}

maintenance::StampaComposta FrmStampaEstrazioni::Componi() {
    const archives::Archivio& a = archivio_;
    const auto p = Parametri();
    maintenance::StampaComposta s;
    {
        CMouse attesa;
        s = gioco_ == Gioco::Lotto           ? maintenance::ComponiStampaLotto(a, p)
            : gioco_ == Gioco::SuperEnalotto ? maintenance::ComponiStampaSuper(a, p)
                                             : maintenance::ComponiStampa10eLotto(a, p);
    }
    // The boxes take the dates of the draws found.
    for (auto [testo, scatola, picker] :
         {std::tuple{s.dataInizio, txtDataInizio_, DTPickerDa_}, std::tuple{s.dataFine, txtDataFine_, DTPickerA_}}) {
        if (testo.empty()) continue;
        const QSignalBlocker blocca(picker);
        picker->setDate(DataQt(testo));
        scatola->setText(Q(testo));
    }
    if (!s.errore.vuoto()) {
        MostraMessaggio(this, s.errore);
        s.righe.clear();
    }
    return s;
}

OpzioniStampa FrmStampaEstrazioni::Opzioni(const maintenance::StampaComposta& s) {
    OpzioniStampa o;
    o.font = Q(s.font);
    o.punti = s.punti;
    // The pages come with their headers and breaks: the service only draws them.
    o.righePerPagina = 0;
    return o;
}

bool FrmStampaEstrazioni::Stampa(DestinazioneStampa destinazione) {
    const auto s = Componi();
    if (s.righe.empty()) return false;
    return StampaReport(this, s.righe, Opzioni(s), destinazione);
}

bool FrmStampaEstrazioni::EsportaPdf(const QString& file) {
    const auto s = Componi();
    if (s.righe.empty()) return false;
    if (!StampaReportPdf(file, s.righe, Opzioni(s))) {
        MostraMessaggio(this, {"Impossibile scrivere il file " + file.toStdString(), "Errore", archives::Icona::Stop});
        return false;
    }
    return true;
}

void FrmStampaEstrazioni::ScegliPdf() {
    const QString cartella = QString::fromStdString(sessione_.PercorsoProgramma.string());
    const QString file = QFileDialog::getSaveFileName(this, QStringLiteral("Salva in PDF"),
                                                      cartella + QStringLiteral("/StampaEstrazioni.pdf"),
                                                      QStringLiteral("Documenti PDF (*.pdf)"));
    if (!file.isEmpty()) EsportaPdf(file);
}

void FrmStampaEstrazioni::changeEvent(QEvent* e) {
    if (e->type() == QEvent::ActivationChange && isActiveWindow()) sessione_.FormCorrente = this;
    QWidget::changeEvent(e);
}

void FrmStampaEstrazioni::showEvent(QShowEvent* e) {
    QWidget::showEvent(e);
    // No place of its own in the settings: it opens in the middle of the screen.
    if (!centrata_) {
        centrata_ = true;
        Centra(this);
    }
}

}  // namespace gorgo::screens
