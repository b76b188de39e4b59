#include "screens/builder/frm_costruttore.h"

#include <fmt/format.h>
#include <QButtonGroup>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QIntValidator>
#include <QSplitter>
#include <QVBoxLayout>

#include "archives/archivio.h"
#include "builder/report.h"
#include "config/impostazioni.h"
#include "screens/builder/fra_convergenze.h"
#include "screens/builder/satelliti.h"
#include "screens/common/caselle.h"
#include "screens/common/elaborazioni.h"
#include "screens/common/liste.h"
#include "screens/common/messaggi.h"
#include "screens/common/scelta_file.h"
#include "screens/common/stampa.h"
#include "screens/common/stile.h"
#include "screens/common/twips.h"

namespace gorgo::screens {

namespace {

QString Q(std::string_view s) { return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size())); }

QDate DataQt(const std::string& gg_mm_aaaa) {
    return QDate::fromString(QString::fromStdString(gg_mm_aaaa), "dd/MM/yyyy");
}

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

QGroupBox* Riquadro(QWidget* parent, const char* nome, const QString& titolo) {
    auto* r = new QGroupBox(titolo, parent);
    r->setObjectName(nome);
    return r;
}

QLabel* Etichetta(QWidget* parent, const char* nome) {
    auto* l = new QLabel(parent);
    l->setObjectName(nome);
    return l;
}

// The span of play: three digits, 9 to begin with.
QLineEdit* CasellaColpi(QWidget* parent, const char* nome) {
    auto* t = new QLineEdit(QStringLiteral("9"), parent);
    t->setObjectName(nome);
    t->setMaxLength(3);
    t->setValidator(new QIntValidator(0, 999, t));
    t->setMaximumWidth(50);
    return t;
}

QStringList NumeriPosizione() { return {"1", "2", "3", "4", "5"}; }

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
    auto* principale = new QHBoxLayout(this);
    auto* sinistra = new QVBoxLayout;
    principale->addLayout(sinistra, 0);
    sinistra->addWidget(CreaFrameSpia());
    sinistra->addWidget(CreaFramePeriodo());
    sinistra->addWidget(CreaFrameRuote());
    sinistra->addWidget(CreaFrameGioco());
    cmdCalcola_ = new QPushButton(QStringLiteral("Calcola"), this);
    cmdCalcola_->setObjectName("cmdCalcola");
    cmdCalcola_->setMinimumHeight(36);
    connect(cmdCalcola_, &QPushButton::clicked, this, &FrmCostruttore::Calcola);
    sinistra->addWidget(cmdCalcola_);
    sinistra->addStretch();

    auto* destra = new QVBoxLayout;
    principale->addLayout(destra, 1);
    CreaRisultati(destra);
    destra->addLayout(CreaComandi());
    CreaFrame();
    CollegaSvuotamento();
}

// The spy: its kind, its value or the ambo, its positions.
QGroupBox* FrmCostruttore::CreaFrameSpia() {
    auto* fraSpia = Riquadro(this, "fraSpia", QStringLiteral("Spia"));
    auto* gs = new QGridLayout(fraSpia);
    CreaCaselle<QRadioButton>(fraSpia, gs, {.perRiga = 2}, QStringLiteral("optSpia"), 0,
                              {"Numero spia", "Somma spia", "Differenza spia", "Ambo spia"}, optSpia_);
    optSpia_[0]->setChecked(true);
    // Their texts follow the kind of spy (AggiornaPerSpia).
    CreaCaselle<QRadioButton>(fraSpia, gs, {2, 0, 1}, QStringLiteral("optTipo"), 0, QStringList(3), optTipo_);
    optTipo_[0]->setChecked(true);
    cboNumero_ = new QComboBox(fraSpia);
    cboNumero_->setObjectName("cboNumero");
    for (int n = 1; n <= 90; ++n) cboNumero_->addItem(QString::number(n));
    gs->addWidget(cboNumero_, 2, 1);
    // The ambo spy's frame takes the place of the numeric one.
    auto* fraTipologiaAmbi = new QWidget(fraSpia);
    fraTipologiaAmbi->setObjectName("fraTipologiaAmbi");
    auto* ga = new QGridLayout(fraTipologiaAmbi);
    ga->setContentsMargins(0, 0, 0, 0);
    CreaCaselle<QLineEdit>(fraTipologiaAmbi, ga, {}, QStringLiteral("txtAmbo"), 1, QStringList(2),
                           std::span(txtAmbo_).subspan(1));
    for (QLineEdit* t : {txtAmbo_[1], txtAmbo_[2]}) {
        t->setMaxLength(2);
        t->setValidator(new QIntValidator(0, 99, t));
        t->setMaximumWidth(40);
    }
    CreaCaselle<QRadioButton>(fraTipologiaAmbi, ga, {0, 2}, QStringLiteral("optTipoAmbi"), 0,
                              {"Ambo fisso", "Tutti gli ambi"}, optTipoAmbi_);
    optTipoAmbi_[0]->setChecked(true);
    gs->addWidget(fraTipologiaAmbi, 5, 0, 1, 2);
    auto* rigaPos = new QGridLayout;
    CreaCaselle<QRadioButton>(fraSpia, rigaPos, {}, QStringLiteral("optPosizioni"), 0,
                              {"Tutte le posizioni", "Posizione determinata"}, optPosizioni_);
    optPosizioni_[0]->setChecked(true);
    CreaCaselle<QCheckBox>(fraSpia, rigaPos, {0, 2}, QStringLiteral("chkPosizione"), 1, NumeriPosizione(),
                           std::span(chkPosizione_).subspan(1));
    gs->addLayout(rigaPos, 6, 0, 1, 2);
    return fraSpia;
}

// The period: from a date to a date, or the last cases; the month index.
QGroupBox* FrmCostruttore::CreaFramePeriodo() {
    const archives::StoriaLotto& storia = *contesto_->storia;
    auto* fraPeriodo = Riquadro(this, "fraPeriodo", QStringLiteral("Periodo"));
    auto* gp = new QGridLayout(fraPeriodo);
    CreaCaselle<QRadioButton>(fraPeriodo, gp, {.perRiga = 1}, QStringLiteral("optPeriodo"), 0,
                              {"Dal", "Ultime sortite"}, optPeriodo_);
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
    gp->addWidget(DTPickerDa_, 0, 1);
    gp->addWidget(new QLabel(QStringLiteral("al"), fraPeriodo), 0, 2);
    gp->addWidget(DTPickerA_, 0, 3);
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
    return fraPeriodo;
}

// The wheels of search and, below them, the wheels of play, as the settings keep them.
QGroupBox* FrmCostruttore::CreaFrameRuote() {
    auto* fraRuote = Riquadro(this, "fraRuote", QStringLiteral("Ruote di ricerca / di gioco"));
    auto* gr = new QGridLayout(fraRuote);
    QStringList nomi = {QStringLiteral("Tutte")};
    for (int w = 1; w <= 11; ++w) nomi << Q(archives::SigleRuota[static_cast<size_t>(w)]);
    CreaCaselle<QCheckBox>(fraRuote, gr, {.perRiga = 6}, QStringLiteral("chkRuota"), 0, nomi, chkRuota_);
    gr->addWidget(new QLabel(QStringLiteral("di gioco:"), fraRuote), 2, 0, 1, 6);
    CreaCaselle<QCheckBox>(fraRuote, gr, {3, 0, 6}, QStringLiteral("chkRuotaG"), 0, nomi, chkRuotaG_);
    const config::CaselleRuote ricerca = config::CaricaRuoteConNz(
        config::LeggiImpostazione(sessione_.ini, config::sezioni::Settings, "RuoteConNz",
                                  config::Predefinito(config::sezioni::Settings, "RuoteConNz")));
    const config::CaselleRuote gioco = config::CaricaRuoteGioco(
        config::LeggiImpostazione(sessione_.ini, config::sezioni::Settings, "RuoteConNzGioco",
                                  config::Predefinito(config::sezioni::Settings, "RuoteConNzGioco")));
    caricamento_ = true;
    for (int w = 0; w <= 11; ++w) {
        chkRuota_[static_cast<size_t>(w)]->setChecked(ricerca[static_cast<size_t>(w)]);
        chkRuotaG_[static_cast<size_t>(w)]->setChecked(gioco[static_cast<size_t>(w)]);
        connect(chkRuota_[static_cast<size_t>(w)], &QCheckBox::clicked, this, [this, w] { ClicRuota(w, false); });
        connect(chkRuotaG_[static_cast<size_t>(w)], &QCheckBox::clicked, this, [this, w] { ClicRuota(w, true); });
    }
    caricamento_ = false;
    return fraRuote;
}

// The play, the kind of search and the frames that go with each kind.
QGroupBox* FrmCostruttore::CreaFrameGioco() {
    auto* fraGioco = Riquadro(this, "fraGioco", QStringLiteral("Gioco"));
    auto* gg = new QGridLayout(fraGioco);
    txtColpi_ = CasellaColpi(fraGioco, "txtColpi");
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

    fraValidita_ = Riquadro(fraGioco, "fraValidita", QStringLiteral("Validità algoritmo"));
    auto* gv = new QGridLayout(fraValidita_);
    gv->addWidget(new QLabel(QStringLiteral("Posizione definita dell'ambata"), fraValidita_), 0, 0);
    CreaCaselle<QCheckBox>(fraValidita_, gv, {0, 1}, QStringLiteral("chkPosizioneA"), 1, NumeriPosizione(),
                           std::span(chkPosizioneA_).subspan(1));
    for (int p = 1; p <= 5; ++p) chkPosizioneA_[static_cast<size_t>(p)]->setChecked(true);
    gg->addWidget(fraValidita_, 2, 0, 1, 3);

    fraCodici_ = Riquadro(fraGioco, "fraCodici", QStringLiteral("Sorte"));
    CreaCaselle<QRadioButton>(fraCodici_, new QGridLayout(fraCodici_), {}, QStringLiteral("optSorte"), 0,
                              {"Ambi", "Terni"}, optSorte_);
    optSorte_[0]->setChecked(true);
    fraOperazioni_ = Riquadro(fraGioco, "fraOperazioni", QStringLiteral("Operazioni"));
    CreaCaselle<QCheckBox>(fraOperazioni_, new QGridLayout(fraOperazioni_), {}, QStringLiteral("chkOper"), 0,
                           {"+", "-", "x"}, chkOper_);
    for (QCheckBox* c : chkOper_) c->setChecked(true);
    gg->addWidget(fraCodici_, 3, 0, 1, 2);
    gg->addWidget(fraOperazioni_, 3, 2);
    return fraGioco;
}

// The description of the search, the three lists one over the other, the replay's line.
void FrmCostruttore::CreaRisultati(QVBoxLayout* destra) {
    lblDescriviRicerca_ = Etichetta(this, "lblDescriviRicerca");
    lblSortite_ = Etichetta(this, "lblSortite");
    lblPrevisioni_ = Etichetta(this, "lblPrevisioni");
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
    // Dates sort in time: the cases by their progressive index, the replay's spy and hit
    // dates by its hidden column 12.
    OrdinaColonnaSecondo(lstVListaUscite_, 0, 6);
    OrdinaColonnaSecondo(lvListaPrevisioni_, 0, 12);
    OrdinaColonnaSecondo(lvListaPrevisioni_, 8, 12);
    destra->addWidget(divisore, 1);
    connect(ListaRisultati_, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* r) { ApriAlgoritmo(r); });

    auto* rigaVerifica = new QHBoxLayout;
    lblDescrizioneRisultatiOttenuti_ = Etichetta(this, "lblDescrizioneRisultatiOttenuti");
    lblCapo_ = Etichetta(this, "lblCapo");
    QFont grassetto = lblCapo_->font();
    grassetto.setBold(true);
    grassetto.setPointSize(grassetto.pointSize() + 2);
    lblCapo_->setFont(grassetto);
    lblDataPrevisione_ = Etichetta(this, "lblDataPrevisione");
    rigaVerifica->addWidget(lblDescrizioneRisultatiOttenuti_, 1);
    rigaVerifica->addWidget(lblDataPrevisione_);
    rigaVerifica->addWidget(lblCapo_);
    destra->addLayout(rigaVerifica);
}

// The commands on the results: selection, forecasts, recap, reports, list of cases.
QGridLayout* FrmCostruttore::CreaComandi() {
    auto pulsante = [this](const QString& nome, const QString& testo, void (FrmCostruttore::*azione)()) {
        auto* b = new QPushButton(testo, this);
        b->setObjectName(nome);
        if (azione) connect(b, &QPushButton::clicked, this, azione);
        return b;
    };
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
    txtColpiDaGiocare_ = CasellaColpi(this, "txtColpiDaGiocare");
    auto* selezionaInCorso = pulsante("cmdSelezionaAlgoInCorso", QStringLiteral("Seleziona algoritmi in corso"),
                                      &FrmCostruttore::SelezionaInCorso);
    auto* previsioni =
        pulsante("cmdCalcoloPrevisioni", QStringLiteral("Calcolo previsioni..."), &FrmCostruttore::CalcolaPrevisioni);
    const char* report[] = {"Riepilogo della tecnica selezionata", "Dettaglio vincite", "Dettaglio vincite"};
    for (int i = 0; i < 3; ++i) {
        cmdReport_[static_cast<size_t>(i)] = pulsante(QStringLiteral("cmdReport_%1").arg(i), Q(report[i]), nullptr);
        cmdReport_[static_cast<size_t>(i)]->setEnabled(false);
    }
    cmdReport_[1]->setToolTip(QString::fromUtf8("Disponibile in una prossima versione"));
    cmdReport_[2]->setVisible(false);
    connect(cmdReport_[0], &QPushButton::clicked, this, &FrmCostruttore::Riepilogo);
    auto* listaSortite =
        pulsante("cmdListSortite", QStringLiteral("Dettaglio lista delle sortite"), &FrmCostruttore::ListaSortite);
    auto* stampaAlgoritmi =
        pulsante("cmdStampaRisultati_0", QStringLiteral("Stampa algoritmi"), &FrmCostruttore::StampaAlgoritmi);
    auto* fileAlgoritmi =
        pulsante("cmdPrintToFileAlgoritmi", QStringLiteral("Algoritmi su file"), &FrmCostruttore::FileAlgoritmi);
    auto* stampaVerifica =
        pulsante("cmdStampaRisultati_1", QStringLiteral("Stampa verifica"), &FrmCostruttore::StampaVerifica);
    auto* fileVerifica =
        pulsante("cmdPrintToFileRisultati", QStringLiteral("Verifica su file"), &FrmCostruttore::FileVerifica);

    auto* convergenze = pulsante("cmdConvergenze", QStringLiteral("Convergenze"), nullptr);
    auto* lunghette = pulsante("cmdLunghette", QStringLiteral("Lunghetta..."), nullptr);
    cmdAbbinamentiAmbate_ = pulsante("cmdAbbinamentiAmbate", QStringLiteral("Abbinamenti..."), nullptr);
    connect(convergenze, &QPushButton::clicked, this, [this] {
        if (!elaborazione_) fraConvergenze_->Calcola();
    });
    connect(lunghette, &QPushButton::clicked, this, [this] {
        fraLunghette_->show();
        fraLunghette_->raise();
    });
    connect(cmdAbbinamentiAmbate_, &QPushButton::clicked, this, [this] {
        FrameAbbinamenti_->show();
        FrameAbbinamenti_->raise();
    });

    auto* comandi = new QGridLayout;
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
    CreaStrumenti(comandi);
    comandi->addWidget(convergenze, 6, 0);
    comandi->addWidget(lunghette, 6, 1);
    comandi->addWidget(cmdAbbinamentiAmbate_, 6, 2);
    return comandi;
}

// Any change of a search control empties the results, so that none is read against other
// parameters than its own.
void FrmCostruttore::CollegaSvuotamento() {
    auto svuota = [this] { SvuotaRisultati(); };
    for (auto* b : optSpia_)
        connect(b, &QRadioButton::toggled, this, [this, svuota](bool on) {
            if (on) {
                AggiornaPerSpia();
                svuota();
            }
        });
    for (auto* b : optTipo_)
        connect(b, &QRadioButton::toggled, this, [this, svuota](bool on) {
            if (on) {
                AggiornaPerSpia();
                svuota();
            }
        });
    connect(cboTipoRicerca_, &QComboBox::currentIndexChanged, this, [this, svuota] {
        AggiornaPerTipoRicerca();
        svuota();
        if (Parametri().tipoRicerca == builder::TipoRicerca::Codici && Parametri().tipoSpia != builder::TipoSpia::Ambo)
            PreparaTerzine();
    });
    connect(cboNumero_, &QComboBox::currentIndexChanged, this, svuota);
    connect(cboSortite_, &QComboBox::currentIndexChanged, this, svuota);
    connect(cboIndice_, &QComboBox::currentIndexChanged, this, svuota);
    connect(chkTuttiGliIndici_, &QCheckBox::toggled, this,
            [this](bool on) { cboIndice_->setCurrentIndex(on ? 22 : 0); });
    for (QDateEdit* d : {DTPickerDa_, DTPickerA_}) connect(d, &QDateEdit::dateChanged, this, svuota);
    for (auto* t : {txtAmbo_[1], txtAmbo_[2], txtColpi_}) connect(t, &QLineEdit::textEdited, this, svuota);
    for (auto* b : {optTipoAmbi_[0], optTipoAmbi_[1], optPosizioni_[0], optPosizioni_[1], optPeriodo_[0],
                    optPeriodo_[1], optSorte_[0], optSorte_[1]})
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
    AbilitaStrumenti(ambate, ambi || (ambo && k == 1), terzine, codici, !tuttiValori);
    fraValidita_->setVisible(ambate);
    cmdAbbinamentiAmbate_->setVisible(ambate);
    if (!ambate && FrameAbbinamenti_) FrameAbbinamenti_->hide();
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
    for (int i = 1; i <= 5; ++i)
        p.posizioniSpia[static_cast<size_t>(i)] = chkPosizione_[static_cast<size_t>(i)]->isChecked();
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
    for (int i = 1; i <= 5; ++i)
        p.posizioniValide[static_cast<size_t>(i)] = chkPosizioneA_[static_cast<size_t>(i)]->isChecked();
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
    if (FrameAbbinamenti_) FrameAbbinamenti_->Svuota();
    if (fraLunghette_) fraLunghette_->Svuota();
}

void FrmCostruttore::Calcola() {
    if (elaborazione_) return;
    SvuotaRisultati();
    builder::ParametriRicerca p = Parametri();
    // The codes ask for their file first; a file that fails turns the kind to "Terzine x terno".
    if (p.tipoRicerca == builder::TipoRicerca::Codici && p.tipoSpia != builder::TipoSpia::Ambo && !PreparaTerzine() &&
        contesto_->terzine.nonValido)
        return;
    // Validation first, on this thread: a refusal shows its message and focuses its control.
    const builder::RicercaValidata v =
        builder::ValidaRicerca(p, *contesto_->storia, &contesto_->terzine, contesto_->fileTerzine);
    if (!v.errore.vuoto()) {
        MostraMessaggio(this, v.errore);
        if (QWidget* w = findChild<QWidget*>(QString::fromStdString(v.focus))) w->setFocus();
        return;
    }
    // Step 6 puts the ambo spy in ascending order, and the boxes show it so.
    if (p.tipoSpia == builder::TipoSpia::Ambo && !p.tuttiGliAmbi && v.amboSpia != p.amboSpia) {
        txtAmbo_[1]->setText(QString::number(v.amboSpia[0]));
        txtAmbo_[2]->setText(QString::number(v.amboSpia[1]));
        p = Parametri();
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
        auto* item = new QTreeWidgetItem(
            ListaRisultati_, {QString::fromStdString(r.descrizione), QString::fromStdString(r.testoSortite()),
                              QString::fromStdString(r.testoPresenze()), QString::fromStdString(r.testoPercentuale()),
                              QString::fromStdString(r.testoSpia)});
        item->setCheckState(0, r.selezionata ? Qt::Checked : Qt::Unchecked);
        item->setData(0, Qt::UserRole, QString::fromStdString(r.chiave));
        item->setData(0, Qt::UserRole + 1, static_cast<int>(&r - e.righe.data()));
    }
    ListaRisultati_->setSortingEnabled(true);
    ListaRisultati_->sortByColumn(2, Qt::DescendingOrder);
    lstVListaUscite_->setSortingEnabled(false);
    for (const builder::CasoSpia& c : e.casi)
        new RigaLista(
            lstVListaUscite_,
            {QString::fromStdString(c.data), QString::fromStdString(c.nomeRuota), QString::fromStdString(c.testoSpia),
             QString::fromStdString(c.testoPosizione), QString::fromStdString(c.testoIndiceMese),
             QString::fromStdString(c.testoIndiceAnnuale), QString::fromStdString(c.testoIndice)});
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
    // The boxed table, not the file's lines.
    const config::ReportTesto r = builder::StampaAlgoritmiRighe(parametriEsito_, EsitoComeLista(), *contesto_->storia);
    OpzioniStampa o;
    o.titolo1 = Q(config::TitoloReport);
    o.titolo2 = Q(builder::TitoloStampaAlgoritmi);
    StampaReport(this, r.righe(), o);
}

void FrmCostruttore::FileAlgoritmi() {
    if (esito_.righe.empty()) return;
    const config::ReportTesto r = builder::ReportAlgoritmi(parametriEsito_, EsitoComeLista(), *contesto_->storia);
    SalvaReportSuFile(this, sessione_, r.righe(), Q(builder::NomeReportAlgoritmi), DomandaFile::InCalce);
}

builder::EsitoRicerca FrmCostruttore::EsitoComeLista() const {
    builder::EsitoRicerca e = esito_;
    e.righe.clear();
    for (int i = 0; i < ListaRisultati_->topLevelItemCount(); ++i) {
        const int k = ListaRisultati_->topLevelItem(i)->data(0, Qt::UserRole + 1).toInt();
        if (k >= 0 && k < static_cast<int>(esito_.righe.size()))
            e.righe.push_back(esito_.righe[static_cast<size_t>(k)]);
    }
    return e;
}

bool FrmCostruttore::PreparaTerzine() {
    builder::EsitoTerzine& t = contesto_->terzine;
    if (t.valido && terzineAnnunciate_) return true;
    // Read again: the file may have been mended, or taken away, since the screen opened.
    if (!t.valido) t = builder::CaricaTerzine(contesto_->fileTerzine);
    if (t.fileMancante) {
        // The setting FileTerzine, or Terzine.txt in the program folder, is not there.
        const QString scelto =
            ScegliFileManutenzione
                ? ScegliFileManutenzione(this, ModoSceltaFile::Apri, Q(builder::TitoloApriTerzine),
                                         Q(builder::FiltroTerzine),
                                         QString::fromStdString(sessione_.PercorsoProgramma.string()))
                : QString();
        if (scelto.isEmpty()) return false;
        contesto_->fileTerzine = scelto.toStdString();
        t = builder::CaricaTerzine(contesto_->fileTerzine);
        if (t.caricato)
            config::ScriviImpostazione(sessione_.ini, config::sezioni::Options, "FileTerzine", contesto_->fileTerzine);
    }
    terzineAnnunciate_ = true;
    if (!t.messaggio.vuoto()) MostraMessaggio(this, t.messaggio);
    if (t.nonValido) {
        // The setting is cleared: the next load tries Terzine.txt in the program folder.
        config::ScriviImpostazione(sessione_.ini, config::sezioni::Options, "FileTerzine", "");
        contesto_->fileTerzine = (sessione_.PercorsoProgramma / "Terzine.txt").string();
        cboTipoRicerca_->setCurrentIndex(static_cast<int>(builder::TipoRicerca::TerzineTerno));
        return false;
    }
    return t.valido;
}

namespace {

QColor ColoreVb(uint32_t c) {
    return QColor(static_cast<int>(c & 0xFF), static_cast<int>((c >> 8) & 0xFF), static_cast<int>((c >> 16) & 0xFF));
}

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
        auto* item2 = new RigaLista(lvListaPrevisioni_, colonne);
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
    if (parametriEsito_.tipoRicerca == builder::TipoRicerca::Ambate)
        FrameAbbinamenti_->ImpostaAlgoritmo(riga.descrizione, riga.chiave,
                                            DTPickerA_->date().toString("dd/MM/yyyy").toStdString());
    if (chkRiepilogo_->isChecked()) Riepilogo();
}

void FrmCostruttore::CreaFrame() {
    const FonteCostruttore fonte = [this] { return DatiPerFrame(); };
    fraConvergenze_ = new FraConvergenze(this, fonte);
    fraLunghette_ = new FraLunghette(this, fonte);
    FrameAbbinamenti_ = new FrameAbbinamenti(this, sessione_, *contesto_->storia, contesto_->indici, fonte,
                                             [this] { return fraLunghette_->Numeri(); });
    for (QWidget* f : std::initializer_list<QWidget*>{fraConvergenze_, fraLunghette_, FrameAbbinamenti_}) f->hide();
    // The convergences clear the replay; a new length of the lunghetta the caption.
    connect(fraConvergenze_, &FraConvergenze::convergenzeMostrate, this, [this] {
        lblDescrizioneRisultatiOttenuti_->clear();
        lvListaPrevisioni_->clear();
        lblCapo_->clear();
        // The replay is gone from the screen: its recap and reports go with it.
        verifica_ = {};
        rigaAperta_ = -1;
        cmdReport_[0]->setEnabled(false);
    });
    connect(fraLunghette_, &FraLunghette::sceltaCambiata, this,
            [this] { lblDescrizioneRisultatiOttenuti_->setText(Q(builder::RisultatiOttenuti)); });
}

DatiCostruttore FrmCostruttore::DatiPerFrame() const {
    DatiCostruttore d;
    d.parametri = esito_.righe.empty() ? Parametri() : parametriEsito_;
    d.parametri.colpi = txtColpi_->text().toInt();
    d.parametri.colpiDaGiocare = txtColpiDaGiocare_->text().toInt();
    d.contesto = contesto_->Contesto();
    // The rows as the list shows them, with the user's checks.
    for (int i = 0; i < ListaRisultati_->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* item = ListaRisultati_->topLevelItem(i);
        const int k = item->data(0, Qt::UserRole + 1).toInt();
        if (k < 0 || k >= static_cast<int>(esito_.righe.size())) continue;
        builder::RigaAlgoritmo r = esito_.righe[static_cast<size_t>(k)];
        r.selezionata = item->checkState(0) == Qt::Checked;
        d.righe.push_back(std::move(r));
    }
    return d;
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
    StampaReport(this,
                 builder::StampaVerificaRighe(parametriEsito_, verifica_, riga.descrizione, *contesto_->storia).righe(),
                 o);
}

void FrmCostruttore::FileVerifica() {
    if (verifica_.righe.empty() || rigaAperta_ < 0) return;
    const builder::RigaAlgoritmo& riga = esito_.righe[static_cast<size_t>(rigaAperta_)];
    SalvaReportSuFile(this, sessione_,
                      builder::ReportVerifica(parametriEsito_, verifica_, riga.descrizione, *contesto_->storia).righe(),
                      QStringLiteral("RisultatiAlgoritmo"), DomandaFile::InCalce);
}

}  // namespace gorgo::screens
