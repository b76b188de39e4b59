#include "screens/studies/frm_ambate_ambi_terni_multi.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

#include "archives/regole.h"
#include "config/impostazioni.h"
#include "config/ini.h"
#include "screens/common/aiuto.h"
#include "screens/common/caselle.h"
#include "screens/common/messaggi.h"
#include "screens/common/stile.h"
#include "screens/common/twips.h"
#include "screens/studies/liste_studi.h"

namespace gorgo::screens {

using namespace gorgo::studies;

FrmAmbateAmbiTerniMulti::FrmAmbateAmbiTerniMulti(Sessione& sessione, const archives::Archivio& archivio,
                                                 QWidget* parent)
    : QWidget(parent, Qt::Window), sessione_(sessione), archivio_(archivio), storia_(archivio.Storia()) {
    setObjectName("frmAmbateAmbiTerniMulti");
    setWindowTitle(QStringLiteral("Ambate - Ambi - Terni Multiruota"));
    setAttribute(Qt::WA_DeleteOnClose);
    const auto caselle = config::CaricaRuote(
        config::LeggiImpostazione(sessione_.ini, config::sezioni::Settings, "Ruota", "YNNNNNNNNNN"));
    for (int w = 1; w <= archives::NumeroRuote; ++w)
        if (caselle[static_cast<size_t>(w)]) ruota_ = w;
    CreaControlli();
    ApplicaStile(this, sessione_.ini);
    RipristinaPosizione(this, sessione_.ini, "AmbateAmbiTerniLeft", "AmbateAmbiTerniTop");
    DTPickerAl_->setDate(DataQt(storia_->DataEstrazione(storia_->NumeroEstrazioni())));
    MostraBase(storia_->NumeroEstrazioni());
}

void FrmAmbateAmbiTerniMulti::CreaControlli() {
    auto* principale = new QVBoxLayout(this);
    auto* fraRuote = new QGroupBox(QStringLiteral("Ruota originale di ricerca"), this);
    auto* gr = new QGridLayout(fraRuote);
    QStringList nomi;
    for (int w = 1; w <= archives::NumeroRuote; ++w) nomi << Q(NomeRuota(w));
    CreaCaselle<QCheckBox>(fraRuote, gr, {}, "chkRuota", 1, nomi, std::span(chkRuota_).subspan(1));
    for (int w = 1; w <= archives::NumeroRuote; ++w) {
        chkRuota_[static_cast<size_t>(w)]->setChecked(w == ruota_);
        connect(chkRuota_[static_cast<size_t>(w)], &QCheckBox::clicked, this, [this, w] {
            ruota_ = w;
            for (int k = 1; k <= archives::NumeroRuote; ++k) chkRuota_[static_cast<size_t>(k)]->setChecked(k == w);
            config::CaselleRuote c{};
            c[static_cast<size_t>(w)] = true;
            config::ScriviImpostazione(sessione_.ini, config::sezioni::Settings, "Ruota", config::LettereRuote(c));
            MostraBase(base_);
        });
    }
    principale->addWidget(fraRuote);

    auto* riga = new QHBoxLayout;
    DTPickerA_ = CreaDataEstrazione(this, "DTPickerA");
    connect(DTPickerA_, &QDateEdit::editingFinished, this, [this] {
        const auto r = storia_->CercaIndice(*archives::Data::daTesto(TestoData(DTPickerA_)), false);
        MostraBase(r ? r->IndiceTrovato : storia_->NumeroEstrazioni());
    });
    auto* cmdDataPrec = new QPushButton(QStringLiteral("<<"), this);
    cmdDataPrec->setObjectName("cmdDataPrec");
    auto* cmdDataSucc = new QPushButton(QStringLiteral(">>"), this);
    cmdDataSucc->setObjectName("cmdDataSucc");
    auto* cmdUltima = new QPushButton(QStringLiteral("+1 Estrazione"), this);
    cmdUltima->setObjectName("cmdUltima");
    connect(cmdDataPrec, &QPushButton::clicked, this, [this] { MostraBase(base_ - 1); });
    connect(cmdDataSucc, &QPushButton::clicked, this, [this] { MostraBase(base_ + 1); });
    connect(cmdUltima, &QPushButton::clicked, this, [this] { MostraBase(storia_->NumeroEstrazioni()); });
    lblNumero_ = new QLabel(this);
    lblNumero_->setObjectName("lblNumero");
    for (QWidget* w : std::initializer_list<QWidget*>{DTPickerA_, cmdDataPrec, cmdDataSucc, cmdUltima, lblNumero_})
        riga->addWidget(w);
    riga->addStretch();
    principale->addLayout(riga);

    auto* fraParametri = new QGroupBox(this);
    auto* gp = new QGridLayout(fraParametri);
    gp->addWidget(new QLabel(QStringLiteral("Ricerca per "), fraParametri), 0, 0);
    cboTipoRicerca_ = new QComboBox(fraParametri);
    cboTipoRicerca_->setObjectName("cboTipoRicerca");
    for (auto t : TestiTipoMultiruota) cboTipoRicerca_->addItem(Q(t));
    connect(cboTipoRicerca_, &QComboBox::currentIndexChanged, this, [this] { MostraBase(base_); });
    gp->addWidget(cboTipoRicerca_, 0, 1);
    txtVolte_ = new QLineEdit(QStringLiteral("18"), fraParametri);
    txtVolte_->setObjectName("txtVolte");
    txtEstrazioni_ = new QLineEdit(QStringLiteral("10"), fraParametri);
    txtEstrazioni_->setObjectName("txtEstrazioni");
    for (QLineEdit* t : {txtVolte_, txtEstrazioni_}) {
        t->setMaxLength(4);
        t->setFixedWidth(56);
        t->setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9]*"), t));
    }
    gp->addWidget(txtVolte_, 0, 2);
    gp->addWidget(new QLabel(QStringLiteral("volte entro le"), fraParametri), 0, 3);
    gp->addWidget(txtEstrazioni_, 0, 4);
    gp->addWidget(new QLabel(QStringLiteral("estrazioni successive   (0 = ricerca fino alla prima estrazione utile)"),
                             fraParametri),
                  0, 5);
    optCalcolo_[0] =
        new QRadioButton(QStringLiteral("Classifica dei dati in base alle percentuali delle  11 ruote"), fraParametri);
    optCalcolo_[1] =
        new QRadioButton(QStringLiteral("Classifica dei dati in base alle presenze nei cicli richiesti"), fraParametri);
    optCalcolo_[0]->setObjectName("optCalcolo_0");
    optCalcolo_[1]->setObjectName("optCalcolo_1");
    optCalcolo_[0]->setChecked(true);
    gp->addWidget(optCalcolo_[0], 1, 0, 1, 3);
    gp->addWidget(optCalcolo_[1], 1, 3, 1, 3);
    for (int k = 0; k < 2; ++k)
        connect(optCalcolo_[static_cast<size_t>(k)], &QRadioButton::toggled, this, [this, k](bool acceso) {
            // Only the ranking changes: the counts of the last search stay.
            if (!acceso || esito_.formazioni.empty()) return;
            ClassificaMultiruota(esito_, k);
            parametri_.Classifica = k;
            RiempiListaStudi(ListView1_, esito_.righe);
            lblRuotaMigliore_->setText(Q(esito_.ruotaMigliore));
        });
    auto* cmdCalcola = new QPushButton(QStringLiteral("Calcola"), fraParametri);
    cmdCalcola->setObjectName("cmdCalcola");
    connect(cmdCalcola, &QPushButton::clicked, this, &FrmAmbateAmbiTerniMulti::Calcola);
    gp->addWidget(cmdCalcola, 0, 6);
    auto* cmdNonSfaldate = new QPushButton(QStringLiteral("Non sfaldati al -->"), fraParametri);
    cmdNonSfaldate->setObjectName("cmdNonSfaldate");
    DTPickerAl_ = CreaDataEstrazione(fraParametri, "DTPickerAl");
    connect(cmdNonSfaldate, &QPushButton::clicked, this, &FrmAmbateAmbiTerniMulti::NonSfaldate);
    gp->addWidget(cmdNonSfaldate, 1, 6);
    gp->addWidget(DTPickerAl_, 1, 7);
    principale->addWidget(fraParametri);

    lblFormazione_ = new QLabel(this);
    lblFormazione_->setObjectName("lblFormazione");
    lblFormazione_->setWordWrap(true);
    principale->addWidget(lblFormazione_);
    QStringList testa = {"Formazione"};
    for (int k = 1; k <= 10; ++k) testa << QStringLiteral("%1' Ruota").arg(k);
    ListView1_ = CreaListaStudi(this, "ListView1", testa, false);
    connect(ListView1_, &QTreeWidget::itemClicked, this,
            [this](QTreeWidgetItem* it) { Dettaglio(ListView1_->indexOfTopLevelItem(it)); });
    principale->addWidget(ListView1_, 1);
    lblRuotaMigliore_ = new QLabel(this);
    lblRuotaMigliore_->setObjectName("lblRuotaMigliore");
    principale->addWidget(lblRuotaMigliore_);
    ListViewNumeri_ =
        CreaListaStudi(this, "ListViewNumeri", {"Data", "1'", "2'", "3'", "4'", "5'", "Colpo", "Ruota"}, false);
    principale->addWidget(ListViewNumeri_, 1);

    auto* pulsanti = new QHBoxLayout;
    auto* cmdStampa = new QPushButton(QStringLiteral("Stampa"), this);
    cmdStampa->setObjectName("cmdStampa");
    auto* cmdPrintToFile = new QPushButton(QStringLiteral("Su file"), this);
    cmdPrintToFile->setObjectName("cmdPrintToFile");
    auto* cmdAiuto = new QPushButton(QStringLiteral("Aiuto"), this);
    cmdAiuto->setObjectName("cmdAiuto");
    connect(cmdStampa, &QPushButton::clicked, this, [this] { Report(true); });
    connect(cmdPrintToFile, &QPushButton::clicked, this, [this] { Report(false); });
    connect(cmdAiuto, &QPushButton::clicked, this,
            [this] { MostraAiuto(this, sessione_, QStringLiteral("[Ambate ambi e terni multiruota]")); });
    pulsanti->addWidget(cmdStampa);
    pulsanti->addWidget(cmdPrintToFile);
    pulsanti->addStretch();
    pulsanti->addWidget(cmdAiuto);
    principale->addLayout(pulsanti);
}

ParametriMultiruota FrmAmbateAmbiTerniMulti::Parametri() const {
    ParametriMultiruota p;
    p.RuotaRicerca = ruota_;
    p.Base = base_;
    p.TipoRicerca = static_cast<TipoMultiruota>(cboTipoRicerca_->currentIndex());
    p.Volte = txtVolte_->text().toInt();
    p.Estrazioni = txtEstrazioni_->text().toInt();
    p.Classifica = optCalcolo_[1]->isChecked() ? 1 : 0;
    return p;
}

void FrmAmbateAmbiTerniMulti::MostraBase(int32_t indice) {
    storia_ = archivio_.Storia();
    base_ = std::clamp(indice, 1, storia_->NumeroEstrazioni());
    DTPickerA_->setDate(DataQt(storia_->DataEstrazione(base_)));
    const auto formazioni = Formazioni((*storia_)[base_], ruota_, Parametri().TipoRicerca);
    if (formazioni.empty()) {
        lblNumero_->setText(QStringLiteral("-"));
        lblFormazione_->clear();
        return;
    }
    const std::array<int, 5> c = {(*storia_)[base_].Numero(ruota_, 1), (*storia_)[base_].Numero(ruota_, 2),
                                  (*storia_)[base_].Numero(ruota_, 3), (*storia_)[base_].Numero(ruota_, 4),
                                  (*storia_)[base_].Numero(ruota_, 5)};
    lblNumero_->setText(QStringLiteral("%1 - %2 %3 %4 %5 %6")
                            .arg(Q(NomeRuota(ruota_)))
                            .arg(c[0])
                            .arg(c[1])
                            .arg(c[2])
                            .arg(c[3])
                            .arg(c[4]));
    QStringList testi;
    for (const auto& f : formazioni) testi << Q(TestoFormazione(f));
    lblFormazione_->setText(testi.join(QStringLiteral("   ")));
}

void FrmAmbateAmbiTerniMulti::Calcola() {
    const ParametriMultiruota p = Parametri();
    if (Formazioni((*storia_)[p.Base], p.RuotaRicerca, p.TipoRicerca).empty() && p.Volte >= 1) return;
    EsitoMultiruota e = RicercaMultiruota(*storia_, p);
    if (!e.errore.vuoto()) {
        MostraMessaggio(this, e.errore);
        txtVolte_->setFocus();
        return;
    }
    esito_ = std::move(e);
    parametri_ = p;
    RiempiListaStudi(ListView1_, esito_.righe);
    lblRuotaMigliore_->setText(Q(esito_.ruotaMigliore));
    ListViewNumeri_->clear();
}

void FrmAmbateAmbiTerniMulti::Dettaglio(int formazione) {
    if (formazione < 0) return;
    const EsitoDettaglio d = DettaglioFormazione(*storia_, Parametri(), static_cast<size_t>(formazione));
    if (!d.errore.vuoto()) {
        MostraMessaggio(this, d.errore);
        txtVolte_->setFocus();
        return;
    }
    RiempiListaStudi(ListViewNumeri_, d.righe);
}

void FrmAmbateAmbiTerniMulti::NonSfaldate() {
    const archives::RisultatoData r = archives::ControllaData(TestoData(DTPickerAl_), *storia_, false);
    if (r.ErroreData) {
        MostraMessaggio(this, r.messaggio);
        return;
    }
    const EsitoDettaglio d = NonSfaldati(*storia_, Parametri(), r.IndiceTrovato);
    if (!d.errore.vuoto()) {
        MostraMessaggio(this, d.errore);
        txtVolte_->setFocus();
        return;
    }
    RiempiListaStudi(ListViewNumeri_, d.righe);
}

void FrmAmbateAmbiTerniMulti::Report(bool stampa) {
    OpzioniStampa o;
    o.titolo1 = QStringLiteral("Ambate - Ambi - Terni Multiruota");
    const config::ReportTesto r = ReportMultiruota(parametri_, esito_, stampa);
    if (stampa)
        StampaStudio(this, r, esito_.righe.empty(), o);
    else
        SalvaStudio(this, sessione_, r, esito_.righe.empty(), QStringLiteral("Multiruota"), DomandaFile::InCalce,
                    Q(config::FiltroFileTesto), config::NullaDaStampare);
}

void FrmAmbateAmbiTerniMulti::closeEvent(QCloseEvent* e) {
    SalvaPosizione(this, sessione_.ini, "AmbateAmbiTerniLeft", "AmbateAmbiTerniTop");
    QWidget::closeEvent(e);
}

}  // namespace gorgo::screens
