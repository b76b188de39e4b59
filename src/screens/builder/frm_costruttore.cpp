#include "screens/builder/frm_costruttore.h"

#include <QButtonGroup>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QIntValidator>
#include <QSplitter>
#include <QVBoxLayout>
#include <fmt/format.h>

#include "builder/report.h"
#include "archives/archivio.h"
#include "config/impostazioni.h"
#include "screens/common/twips.h"
#include "screens/builder/satelliti.h"
#include "screens/common/elaborazioni.h"
#include "screens/common/messaggi.h"
#include "screens/common/stampa.h"
#include "screens/common/stile.h"

namespace gorgo::screens {

namespace {

QString Q(std::string_view s) { return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size())); }

QDate DataQt(const std::string& gg_mm_aaaa) { return QDate::fromString(QString::fromStdString(gg_mm_aaaa), "dd/MM/yyyy"); }

// Lists sort by the text of their cells, the numbers being right-justified in them.
QTreeWidget* Lista(QWidget* parent, const char* nome, const QStringList& teste) {
    auto* l = new QTreeWidget(parent);
    l->setObjectName(nome);
    l->setHeaderLabels(teste);
    l->setRootIsDecorated(false);
    l->setUniformRowHeights(true);
    l->setSortingEnabled(true);
    l->setAlternatingRowColors(true);
    QFont f(QStringLiteral("Monospace"));
    f.setStyleHint(QFont::TypeWriter);
    l->setFont(f);
    return l;
}

constexpr const char* kTipiRicerca[] = {"Ambate", "Ambi", "Terzine x ambo", "Terzine x terno", "Codici Tordelli"};
constexpr const char* kTipiRicercaAmbo[] = {"Ambate", "Ambi (posiz. q.e.)"};

}  // namespace

FrmCostruttore::FrmCostruttore(Sessione& sessione, const archives::Archivio& archivio, QWidget* parent)
    : QWidget(parent, Qt::Window), sessione_(sessione) {
    setObjectName("frmCostruttore");
    setWindowTitle(QStringLiteral("Gorgo 2 - Ideato da Sergio Tordelli"));
    setAttribute(Qt::WA_DeleteOnClose);
    contesto_ = std::make_unique<builder::ContestoCostruttore>(
        builder::PreparaCostruttore(archivio.Storia(), sessione_.ini, sessione_.PercorsoProgramma));
    CreaControlli();
    AggiornaPerSpia();
    AggiornaPerTipoRicerca();
    ApplicaStile(this, sessione_.ini);
    RipristinaPosizione(this, sessione_.ini, "GorgoLeft", "GorgoTop");
}

FrmCostruttore::~FrmCostruttore() = default;

bool FrmCostruttore::InElaborazione() const { return elaborazione_; }

void FrmCostruttore::CreaControlli() {
    const archives::StoriaLotto& storia = *contesto_->storia;
    auto* principale = new QHBoxLayout(this);
    auto* sinistra = new QVBoxLayout;
    principale->addLayout(sinistra, 0);

    // The spy.
    auto* fraSpia = new QGroupBox(QStringLiteral("Spia"), this);
    fraSpia->setObjectName("fraSpia");
    auto* gs = new QGridLayout(fraSpia);
    const char* spie[] = {"Numero spia", "Somma spia", "Differenza spia", "Ambo spia"};
    auto* gruppoSpia = new QButtonGroup(this);
    for (int i = 0; i < 4; ++i) {
        optSpia_[static_cast<size_t>(i)] = new QRadioButton(Q(spie[i]), fraSpia);
        optSpia_[static_cast<size_t>(i)]->setObjectName(QStringLiteral("optSpia_%1").arg(i));
        gruppoSpia->addButton(optSpia_[static_cast<size_t>(i)], i);
        gs->addWidget(optSpia_[static_cast<size_t>(i)], i / 2, i % 2);
    }
    optSpia_[0]->setChecked(true);
    auto* gruppoTipo = new QButtonGroup(this);
    for (int i = 0; i < 3; ++i) {
        optTipo_[static_cast<size_t>(i)] = new QRadioButton(fraSpia);
        optTipo_[static_cast<size_t>(i)]->setObjectName(QStringLiteral("optTipo_%1").arg(i));
        gruppoTipo->addButton(optTipo_[static_cast<size_t>(i)], i);
        gs->addWidget(optTipo_[static_cast<size_t>(i)], 2 + i, 0);
    }
    optTipo_[0]->setChecked(true);
    cboNumero_ = new QComboBox(fraSpia);
    cboNumero_->setObjectName("cboNumero");
    for (int n = 1; n <= 90; ++n) cboNumero_->addItem(QString::number(n));
    gs->addWidget(cboNumero_, 2, 1);
    // The ambo spy's frame takes the place of the numeric one.
    auto* fraTipologiaAmbi = new QWidget(fraSpia);
    fraTipologiaAmbi->setObjectName("fraTipologiaAmbi");
    auto* ga = new QHBoxLayout(fraTipologiaAmbi);
    ga->setContentsMargins(0, 0, 0, 0);
    for (int i = 1; i <= 2; ++i) {
        txtAmbo_[static_cast<size_t>(i)] = new QLineEdit(fraTipologiaAmbi);
        txtAmbo_[static_cast<size_t>(i)]->setObjectName(QStringLiteral("txtAmbo_%1").arg(i));
        txtAmbo_[static_cast<size_t>(i)]->setMaxLength(2);
        txtAmbo_[static_cast<size_t>(i)]->setValidator(new QIntValidator(0, 99, txtAmbo_[static_cast<size_t>(i)]));
        txtAmbo_[static_cast<size_t>(i)]->setMaximumWidth(40);
        ga->addWidget(txtAmbo_[static_cast<size_t>(i)]);
    }
    auto* gruppoAmbi = new QButtonGroup(this);
    const char* ambi[] = {"Ambo fisso", "Tutti gli ambi"};
    for (int i = 0; i < 2; ++i) {
        optTipoAmbi_[static_cast<size_t>(i)] = new QRadioButton(Q(ambi[i]), fraTipologiaAmbi);
        optTipoAmbi_[static_cast<size_t>(i)]->setObjectName(QStringLiteral("optTipoAmbi_%1").arg(i));
        gruppoAmbi->addButton(optTipoAmbi_[static_cast<size_t>(i)], i);
        ga->addWidget(optTipoAmbi_[static_cast<size_t>(i)]);
    }
    optTipoAmbi_[0]->setChecked(true);
    gs->addWidget(fraTipologiaAmbi, 5, 0, 1, 2);
    // Positions of the spy.
    auto* gruppoPos = new QButtonGroup(this);
    const char* posizioni[] = {"Tutte le posizioni", "Posizione determinata"};
    auto* rigaPos = new QHBoxLayout;
    for (int i = 0; i < 2; ++i) {
        optPosizioni_[static_cast<size_t>(i)] = new QRadioButton(Q(posizioni[i]), fraSpia);
        optPosizioni_[static_cast<size_t>(i)]->setObjectName(QStringLiteral("optPosizioni_%1").arg(i));
        gruppoPos->addButton(optPosizioni_[static_cast<size_t>(i)], i);
        rigaPos->addWidget(optPosizioni_[static_cast<size_t>(i)]);
    }
    optPosizioni_[0]->setChecked(true);
    for (int p = 1; p <= 5; ++p) {
        chkPosizione_[static_cast<size_t>(p)] = new QCheckBox(QString::number(p), fraSpia);
        chkPosizione_[static_cast<size_t>(p)]->setObjectName(QStringLiteral("chkPosizione_%1").arg(p));
        rigaPos->addWidget(chkPosizione_[static_cast<size_t>(p)]);
    }
    gs->addLayout(rigaPos, 6, 0, 1, 2);
    sinistra->addWidget(fraSpia);

    // The period.
    auto* fraPeriodo = new QGroupBox(QStringLiteral("Periodo"), this);
    fraPeriodo->setObjectName("fraPeriodo");
    auto* gp = new QGridLayout(fraPeriodo);
    auto* gruppoPeriodo = new QButtonGroup(this);
    optPeriodo_[0] = new QRadioButton(QStringLiteral("Dal"), fraPeriodo);
    optPeriodo_[1] = new QRadioButton(QStringLiteral("Ultime sortite"), fraPeriodo);
    for (int i = 0; i < 2; ++i) {
        optPeriodo_[static_cast<size_t>(i)]->setObjectName(QStringLiteral("optPeriodo_%1").arg(i));
        gruppoPeriodo->addButton(optPeriodo_[static_cast<size_t>(i)], i);
    }
    optPeriodo_[0]->setChecked(true);
    DTPickerDa_ = new QDateEdit(DataQt(builder::DataDaPredefinita(storia)), fraPeriodo);
    DTPickerDa_->setObjectName("DTPickerDa");
    DTPickerA_ = new QDateEdit(DataQt(builder::DataAPredefinita(storia)), fraPeriodo);
    DTPickerA_->setObjectName("DTPickerA");
    for (QDateEdit* d : {DTPickerDa_, DTPickerA_}) {
        d->setDisplayFormat("dd/MM/yyyy");
        d->setCalendarPopup(true);
        d->setMinimumDate(QDate(1871, 1, 7));
    }
    DTPickerA_->setMaximumDate(DataQt(storia.DataEstrazione(storia.NumeroEstrazioni())));
    cboSortite_ = new QComboBox(fraPeriodo);
    cboSortite_->setObjectName("cboSortite");
    for (int n = 1; n <= 90; ++n) cboSortite_->addItem(QString::number(n));
    cboSortite_->setCurrentIndex(9);
    gp->addWidget(optPeriodo_[0], 0, 0);
    gp->addWidget(DTPickerDa_, 0, 1);
    gp->addWidget(new QLabel(QStringLiteral("al"), fraPeriodo), 0, 2);
    gp->addWidget(DTPickerA_, 0, 3);
    gp->addWidget(optPeriodo_[1], 1, 0);
    gp->addWidget(cboSortite_, 1, 1);
    cboIndice_ = new QComboBox(fraPeriodo);
    cboIndice_->setObjectName("cboIndice");
    cboIndice_->addItem(QStringLiteral("Ultima"));
    for (int n = 1; n <= 21; ++n) cboIndice_->addItem(QString::number(n));
    cboIndice_->addItem(QStringLiteral("Tutti"));
    chkTuttiGliIndici_ = new QCheckBox(QStringLiteral("Tutti gli indici"), fraPeriodo);
    chkTuttiGliIndici_->setObjectName("chkTuttiGliIndici");
    gp->addWidget(new QLabel(QStringLiteral("Indice mensile"), fraPeriodo), 2, 0);
    gp->addWidget(cboIndice_, 2, 1);
    gp->addWidget(chkTuttiGliIndici_, 2, 2, 1, 2);
    sinistra->addWidget(fraPeriodo);

    // The wheels, of search and of play.
    auto* fraRuote = new QGroupBox(QStringLiteral("Ruote di ricerca / di gioco"), this);
    fraRuote->setObjectName("fraRuote");
    auto* gr = new QGridLayout(fraRuote);
    const config::CaselleRuote ricerca = config::CaricaRuoteConNz(config::LeggiImpostazione(
        sessione_.ini, config::sezioni::Settings, "RuoteConNz", config::Predefinito(config::sezioni::Settings, "RuoteConNz")));
    const config::CaselleRuote gioco = config::CaricaRuoteGioco(config::LeggiImpostazione(
        sessione_.ini, config::sezioni::Settings, "RuoteConNzGioco",
        config::Predefinito(config::sezioni::Settings, "RuoteConNzGioco")));
    caricamento_ = true;
    for (int w = 0; w <= 11; ++w) {
        const QString nome = w == 0 ? QStringLiteral("Tutte") : Q(archives::SigleRuota[static_cast<size_t>(w)]);
        chkRuota_[static_cast<size_t>(w)] = new QCheckBox(nome, fraRuote);
        chkRuota_[static_cast<size_t>(w)]->setObjectName(QStringLiteral("chkRuota_%1").arg(w));
        chkRuota_[static_cast<size_t>(w)]->setChecked(ricerca[static_cast<size_t>(w)]);
        chkRuotaG_[static_cast<size_t>(w)] = new QCheckBox(nome, fraRuote);
        chkRuotaG_[static_cast<size_t>(w)]->setObjectName(QStringLiteral("chkRuotaG_%1").arg(w));
        chkRuotaG_[static_cast<size_t>(w)]->setChecked(gioco[static_cast<size_t>(w)]);
        gr->addWidget(chkRuota_[static_cast<size_t>(w)], w / 6, w % 6);
        gr->addWidget(chkRuotaG_[static_cast<size_t>(w)], 3 + w / 6, w % 6);
        connect(chkRuota_[static_cast<size_t>(w)], &QCheckBox::clicked, this, [this, w] { ClicRuota(w, false); });
        connect(chkRuotaG_[static_cast<size_t>(w)], &QCheckBox::clicked, this, [this, w] { ClicRuota(w, true); });
    }
    caricamento_ = false;
    gr->addWidget(new QLabel(QStringLiteral("di gioco:"), fraRuote), 2, 0, 1, 6);
    sinistra->addWidget(fraRuote);

    // The play and the kind of search.
    auto* fraGioco = new QGroupBox(QStringLiteral("Gioco"), this);
    fraGioco->setObjectName("fraGioco");
    auto* gg = new QGridLayout(fraGioco);
    txtColpi_ = new QLineEdit(QStringLiteral("9"), fraGioco);
    txtColpi_->setObjectName("txtColpi");
    txtColpi_->setMaxLength(3);
    txtColpi_->setValidator(new QIntValidator(0, 999, txtColpi_));
    txtColpi_->setMaximumWidth(50);
    chkUltime_ = new QCheckBox(QStringLiteral("Controlla le ultime 9 estraz."), fraGioco);
    chkUltime_->setObjectName("chkUltime");
    chkUltime_->setChecked(true);
    cboTipoRicerca_ = new QComboBox(fraGioco);
    cboTipoRicerca_->setObjectName("cboTipoRicerca");
    chkPosizionale_ = new QCheckBox(QStringLiteral("Solo posizione sul q.e."), fraGioco);
    chkPosizionale_->setObjectName("chkPosizionale");
    gg->addWidget(new QLabel(QStringLiteral("Colpi"), fraGioco), 0, 0);
    gg->addWidget(txtColpi_, 0, 1);
    gg->addWidget(chkUltime_, 0, 2);
    gg->addWidget(cboTipoRicerca_, 1, 0, 1, 2);
    gg->addWidget(chkPosizionale_, 1, 2);
    fraValidita_ = new QGroupBox(QStringLiteral("Validità algoritmo"), fraGioco);
    fraValidita_->setObjectName("fraValidita");
    auto* gv = new QHBoxLayout(fraValidita_);
    gv->addWidget(new QLabel(QStringLiteral("Posizione definita dell'ambata"), fraValidita_));
    for (int p = 1; p <= 5; ++p) {
        chkPosizioneA_[static_cast<size_t>(p)] = new QCheckBox(QString::number(p), fraValidita_);
        chkPosizioneA_[static_cast<size_t>(p)]->setObjectName(QStringLiteral("chkPosizioneA_%1").arg(p));
        chkPosizioneA_[static_cast<size_t>(p)]->setChecked(true);
        gv->addWidget(chkPosizioneA_[static_cast<size_t>(p)]);
    }
    gg->addWidget(fraValidita_, 2, 0, 1, 3);
    fraCodici_ = new QGroupBox(QStringLiteral("Sorte"), fraGioco);
    fraCodici_->setObjectName("fraCodici");
    auto* gc = new QHBoxLayout(fraCodici_);
    auto* gruppoSorte = new QButtonGroup(this);
    const char* sorti[] = {"Ambi", "Terni"};
    for (int i = 0; i < 2; ++i) {
        optSorte_[static_cast<size_t>(i)] = new QRadioButton(Q(sorti[i]), fraCodici_);
        optSorte_[static_cast<size_t>(i)]->setObjectName(QStringLiteral("optSorte_%1").arg(i));
        gruppoSorte->addButton(optSorte_[static_cast<size_t>(i)], i);
        gc->addWidget(optSorte_[static_cast<size_t>(i)]);
    }
    optSorte_[0]->setChecked(true);
    fraOperazioni_ = new QGroupBox(QStringLiteral("Operazioni"), fraGioco);
    fraOperazioni_->setObjectName("fraOperazioni");
    auto* go = new QHBoxLayout(fraOperazioni_);
    const char* operazioni[] = {"+", "-", "x"};
    for (int i = 0; i < 3; ++i) {
        chkOper_[static_cast<size_t>(i)] = new QCheckBox(Q(operazioni[i]), fraOperazioni_);
        chkOper_[static_cast<size_t>(i)]->setObjectName(QStringLiteral("chkOper_%1").arg(i));
        chkOper_[static_cast<size_t>(i)]->setChecked(true);
        go->addWidget(chkOper_[static_cast<size_t>(i)]);
    }
    gg->addWidget(fraCodici_, 3, 0, 1, 2);
    gg->addWidget(fraOperazioni_, 3, 2);
    sinistra->addWidget(fraGioco);

    cmdCalcola_ = new QPushButton(QStringLiteral("Calcola"), this);
    cmdCalcola_->setObjectName("cmdCalcola");
    cmdCalcola_->setMinimumHeight(36);
    connect(cmdCalcola_, &QPushButton::clicked, this, &FrmCostruttore::Calcola);
    sinistra->addWidget(cmdCalcola_);
    sinistra->addStretch();

    // The results.
    auto* destra = new QVBoxLayout;
    principale->addLayout(destra, 1);
    lblDescriviRicerca_ = new QLabel(this);
    lblDescriviRicerca_->setObjectName("lblDescriviRicerca");
    lblSortite_ = new QLabel(this);
    lblSortite_->setObjectName("lblSortite");
    lblPrevisioni_ = new QLabel(this);
    lblPrevisioni_->setObjectName("lblPrevisioni");
    destra->addWidget(lblDescriviRicerca_);
    destra->addWidget(lblSortite_);
    destra->addWidget(lblPrevisioni_);
    auto* divisore = new QSplitter(Qt::Vertical, this);
    ListaRisultati_ = Lista(divisore, "ListaRisultati",
                            {QStringLiteral("Descrizione algoritmo"), QStringLiteral("Sortite"),
                             QStringLiteral("Presenze/quantità"), QStringLiteral("% presenza"), TestaSpia()});
    lstVListaUscite_ = Lista(divisore, "lstVListaUscite",
                             {QStringLiteral("Data"), QStringLiteral("Ruota"), TestaSpia(), QStringLiteral("Pos."),
                              QStringLiteral("Ind.m."), QStringLiteral("Ind.a."), QStringLiteral("Progr.")});
    lvListaPrevisioni_ = Lista(divisore, "lvListaPrevisioni",
                               {QStringLiteral("Data spia"), QStringLiteral("Ruota"), TestaSpia(),
                                QStringLiteral("Pos."), QStringLiteral("Ind.m."), QStringLiteral("Ind.a."), QString(),
                                QStringLiteral("Previsione"), QStringLiteral("Data sor."), QStringLiteral("Ruota"),
                                QStringLiteral("C.po"), QString(), QString(), QStringLiteral("Algoritmo")});
    lvListaPrevisioni_->setColumnHidden(11, true);
    lvListaPrevisioni_->setColumnHidden(12, true);
    destra->addWidget(divisore, 1);
    connect(ListaRisultati_, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* r) { ApriAlgoritmo(r); });

    auto* rigaVerifica = new QHBoxLayout;
    lblDescrizioneRisultatiOttenuti_ = new QLabel(this);
    lblDescrizioneRisultatiOttenuti_->setObjectName("lblDescrizioneRisultatiOttenuti");
    lblCapo_ = new QLabel(this);
    lblCapo_->setObjectName("lblCapo");
    QFont grassetto = lblCapo_->font();
    grassetto.setBold(true);
    grassetto.setPointSize(grassetto.pointSize() + 2);
    lblCapo_->setFont(grassetto);
    lblDataPrevisione_ = new QLabel(this);
    lblDataPrevisione_->setObjectName("lblDataPrevisione");
    rigaVerifica->addWidget(lblDescrizioneRisultatiOttenuti_, 1);
    rigaVerifica->addWidget(lblDataPrevisione_);
    rigaVerifica->addWidget(lblCapo_);
    destra->addLayout(rigaVerifica);

    auto* comandi = new QGridLayout;
    chkSeleziona_ = new QCheckBox(QStringLiteral("Seleziona tutti"), this);
    chkSeleziona_->setObjectName("chkSeleziona");
    connect(chkSeleziona_, &QCheckBox::clicked, this, [this](bool on) {
        for (int i = 0; i < ListaRisultati_->topLevelItemCount(); ++i)
            ListaRisultati_->topLevelItem(i)->setCheckState(0, on ? Qt::Checked : Qt::Unchecked);
    });
    chkMigliore_ = new QCheckBox(QStringLiteral("Elenca solo i migliori"), this);
    chkMigliore_->setObjectName("chkMigliore");
    chkRiepilogo_ = new QCheckBox(QStringLiteral("Vedi dettaglio"), this);
    chkRiepilogo_->setObjectName("chkRiepilogo");
    txtColpiDaGiocare_ = new QLineEdit(QStringLiteral("9"), this);
    txtColpiDaGiocare_->setObjectName("txtColpiDaGiocare");
    txtColpiDaGiocare_->setMaxLength(3);
    txtColpiDaGiocare_->setValidator(new QIntValidator(0, 999, txtColpiDaGiocare_));
    txtColpiDaGiocare_->setMaximumWidth(50);
    auto* selezionaInCorso = new QPushButton(QStringLiteral("Seleziona algoritmi in corso"), this);
    selezionaInCorso->setObjectName("cmdSelezionaAlgoInCorso");
    connect(selezionaInCorso, &QPushButton::clicked, this, &FrmCostruttore::SelezionaInCorso);
    auto* previsioni = new QPushButton(QStringLiteral("Calcolo previsioni..."), this);
    previsioni->setObjectName("cmdCalcoloPrevisioni");
    connect(previsioni, &QPushButton::clicked, this, &FrmCostruttore::CalcolaPrevisioni);
    const char* report[] = {"Riepilogo della tecnica selezionata", "Dettaglio vincite", "Dettaglio vincite"};
    for (int i = 0; i < 3; ++i) {
        cmdReport_[static_cast<size_t>(i)] = new QPushButton(Q(report[i]), this);
        cmdReport_[static_cast<size_t>(i)]->setObjectName(QStringLiteral("cmdReport_%1").arg(i));
        cmdReport_[static_cast<size_t>(i)]->setEnabled(false);
    }
    cmdReport_[1]->setToolTip(QString::fromUtf8("Disponibile in una prossima versione"));
    cmdReport_[2]->setVisible(false);
    connect(cmdReport_[0], &QPushButton::clicked, this, &FrmCostruttore::Riepilogo);
    auto* listaSortite = new QPushButton(QStringLiteral("Dettaglio lista delle sortite"), this);
    listaSortite->setObjectName("cmdListSortite");
    connect(listaSortite, &QPushButton::clicked, this, &FrmCostruttore::ListaSortite);
    auto* stampaAlgoritmi = new QPushButton(QStringLiteral("Stampa algoritmi"), this);
    stampaAlgoritmi->setObjectName("cmdStampaRisultati_0");
    connect(stampaAlgoritmi, &QPushButton::clicked, this, &FrmCostruttore::StampaAlgoritmi);
    auto* fileAlgoritmi = new QPushButton(QStringLiteral("Algoritmi su file"), this);
    fileAlgoritmi->setObjectName("cmdPrintToFileAlgoritmi");
    connect(fileAlgoritmi, &QPushButton::clicked, this, &FrmCostruttore::FileAlgoritmi);
    auto* stampaVerifica = new QPushButton(QStringLiteral("Stampa verifica"), this);
    stampaVerifica->setObjectName("cmdStampaRisultati_1");
    connect(stampaVerifica, &QPushButton::clicked, this, &FrmCostruttore::StampaVerifica);
    auto* fileVerifica = new QPushButton(QStringLiteral("Verifica su file"), this);
    fileVerifica->setObjectName("cmdPrintToFileRisultati");
    connect(fileVerifica, &QPushButton::clicked, this, &FrmCostruttore::FileVerifica);
    const char* coperture[] = {"cmdCoperturaTotale", "cmdCoperturaTotaleAmbo", "cmdCoperturaTotaleTerzine",
                               "cmdCoperturaTotaleCodici"};
    for (int i = 0; i < 4; ++i) {
        cmdCopertura_[static_cast<size_t>(i)] = new QPushButton(QStringLiteral("Copertura..."), this);
        cmdCopertura_[static_cast<size_t>(i)]->setObjectName(coperture[i]);
        cmdCopertura_[static_cast<size_t>(i)]->setEnabled(false);
        cmdCopertura_[static_cast<size_t>(i)]->setToolTip(QString::fromUtf8("Disponibile in una prossima versione"));
    }
    auto* rigaSelezione = new QHBoxLayout;
    rigaSelezione->addWidget(chkSeleziona_);
    rigaSelezione->addWidget(chkMigliore_);
    rigaSelezione->addStretch();
    rigaSelezione->addWidget(selezionaInCorso);
    rigaSelezione->addWidget(new QLabel(QStringLiteral("e  max"), this));
    rigaSelezione->addWidget(txtColpiDaGiocare_);
    rigaSelezione->addWidget(new QLabel(QStringLiteral("colpi al termine della giocata"), this));
    comandi->addLayout(rigaSelezione, 0, 0, 1, 4);
    comandi->addWidget(previsioni, 1, 0);
    comandi->addWidget(cmdReport_[0], 1, 1);
    comandi->addWidget(chkRiepilogo_, 1, 2);
    comandi->addWidget(cmdReport_[1], 1, 3);
    comandi->addWidget(stampaAlgoritmi, 2, 0);
    comandi->addWidget(fileAlgoritmi, 2, 1);
    comandi->addWidget(stampaVerifica, 2, 2);
    comandi->addWidget(fileVerifica, 2, 3);
    comandi->addWidget(listaSortite, 3, 0, 1, 2);
    for (int i = 0; i < 4; ++i) comandi->addWidget(cmdCopertura_[static_cast<size_t>(i)], 3, 2);
    destra->addLayout(comandi);

    // Any change of a search control empties the results, so that none is read against
    // other parameters than its own.
    auto svuota = [this] { SvuotaRisultati(); };
    for (auto* b : optSpia_) connect(b, &QRadioButton::toggled, this, [this, svuota](bool on) {
        if (on) {
            AggiornaPerSpia();
            svuota();
        }
    });
    for (auto* b : optTipo_) connect(b, &QRadioButton::toggled, this, [this, svuota](bool on) {
        if (on) {
            AggiornaPerSpia();
            svuota();
        }
    });
    connect(cboTipoRicerca_, &QComboBox::currentIndexChanged, this, [this, svuota] {
        AggiornaPerTipoRicerca();
        svuota();
    });
    connect(cboNumero_, &QComboBox::currentIndexChanged, this, svuota);
    connect(cboSortite_, &QComboBox::currentIndexChanged, this, svuota);
    connect(cboIndice_, &QComboBox::currentIndexChanged, this, svuota);
    connect(chkTuttiGliIndici_, &QCheckBox::toggled, this, [this](bool on) { cboIndice_->setCurrentIndex(on ? 22 : 0); });
    for (QDateEdit* d : {DTPickerDa_, DTPickerA_}) connect(d, &QDateEdit::dateChanged, this, svuota);
    for (auto* t : {txtAmbo_[1], txtAmbo_[2], txtColpi_}) connect(t, &QLineEdit::textEdited, this, svuota);
    for (auto* b : {optTipoAmbi_[0], optTipoAmbi_[1], optPosizioni_[0], optPosizioni_[1], optPeriodo_[0], optPeriodo_[1],
                    optSorte_[0], optSorte_[1]})
        connect(b, &QRadioButton::toggled, this, svuota);
    for (int p = 1; p <= 5; ++p) {
        connect(chkPosizione_[static_cast<size_t>(p)], &QCheckBox::toggled, this, svuota);
        connect(chkPosizioneA_[static_cast<size_t>(p)], &QCheckBox::toggled, this, svuota);
    }
    for (auto* c : {chkUltime_, chkPosizionale_, chkOper_[0], chkOper_[1], chkOper_[2]})
        connect(c, &QCheckBox::toggled, this, svuota);
}

QString FrmCostruttore::TestaSpia() const {
    const int i = optSpia_[0] ? std::max(0, static_cast<int>(std::find_if(optSpia_.begin(), optSpia_.end(),
                                                                           [](auto* b) { return b->isChecked(); }) -
                                                              optSpia_.begin()))
                              : 0;
    static const char* teste[] = {"Numero", "Somma", "Differ.", "Ambo"};
    return Q(teste[std::min(i, 3)]);
}

void FrmCostruttore::AggiornaPerSpia() {
    const builder::ParametriRicerca p = Parametri();
    const bool ambo = p.tipoSpia == builder::TipoSpia::Ambo;
    static const char* fisso[] = {"Numero fisso", "Somma fissa", "Differenza fissa", "Ambo fisso"};
    static const char* tutti[] = {"Tutti i numeri", "Tutte le somme", "Tutte le differenze", "Tutti gli ambi"};
    static const char* descrizioni[] = {"sortite del numero spia", "sortite della somma spia",
                                        "sortite della differenza spia", "sortite dell'ambo spia"};
    const int t = static_cast<int>(p.tipoSpia);
    optTipo_[0]->setText(Q(fisso[t]));
    optTipo_[1]->setText(Q(tutti[t]));
    optTipo_[2]->setText(QStringLiteral("Solo indice mensile"));
    for (auto* b : optTipo_) b->setVisible(!ambo);
    cboNumero_->setVisible(!ambo);
    findChild<QWidget*>("fraTipologiaAmbi")->setVisible(ambo);
    const bool soloIndice = !ambo && p.modoSpia == builder::ModoSpia::SoloIndiceMensile;
    lblDescriviRicerca_->setText(soloIndice ? QStringLiteral("occorrenze dell'indice mensile") : Q(descrizioni[t]));
    // "Solo indice mensile" takes every wheel; the boxes stay as the mode sets them.
    cboNumero_->setEnabled(!soloIndice && p.modoSpia == builder::ModoSpia::Fisso);
    if (soloIndice) {
        if (!optSpia_[0]->isChecked()) optSpia_[0]->setChecked(true);
        caricamento_ = true;
        for (int w = 0; w <= 11; ++w) chkRuota_[static_cast<size_t>(w)]->setChecked(w == 0 || w == 11);
        caricamento_ = false;
    }
    for (auto* c : chkRuota_) c->setEnabled(!soloIndice);
    const bool tuttiValori = !ambo ? p.modoSpia == builder::ModoSpia::Tutti : p.tuttiGliAmbi;
    chkMigliore_->setVisible(tuttiValori);
    // The second list of kinds with an ambo spy.
    const QSignalBlocker blocco(cboTipoRicerca_);
    const int scelto = cboTipoRicerca_->currentIndex();
    cboTipoRicerca_->clear();
    if (ambo)
        for (const char* k : kTipiRicercaAmbo) cboTipoRicerca_->addItem(Q(k));
    else
        for (const char* k : kTipiRicerca) cboTipoRicerca_->addItem(Q(k));
    cboTipoRicerca_->setCurrentIndex(std::clamp(scelto, 0, cboTipoRicerca_->count() - 1));
    for (QTreeWidget* l : {ListaRisultati_, lstVListaUscite_, lvListaPrevisioni_}) {
        if (!l) continue;
        QTreeWidgetItem* h = l->headerItem();
        const int col = l == ListaRisultati_ ? 4 : 2;
        h->setText(col, TestaSpia());
    }
    AggiornaPerTipoRicerca();
}

void FrmCostruttore::AggiornaPerTipoRicerca() {
    const builder::ParametriRicerca p = Parametri();
    const bool ambo = p.tipoSpia == builder::TipoSpia::Ambo;
    const int k = cboTipoRicerca_->currentIndex();
    const bool ambate = k == 0, ambi = !ambo && k == 1, terzine = !ambo && (k == 2 || k == 3), codici = !ambo && k == 4;
    const bool tuttiValori = !ambo ? p.modoSpia == builder::ModoSpia::Tutti : p.tuttiGliAmbi;
    cmdCopertura_[0]->setVisible(ambate);
    cmdCopertura_[1]->setVisible(ambi || (ambo && k == 1));
    cmdCopertura_[2]->setVisible(terzine);
    cmdCopertura_[3]->setVisible(codici);
    for (auto* b : cmdCopertura_) b->setEnabled(false);  // coverage comes in a later version
    (void)tuttiValori;
    fraValidita_->setVisible(ambate);
    if (!ambate)
        for (int i = 1; i <= 5; ++i) chkPosizioneA_[static_cast<size_t>(i)]->setChecked(true);
    chkPosizionale_->setVisible(!codici);
    if (terzine) chkPosizionale_->setChecked(true);
    chkPosizionale_->setEnabled(!terzine);
    fraCodici_->setVisible(codici);
    fraOperazioni_->setVisible(codici);
}

builder::ParametriRicerca FrmCostruttore::Parametri() const {
    builder::ParametriRicerca p;
    for (int i = 0; i < 4; ++i)
        if (optSpia_[static_cast<size_t>(i)] && optSpia_[static_cast<size_t>(i)]->isChecked())
            p.tipoSpia = static_cast<builder::TipoSpia>(i);
    for (int i = 0; i < 3; ++i)
        if (optTipo_[static_cast<size_t>(i)] && optTipo_[static_cast<size_t>(i)]->isChecked())
            p.modoSpia = static_cast<builder::ModoSpia>(i);
    if (!cboNumero_) return p;
    p.valoreSpia = cboNumero_->currentIndex() + 1;
    p.amboSpia = {txtAmbo_[1]->text().toInt(), txtAmbo_[2]->text().toInt()};
    p.tuttiGliAmbi = optTipoAmbi_[1]->isChecked();
    p.posizioneDeterminata = optPosizioni_[1]->isChecked();
    for (int i = 1; i <= 5; ++i) p.posizioniSpia[static_cast<size_t>(i)] = chkPosizione_[static_cast<size_t>(i)]->isChecked();
    p.perData = optPeriodo_[1]->isChecked() ? 1 : 0;
    p.dataDa = DTPickerDa_->date().toString("dd/MM/yyyy").toStdString();
    p.dataA = DTPickerA_->date().toString("dd/MM/yyyy").toStdString();
    p.sortiteDaCercare = cboSortite_->currentIndex() + 1;
    p.indiceMese = cboIndice_->currentIndex();
    for (int w = 0; w <= 11; ++w) {
        p.ruoteRicerca[static_cast<size_t>(w)] = chkRuota_[static_cast<size_t>(w)]->isChecked();
        p.ruoteGioco[static_cast<size_t>(w)] = chkRuotaG_[static_cast<size_t>(w)]->isChecked();
    }
    p.colpi = txtColpi_->text().toInt();
    p.controllaUltime = chkUltime_->isChecked();
    const int k = cboTipoRicerca_->currentIndex();
    p.tipoRicerca = static_cast<builder::TipoRicerca>(std::max(0, k));
    p.soloPosizione = chkPosizionale_->isChecked();
    for (int i = 1; i <= 5; ++i) p.posizioniValide[static_cast<size_t>(i)] = chkPosizioneA_[static_cast<size_t>(i)]->isChecked();
    p.sorte = optSorte_[1]->isChecked() ? 3 : 2;
    for (int i = 0; i < 3; ++i) p.operazioni[static_cast<size_t>(i)] = chkOper_[static_cast<size_t>(i)]->isChecked();
    p.colpiDaGiocare = txtColpiDaGiocare_->text().toInt();
    return p;
}

void FrmCostruttore::ClicRuota(int indice, bool gioco) {
    if (caricamento_) return;
    auto& caselle = gioco ? chkRuotaG_ : chkRuota_;
    config::CaselleRuote stato{};
    for (int w = 0; w <= 11; ++w) stato[static_cast<size_t>(w)] = caselle[static_cast<size_t>(w)]->isChecked();
    const std::string lettere = gioco ? config::SalvaRuoteGioco(stato, indice) : config::SalvaRuoteConNz(stato, indice);
    caricamento_ = true;
    for (int w = 0; w <= 11; ++w) caselle[static_cast<size_t>(w)]->setChecked(stato[static_cast<size_t>(w)]);
    caricamento_ = false;
    config::ScriviImpostazione(sessione_.ini, config::sezioni::Settings, gioco ? "RuoteConNzGioco" : "RuoteConNz",
                               lettere);
    SvuotaRisultati();
}

void FrmCostruttore::SvuotaRisultati() {
    if (!ListaRisultati_) return;
    ListaRisultati_->clear();
    lstVListaUscite_->clear();
    lvListaPrevisioni_->clear();
    lblSortite_->clear();
    lblPrevisioni_->clear();
    lblCapo_->clear();
    lblDataPrevisione_->clear();
    lblDescrizioneRisultatiOttenuti_->clear();
    cmdReport_[0]->setEnabled(false);
    esito_ = {};
    verifica_ = {};
    rigaAperta_ = -1;
}

void FrmCostruttore::Calcola() {
    if (elaborazione_) return;
    if (contesto_->terzine.valido == false && Parametri().tipoRicerca == builder::TipoRicerca::Codici &&
        Parametri().tipoSpia != builder::TipoSpia::Ambo) {
        MostraMessaggio(this, contesto_->terzine.messaggio.vuoto()
                                  ? archives::Messaggio{"Codici non disponibili: manca il file delle terzine ridotte " +
                                                  contesto_->fileTerzine,
                                              "Errore", archives::Icona::Esclamazione}
                                  : contesto_->terzine.messaggio);
        return;
    }
    SvuotaRisultati();
    const builder::ParametriRicerca p = Parametri();
    // Validation first, on this thread: a refusal shows its message and focuses its control.
    const builder::RicercaValidata v = builder::ValidaRicerca(p, *contesto_->storia);
    if (!v.errore.vuoto()) {
        MostraMessaggio(this, v.errore);
        if (QWidget* w = findChild<QWidget*>(QString::fromStdString(v.focus))) w->setFocus();
        return;
    }
    elaborazione_ = true;
    auto risultato = std::make_shared<builder::EsitoRicerca>();
    const builder::ContestoRicerca ctx = contesto_->Contesto();
    const bool seleziona = chkSeleziona_->isChecked();
    parametriEsito_ = p;
    Elaborazione::Avvia(
        this, sessione_, QStringLiteral("Analisi algoritmi..."),
        [p, ctx, seleziona, risultato](std::stop_token stop, const Progresso& progresso) {
            builder::Avanzamento av{stop, progresso};
            *risultato = builder::CercaAlgoritmi(p, ctx, av, seleziona);
        },
        [this, risultato](bool) {
            elaborazione_ = false;
            MostraEsito(*risultato);
            emit ricercaTerminata();
        });
}

void FrmCostruttore::MostraEsito(const builder::EsitoRicerca& e) {
    esito_ = e;
    ListaRisultati_->setSortingEnabled(false);
    for (const builder::RigaAlgoritmo& r : e.righe) {
        auto* item = new QTreeWidgetItem(ListaRisultati_,
                                         {QString::fromStdString(r.descrizione), QString::fromStdString(r.testoSortite()),
                                          QString::fromStdString(r.testoPresenze()),
                                          QString::fromStdString(r.testoPercentuale()), QString::fromStdString(r.testoSpia)});
        item->setCheckState(0, r.selezionata ? Qt::Checked : Qt::Unchecked);
        item->setData(0, Qt::UserRole, QString::fromStdString(r.chiave));
        item->setData(0, Qt::UserRole + 1, static_cast<int>(&r - e.righe.data()));
    }
    ListaRisultati_->setSortingEnabled(true);
    ListaRisultati_->sortByColumn(2, Qt::DescendingOrder);
    lstVListaUscite_->setSortingEnabled(false);
    for (const builder::CasoSpia& c : e.casi)
        new QTreeWidgetItem(lstVListaUscite_,
                            {QString::fromStdString(c.data), QString::fromStdString(c.nomeRuota),
                             QString::fromStdString(c.testoSpia), QString::fromStdString(c.testoPosizione),
                             QString::fromStdString(c.testoIndiceMese), QString::fromStdString(c.testoIndiceAnnuale),
                             QString::fromStdString(c.testoIndice)});
    lstVListaUscite_->setSortingEnabled(true);
    lstVListaUscite_->sortByColumn(6, Qt::DescendingOrder);
    for (QTreeWidget* l : {ListaRisultati_, lstVListaUscite_})
        for (int c = 0; c < l->columnCount(); ++c) l->resizeColumnToContents(c);
    lblSortite_->setText(QString::fromStdString(e.sortite));
    lblPrevisioni_->setText(QString::fromStdString(e.previsioni));
    QPalette pal = lblPrevisioni_->palette();
    pal.setColor(QPalette::WindowText, e.colorePrevisioni == 128 ? QColor(128, 0, 0) : QColor(0, 0, 0));
    lblPrevisioni_->setPalette(pal);
    // The end date shown is the period's last draw.
    if (e.ultimo > 0) DTPickerA_->setDate(DataQt(contesto_->storia->DataEstrazione(e.ultimo)));
}

void FrmCostruttore::closeEvent(QCloseEvent* e) {
    if (elaborazione_) {
        e->ignore();
        return;
    }
    SalvaPosizione(this, sessione_.ini, "GorgoLeft", "GorgoTop");
    e->accept();
}

void FrmCostruttore::StampaAlgoritmi() {
    if (esito_.righe.empty()) {
        MostraMessaggio(this, {std::string(config::NullaDaStampare), "", archives::Icona::Esclamazione});
        return;
    }
    const config::ReportTesto r = builder::ReportAlgoritmi(parametriEsito_, esito_, *contesto_->storia);
    OpzioniStampa o;
    o.titolo1 = QStringLiteral("Gorgo 2 - Ideato da Sergio Tordelli");
    o.titolo2 = QStringLiteral("Algoritmi rintracciati");
    StampaReport(this, r.righe(), o);
}

void FrmCostruttore::FileAlgoritmi() {
    if (esito_.righe.empty()) return;
    const config::ReportTesto r = builder::ReportAlgoritmi(parametriEsito_, esito_, *contesto_->storia);
    SalvaReportSuFile(this, sessione_, r.righe(), Q(builder::NomeReportAlgoritmi), DomandaFile::InCalce);
}

namespace {

QColor ColoreVb(uint32_t c) { return QColor(static_cast<int>(c & 0xFF), static_cast<int>((c >> 8) & 0xFF), static_cast<int>((c >> 16) & 0xFF)); }

}  // namespace

void FrmCostruttore::ApriAlgoritmo(QTreeWidgetItem* item) {
    if (!item || elaborazione_) return;
    const int k = item->data(0, Qt::UserRole + 1).toInt();
    if (k < 0 || k >= static_cast<int>(esito_.righe.size())) return;
    // The checks of the rows are the user's; the replay reads the current play span.
    builder::RigaAlgoritmo riga = esito_.righe[static_cast<size_t>(k)];
    builder::ParametriRicerca p = parametriEsito_;
    p.colpi = txtColpi_->text().toInt();
    p.colpiDaGiocare = txtColpiDaGiocare_->text().toInt();
    CMouse mouse;
    verifica_ = builder::ApriAlgoritmo(p, contesto_->Contesto(), riga);
    rigaAperta_ = k;
    lvListaPrevisioni_->clear();
    if (!verifica_.errore.vuoto()) {
        MostraMessaggio(this, verifica_.errore);
        return;
    }
    lvListaPrevisioni_->setSortingEnabled(false);
    for (const builder::RigaVerifica& r : verifica_.righe) {
        QStringList colonne;
        for (const std::string& c : r.colonne) colonne << QString::fromStdString(c);
        colonne << QString::fromStdString(r.chiave);
        auto* item2 = new QTreeWidgetItem(lvListaPrevisioni_, colonne);
        if (r.inCorso)
            for (int c : {7, 8, 10}) {
                item2->setForeground(c, ColoreVb(builder::ColoreInCorso));
                QFont f = item2->font(c);
                f.setBold(true);
                item2->setFont(c, f);
            }
    }
    lvListaPrevisioni_->setSortingEnabled(true);
    lvListaPrevisioni_->sortByColumn(12, Qt::AscendingOrder);
    for (int c = 0; c < lvListaPrevisioni_->columnCount(); ++c) lvListaPrevisioni_->resizeColumnToContents(c);
    if (QTreeWidgetItem* ultima = lvListaPrevisioni_->topLevelItem(lvListaPrevisioni_->topLevelItemCount() - 1))
        lvListaPrevisioni_->scrollToItem(ultima);
    lblCapo_->setText(QString::fromStdString(verifica_.lblCapo));
    QPalette pal = lblCapo_->palette();
    pal.setColor(QPalette::WindowText, ColoreVb(verifica_.coloreCapo));
    lblCapo_->setPalette(pal);
    lblDataPrevisione_->setText(QString::fromStdString(verifica_.lblDataPrevisione));
    lblDescrizioneRisultatiOttenuti_->setText(QString::fromStdString(verifica_.lblDescrizioneRisultatiOttenuti));
    cmdReport_[0]->setEnabled(true);
    if (chkRiepilogo_->isChecked()) Riepilogo();
}

void FrmCostruttore::SelezionaInCorso() {
    if (esito_.righe.empty() || elaborazione_) return;
    chkSeleziona_->setChecked(false);
    builder::ParametriRicerca p = parametriEsito_;
    p.colpi = txtColpi_->text().toInt();
    p.colpiDaGiocare = txtColpiDaGiocare_->text().toInt();
    CMouse mouse;
    builder::SelezionaInCorso(p, contesto_->Contesto(), esito_.righe);
    for (int i = 0; i < ListaRisultati_->topLevelItemCount(); ++i) {
        QTreeWidgetItem* item = ListaRisultati_->topLevelItem(i);
        const int k = item->data(0, Qt::UserRole + 1).toInt();
        item->setCheckState(0, esito_.righe[static_cast<size_t>(k)].selezionata ? Qt::Checked : Qt::Unchecked);
    }
}

void FrmCostruttore::Riepilogo() {
    if (rigaAperta_ < 0) return;
    builder::ParametriRicerca p = parametriEsito_;
    p.colpi = txtColpi_->text().toInt();
    const builder::RigaAlgoritmo& riga = esito_.righe[static_cast<size_t>(rigaAperta_)];
    const builder::EsitoRiepilogo r =
        builder::RiepilogoTecnica(p, contesto_->Contesto(), verifica_, riga.descrizione, riga.chiave);
    if (!r.errore.vuoto()) {
        MostraMessaggio(this, r.errore);
        return;
    }
    std::vector<std::string> righe = r.testa;
    righe.insert(righe.end(), r.righe.begin(), r.righe.end());
    auto* f = new FrmReportGorgo(sessione_, this, righe);
    f->show();
}

void FrmCostruttore::CalcolaPrevisioni() {
    if (esito_.righe.empty() || elaborazione_) return;
    // The checks as the user left them on the list.
    std::vector<builder::RigaAlgoritmo> righe = esito_.righe;
    for (int i = 0; i < ListaRisultati_->topLevelItemCount(); ++i) {
        QTreeWidgetItem* item = ListaRisultati_->topLevelItem(i);
        righe[static_cast<size_t>(item->data(0, Qt::UserRole + 1).toInt())].selezionata =
            item->checkState(0) == Qt::Checked;
    }
    builder::ParametriRicerca p = parametriEsito_;
    p.colpi = txtColpi_->text().toInt();
    p.colpiDaGiocare = txtColpiDaGiocare_->text().toInt();
    CMouse mouse;
    const builder::EsitoPrevisioni e = builder::CalcolaPrevisioni(p, contesto_->Contesto(), righe);
    if (!e.errore.vuoto()) {
        MostraMessaggio(this, e.errore);
        return;
    }
    if (!e.aperta) return;
    auto* f = new FrmAlgoritmiCalcolati(sessione_, this, e, builder::StampaPrevisioniRighe(p, e, *contesto_->storia),
                                        builder::ReportPrevisioni(p, e, *contesto_->storia));
    f->show();
}

void FrmCostruttore::ListaSortite() {
    if (esito_.casi.empty()) return;
    auto* f = new FrmListaSortite(sessione_.ini, this, esito_.casi, TestaSpia());
    f->show();
}

void FrmCostruttore::StampaVerifica() {
    if (verifica_.righe.empty() || rigaAperta_ < 0) {
        MostraMessaggio(this, {std::string(config::NullaDaStampare), "", archives::Icona::Esclamazione});
        return;
    }
    const builder::RigaAlgoritmo& riga = esito_.righe[static_cast<size_t>(rigaAperta_)];
    OpzioniStampa o;
    o.titolo1 = QStringLiteral("Algoritmo");
    o.titolo2 = QString::fromStdString(riga.descrizione);
    StampaReport(this, builder::StampaVerificaRighe(parametriEsito_, verifica_, riga.descrizione, *contesto_->storia).righe(), o);
}

void FrmCostruttore::FileVerifica() {
    if (verifica_.righe.empty() || rigaAperta_ < 0) return;
    const builder::RigaAlgoritmo& riga = esito_.righe[static_cast<size_t>(rigaAperta_)];
    SalvaReportSuFile(this, sessione_,
                      builder::ReportVerifica(parametriEsito_, verifica_, riga.descrizione, *contesto_->storia).righe(),
                      QStringLiteral("RisultatiAlgoritmo"), DomandaFile::InCalce);
}

}  // namespace gorgo::screens
