#include "screens/precursors/frm_precursori_tordelli.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

#include "archives/archivio.h"
#include "archives/regole.h"
#include "config/impostazioni.h"
#include "config/ini.h"
#include "precursors/formazioni.h"
#include "screens/common/caselle.h"
#include "screens/common/elaborazioni.h"
#include "screens/common/messaggi.h"
#include "screens/common/stampa.h"
#include "screens/common/stile.h"
#include "screens/common/twips.h"

namespace gorgo::screens {

namespace {

using namespace precursors;

QString Q(std::string_view t) { return QString::fromUtf8(t.data(), static_cast<qsizetype>(t.size())); }

QDate DataQt(const std::string& gg_mm_aaaa) {
    return QDate::fromString(QString::fromStdString(gg_mm_aaaa), "dd/MM/yyyy");
}

// Digits only, as many as the box holds.
QLineEdit* Casella(QWidget* parent, const char* nome, const char* testo, int cifre) {
    auto* t = new QLineEdit(QString::fromUtf8(testo), parent);
    t->setObjectName(nome);
    t->setMaxLength(cifre);
    t->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), t));
    t->setMaximumWidth(40);
    return t;
}

int Valore(const QLineEdit* t) { return t->text().isEmpty() ? 0 : t->text().toInt(); }

QTreeWidget* Lista(QWidget* parent, const char* nome, const QString& tag) {
    auto* l = new QTreeWidget(parent);
    l->setObjectName(nome);
    l->setAccessibleName(tag);
    l->setRootIsDecorated(false);
    l->setUniformRowHeights(true);
    l->setEditTriggers(QAbstractItemView::NoEditTriggers);
    QFont f(QStringLiteral("Monospace"));
    f.setStyleHint(QFont::TypeWriter);
    l->setFont(f);
    // A click on a head sorts by that column's text, the other way at each click.
    l->header()->setSectionsClickable(true);
    QObject::connect(l->header(), &QHeaderView::sectionClicked, l, [l](int c) {
        const bool su = l->property("gorgo_crescente").toBool();
        l->sortItems(c, su ? Qt::AscendingOrder : Qt::DescendingOrder);
        l->setProperty("gorgo_crescente", !su);
    });
    return l;
}

const QColor Blu(0x00, 0x00, 0x80), Verde(0x00, 0x80, 0x00), Marrone(0x80, 0x00, 0x00);
const QColor GialloChiaro(0xFF, 0xFF, 0xC0);

}  // namespace

FrmPrecursoriTordelli::FrmPrecursoriTordelli(Sessione& sessione, const archives::Archivio& archivio, QWidget* parent)
    : FrmPrecursoriTordelli(sessione, archivio, Gioco::Lotto, "frmPrecursoriTordelli",
                            QStringLiteral("   La scia inversa dei precursori - Ideato da Sergio Tordelli"),
                            "PrecursoriLeft", "PrecursoriTop", parent) {}

FrmPrecursoriTordelliSuper::FrmPrecursoriTordelliSuper(Sessione& sessione, const archives::Archivio& archivio,
                                                       QWidget* parent)
    : FrmPrecursoriTordelli(
          sessione, archivio, Gioco::SuperEnalotto, "frmPrecursoriTordelliSuper",
          QStringLiteral("   La scia inversa dei precursori nel gioco del Superenaotto - Ideato da Sergio Tordelli"),
          "PrecursoriSuperLeft", "PrecursoriSuperTop", parent) {}

FrmPrecursoriTordelli10eLotto::FrmPrecursoriTordelli10eLotto(Sessione& sessione, const archives::Archivio& archivio,
                                                             QWidget* parent)
    : FrmPrecursoriTordelli(
          sessione, archivio, Gioco::DieciELotto, "frmPrecursoriTordelli10eLotto",
          QStringLiteral("   La scia inversa dei precursori nel gioco del 10eLotto - Ideato da Sergio Tordelli"),
          "Precursori10Left", "Precursori10Top", parent) {}

FrmPrecursoriTordelli::FrmPrecursoriTordelli(Sessione& sessione, const archives::Archivio& archivio, Gioco gioco,
                                             const char* nome, const QString& caption, const char* chiaveLeft,
                                             const char* chiaveTop, QWidget* parent)
    : QWidget(parent, Qt::Window),
      sessione_(sessione),
      archivio_(archivio),
      gioco_(gioco),
      chiaveLeft_(chiaveLeft),
      chiaveTop_(chiaveTop) {
    setObjectName(nome);
    setWindowTitle(caption);
    setAttribute(Qt::WA_DeleteOnClose);
    CreaControlli();
    resize(1180, 720);
    ApplicaStile(this, sessione_.ini);
    RipristinaPosizione(this, sessione_.ini, chiaveLeft_, chiaveTop_);
}

FrmPrecursoriTordelli::~FrmPrecursoriTordelli() = default;

int32_t FrmPrecursoriTordelli::NumeroEstrazioni() const {
    return gioco_ == Gioco::SuperEnalotto ? archivio_.NumeroEstrazioniSuper() : archivio_.NumeroEstrazioni();
}

std::string FrmPrecursoriTordelli::DataEstrazione(int32_t indice) const {
    return archivio_.DataEstrazione(indice, gioco_ == Gioco::SuperEnalotto ? archives::ArchivioSuper : 1);
}

void FrmPrecursoriTordelli::CreaControlli() {
    auto* principale = new QHBoxLayout(this);
    sinistra_ = new QVBoxLayout;
    principale->addLayout(sinistra_, 0);
    sinistra_->addWidget(CreaParametri());
    sinistra_->addWidget(CreaNumeri());
    fraFormazioni_ = CreaFormazioni();
    sinistra_->addWidget(fraFormazioni_);
    sinistra_->addStretch();

    auto* destra = new QVBoxLayout;
    principale->addLayout(destra, 1);
    lblDescrizioneStatistica_ = new QLabel(this);
    lblDescrizioneStatistica_->setObjectName("lblDescrizioneStatistica");
    lblDescrizioneVerifica_ = new QLabel(this);
    lblDescrizioneVerifica_->setObjectName("lblDescrizioneVerifica");
    for (QLabel* l : {lblDescrizioneStatistica_, lblDescrizioneVerifica_}) l->setWordWrap(true);
    ListView_[0] = Lista(this, "ListView_0", QStringLiteral("Lista precursori"));
    ListView_[0]->setHeaderLabels({"Ambata", "Presenze", "Precursori rilevati", " %"});
    ListView_[1] = Lista(this, "ListView_1", QStringLiteral("Precursori attualmente presenti"));
    ListView_[1]->setHeaderLabels({"Ambata", "Precursori presenti", "Rit.sto", "Rit.att", "Pres.", "%"});
    destra->addWidget(lblDescrizioneStatistica_);
    destra->addWidget(ListView_[0], 3);
    destra->addWidget(lblDescrizioneVerifica_);
    destra->addWidget(ListView_[1], 2);
    ProgressBar1_ = new QProgressBar(this);
    ProgressBar1_->setObjectName("ProgressBar1");
    destra->addWidget(ProgressBar1_);
    auto* comandi = new QHBoxLayout;
    cmdCalcola_ = new QPushButton(QStringLiteral("Calcola"), this);
    cmdCalcola_->setObjectName("cmdCalcola");
    cmdStampa_ = new QPushButton(QStringLiteral("Stampa"), this);
    cmdStampa_->setObjectName("cmdStampa");
    cmdPrintToFile_ = new QPushButton(QStringLiteral("Salva su file"), this);
    cmdPrintToFile_->setObjectName("cmdPrintToFile");
    cmdStampa_->setEnabled(false);
    cmdPrintToFile_->setEnabled(false);
    for (QPushButton* b : {cmdCalcola_, cmdStampa_, cmdPrintToFile_}) comandi->addWidget(b);
    destra->addLayout(comandi);
    connect(cmdCalcola_, &QPushButton::clicked, this, &FrmPrecursoriTordelli::Calcola);
    connect(cmdStampa_, &QPushButton::clicked, this, &FrmPrecursoriTordelli::Stampa);
    connect(cmdPrintToFile_, &QPushButton::clicked, this, &FrmPrecursoriTordelli::PrintToFile);
}

QGroupBox* FrmPrecursoriTordelli::CreaParametri() {
    auto* fra = new QGroupBox(QStringLiteral("Parametri"), this);
    fra->setObjectName("fraParametri");
    auto* g = new QGridLayout(fra);
    int riga = 0;
    if (gioco_ == Gioco::Lotto) {
        // Exactly one wheel at all times; a click makes it the only one.
        QStringList nomi;
        for (int w = 1; w <= archives::NumeroRuote; ++w) nomi << Q(archives::SigleRuota[static_cast<size_t>(w)]);
        auto* ruote = new QGridLayout;
        CreaCaselle<QCheckBox>(fra, ruote, {.perRiga = 6}, QStringLiteral("chkRuota"), 1, nomi,
                               std::span<QCheckBox*>(chkRuota_.data() + 1, 11));
        const config::CaselleRuote c =
            config::CaricaRuote(config::LeggiImpostazione(sessione_.ini, config::sezioni::Settings, "Ruota",
                                                          config::Predefinito(config::sezioni::Settings, "Ruota")));
        int scelta = 1;
        for (int w = 11; w >= 1; --w)
            if (c[static_cast<size_t>(w)]) scelta = w;
        chkRuota_[static_cast<size_t>(scelta)]->setChecked(true);
        for (int w = 1; w <= 11; ++w)
            connect(chkRuota_[static_cast<size_t>(w)], &QCheckBox::clicked, this, [this, w] { ClicRuota(w); });
        g->addLayout(ruote, riga++, 0, 1, 4);
    }
    // The analysis ends by default where the verification span begins, and starts 15 years before.
    const int32_t N = NumeroEstrazioni();
    const int32_t verifica =
        gioco_ == Gioco::SuperEnalotto ? N : config::LeggiIndiciRicerca(sessione_.ini, N).IndiceFine;
    txtSuccessivi_ = Casella(fra, "txtSuccessivi", "6", 2);
    const QDate a = DataQt(DataEstrazione(N - 6));
    DTPickerDa_ = new QDateEdit(a.addYears(-15), fra);
    DTPickerDa_->setObjectName("DTPickerDa");
    DTPickerA_ = new QDateEdit(a, fra);
    DTPickerA_->setObjectName("DTPickerA");
    DTPickerVerifica_ = new QDateEdit(DataQt(DataEstrazione(verifica)), fra);
    DTPickerVerifica_->setObjectName("DTPickerVerifica");
    for (QDateEdit* d : {DTPickerDa_, DTPickerA_, DTPickerVerifica_}) {
        d->setDisplayFormat("dd/MM/yyyy");
        d->setCalendarPopup(true);
    }
    g->addWidget(new QLabel(QStringLiteral("Dal"), fra), riga, 0);
    g->addWidget(DTPickerDa_, riga, 1);
    g->addWidget(new QLabel(QStringLiteral("al"), fra), riga, 2);
    g->addWidget(DTPickerA_, riga++, 3);
    g->addWidget(new QLabel(QStringLiteral("Verifica al"), fra), riga, 0);
    g->addWidget(DTPickerVerifica_, riga++, 1);
    txtPrecedenti_ = Casella(fra, "txtPrecedenti", "6", 2);
    txtPrecursori_ = Casella(fra, "txtPrecursori", "5", 1);
    g->addWidget(new QLabel(QStringLiteral("Colpi precedenti"), fra), riga, 0);
    g->addWidget(txtPrecedenti_, riga, 1);
    g->addWidget(new QLabel(QStringLiteral("Precursori"), fra), riga, 2);
    g->addWidget(txtPrecursori_, riga++, 3);
    g->addWidget(new QLabel(QStringLiteral("Colpi successivi"), fra), riga, 0);
    g->addWidget(txtSuccessivi_, riga++, 1);
    cboSceltaelaborazione_ = new QComboBox(fra);
    cboSceltaelaborazione_->setObjectName("cboSceltaelaborazione");
    cboSceltaelaborazione_->addItems({"Analizza ambate", "Analizza ambi"});
    g->addWidget(cboSceltaelaborazione_, riga++, 0, 1, 4);
    optOrdinamento_[0] = new QRadioButton(QStringLiteral("Ordina per presenze"), fra);
    optOrdinamento_[1] = new QRadioButton(QStringLiteral("Ordina per % dei precursori"), fra);
    for (int k = 0; k < 2; ++k) {
        optOrdinamento_[static_cast<size_t>(k)]->setObjectName(QStringLiteral("optOrdinamento_%1").arg(k));
        g->addWidget(optOrdinamento_[static_cast<size_t>(k)], riga, k * 2, 1, 2);
    }
    ++riga;
    optOrdinamento_[1]->setChecked(true);
    for (QLineEdit* t : {txtPrecedenti_, txtPrecursori_, txtSuccessivi_})
        connect(t, &QLineEdit::returnPressed, this, &FrmPrecursoriTordelli::Calcola);
    for (QDateEdit* d : {DTPickerDa_, DTPickerA_})
        connect(d, &QDateEdit::dateChanged, this, &FrmPrecursoriTordelli::PulisciRisultati);
    connect(cboSceltaelaborazione_, &QComboBox::currentIndexChanged, this, [this](int i) {
        // Formations are never combined with ambi.
        if (i == 1) chkInserimentoManuale_->setChecked(false);
    });
    return fra;
}

QGroupBox* FrmPrecursoriTordelli::CreaNumeri() {
    auto* fra = new QGroupBox(QStringLiteral("Numeri da considerare"), this);
    fra->setObjectName("fraNumeri");
    auto* g = new QGridLayout(fra);
    g->setSpacing(0);
    QStringList testi;
    for (int n = 1; n <= 90; ++n) testi << QString::number(n);
    CreaCaselle<QCheckBox>(fra, g, {.perRiga = 10}, QStringLiteral("chkNumero"), 1, testi,
                           std::span<QCheckBox*>(chkNumero_.data() + 1, 90));
    const std::string s =
        config::LeggiImpostazione(sessione_.ini, config::sezioni::Restrizioni, "NumeriTordelli", std::string(90, '1'));
    for (int n = 1; n <= 90; ++n) {
        QCheckBox* c = chkNumero_[static_cast<size_t>(n)];
        c->setChecked(static_cast<size_t>(n) > s.size() || s[static_cast<size_t>(n - 1)] != '0');
        c->setAutoFillBackground(true);
        AggiornaNumero(n);
        connect(c, &QCheckBox::clicked, this, [this, n] {
            AggiornaNumero(n);
            PulisciRisultati();
            cmdCalcola_->setFocus();
        });
    }
    lblSelezionati_ = new QLabel(fra);
    lblSelezionati_->setObjectName("lblSelezionati");
    auto* cmdSeleziona = new QPushButton(QStringLiteral("Seleziona tutti"), fra);
    cmdSeleziona->setObjectName("cmdSeleziona");
    auto* cmdElimina = new QPushButton(QStringLiteral("Elimina tutti"), fra);
    cmdElimina->setObjectName("cmdElimina");
    for (auto [b, stato] : {std::pair{cmdSeleziona, true}, std::pair{cmdElimina, false}})
        connect(b, &QPushButton::clicked, this, [this, stato] {
            for (int n = 1; n <= 90; ++n) {
                chkNumero_[static_cast<size_t>(n)]->setChecked(stato);
                AggiornaNumero(n);
            }
            PulisciRisultati();
        });
    g->addWidget(lblSelezionati_, 9, 0, 1, 4);
    g->addWidget(cmdSeleziona, 9, 4, 1, 3);
    g->addWidget(cmdElimina, 9, 7, 1, 3);
    AggiornaNumero(1);
    return fra;
}

QGroupBox* FrmPrecursoriTordelli::CreaFormazioni() {
    auto* fra = new QGroupBox(this);
    fra->setObjectName("fraFormazioni");
    auto* v = new QVBoxLayout(fra);
    chkInserimentoManuale_ = new QCheckBox(QStringLiteral("Inserimento manuale"), fra);
    chkInserimentoManuale_->setObjectName("chkInserimentoManuale");
    v->addWidget(chkInserimentoManuale_);
    FrameGruppi_ = new QGroupBox(QStringLiteral("Formazioni numeriche"), fra);
    FrameGruppi_->setObjectName("FrameGruppi");
    auto* g = new QGridLayout(FrameGruppi_);
    txtGruppi_ = new QPlainTextEdit(FrameGruppi_);
    txtGruppi_->setObjectName("txtGruppi");
    g->addWidget(txtGruppi_, 0, 0, 1, 4);
    auto* cmdInserisci = new QPushButton(QStringLiteral("Valida"), FrameGruppi_);
    cmdInserisci->setObjectName("cmdInserisci");
    auto* cmdSalva = new QPushButton(QStringLiteral("Salva"), FrameGruppi_);
    cmdSalva->setObjectName("cmdSalva");
    auto* cmdIncolla = new QPushButton(QStringLiteral("Incolla"), FrameGruppi_);
    cmdIncolla->setObjectName("cmdIncolla");
    auto* cmdCancellaElenco = new QPushButton(QStringLiteral("Cancella"), FrameGruppi_);
    cmdCancellaElenco->setObjectName("cmdCancellaElenco");
    int c = 0;
    for (QPushButton* b : {cmdInserisci, cmdSalva, cmdIncolla, cmdCancellaElenco}) g->addWidget(b, 1, c++);
    chkVerifica_ = new QCheckBox(QStringLiteral("Verifica formaz. doppie"), FrameGruppi_);
    chkVerifica_->setObjectName("chkVerifica");
    g->addWidget(chkVerifica_, 2, 0, 1, 2);
    g->addWidget(new QLabel(QString::fromUtf8("(più lento)"), FrameGruppi_), 2, 2, 1, 2);
    connect(cmdInserisci, &QPushButton::clicked, this, &FrmPrecursoriTordelli::Valida);
    connect(cmdSalva, &QPushButton::clicked, this, &FrmPrecursoriTordelli::SalvaFormazioni);
    connect(cmdIncolla, &QPushButton::clicked, this, [this] {
        txtGruppi_->setFocus();
        txtGruppi_->paste();
    });
    connect(cmdCancellaElenco, &QPushButton::clicked, txtGruppi_, &QPlainTextEdit::clear);
    // A change of the text asks for a new validation.
    connect(txtGruppi_, &QPlainTextEdit::textChanged, this, [this] { formazioni_.clear(); });
    v->addWidget(FrameGruppi_);

    frameMinimi_ = new QGroupBox(fra);
    frameMinimi_->setObjectName("frameMinimi");
    auto* m = new QGridLayout(frameMinimi_);
    txtPresenze_ = Casella(frameMinimi_, "txtPresenze", "2", 2);
    txtNumeriInFormazione_ = Casella(frameMinimi_, "txtNumeriInFormazione", "2", 1);
    m->addWidget(new QLabel(QStringLiteral("Presenze minime nel periodo"), frameMinimi_), 0, 0);
    m->addWidget(txtPresenze_, 0, 1);
    m->addWidget(new QLabel(QStringLiteral("Considera minimo"), frameMinimi_), 1, 0);
    m->addWidget(txtNumeriInFormazione_, 1, 1);
    m->addWidget(new QLabel(QStringLiteral("numeri nelle formazioni"), frameMinimi_), 1, 2);
    chkTerzineIntegrali_ = new QCheckBox(QString::fromUtf8("Analisi di tutte le 117.480 terzine"), frameMinimi_);
    chkTerzineIntegrali_->setObjectName("chkTerzineIntegrali");
    m->addWidget(chkTerzineIntegrali_, 2, 0, 1, 3);
    connect(chkTerzineIntegrali_, &QCheckBox::toggled, this, [this](bool on) {
        if (!on) return;
        txtGruppi_->clear();
        formazioni_.clear();
    });
    v->addWidget(frameMinimi_);
    auto mostra = [this](bool on) {
        FrameGruppi_->setVisible(on);
        frameMinimi_->setVisible(on);
        if (on) cboSceltaelaborazione_->setCurrentIndex(0);
    };
    connect(chkInserimentoManuale_, &QCheckBox::toggled, this, mostra);
    mostra(false);
    return fra;
}

void FrmPrecursoriTordelli::AggiornaNumero(int n) {
    QCheckBox* c = chkNumero_[static_cast<size_t>(n)];
    QPalette p = c->palette();
    p.setColor(QPalette::Window, c->isChecked() ? GialloChiaro : palette().color(QPalette::Window));
    c->setPalette(p);
    if (!lblSelezionati_) return;
    int quanti = 0;
    for (int x = 1; x <= 90; ++x) quanti += chkNumero_[static_cast<size_t>(x)]->isChecked();
    lblSelezionati_->setText(QStringLiteral("Selezionati: %1").arg(quanti));
}

void FrmPrecursoriTordelli::ClicRuota(int ruota) {
    for (int w = 1; w <= 11; ++w) chkRuota_[static_cast<size_t>(w)]->setChecked(w == ruota);
    config::CaselleRuote c{};
    c[static_cast<size_t>(ruota)] = true;
    config::ScriviImpostazione(sessione_.ini, config::sezioni::Settings, "Ruota", config::LettereRuote(c));
    PulisciRisultati();
}

void FrmPrecursoriTordelli::PulisciRisultati() {
    for (QTreeWidget* l : ListView_) l->clear();
    lblDescrizioneStatistica_->clear();
    lblDescrizioneVerifica_->clear();
}

std::optional<int32_t> FrmPrecursoriTordelli::Indice(QDateEdit* data, bool precedente) {
    const std::string testo = data->date().toString("dd/MM/yyyy").toStdString();
    const archives::RisultatoData d = gioco_ == Gioco::SuperEnalotto
                                          ? archives::ControllaDataSuper(testo, archivio_, precedente)
                                          : archives::ControllaData(testo, archivio_, precedente);
    if (d.ErroreData) {
        MostraMessaggio(this, d.messaggio);
        return std::nullopt;
    }
    const QSignalBlocker blocca(data);
    data->setDate(DataQt(d.DataTrovata.empty() ? DataEstrazione(d.IndiceTrovato) : d.DataTrovata));
    return d.IndiceTrovato;
}

FonteEstrazioni FrmPrecursoriTordelli::Fonte() const {
    switch (gioco_) {
        case Gioco::SuperEnalotto: return FonteEstrazioni::SuperEnalotto(archivio_.LeggiTuttiSuper());
        case Gioco::DieciELotto: return FonteEstrazioni::DieciELotto(*archivio_.Storia());
        default: break;
    }
    int ruota = 1;
    for (int w = 1; w <= 11; ++w)
        if (chkRuota_[static_cast<size_t>(w)]->isChecked()) ruota = w;
    return FonteEstrazioni::Lotto(*archivio_.Storia(), ruota);
}

void FrmPrecursoriTordelli::Valida() {
    const EsitoValidazione v = ValidaFormazioni(txtGruppi_->toPlainText().toStdString(), chkVerifica_->isChecked());
    if (!v.errore.vuoto()) {
        formazioni_.clear();
        MostraMessaggio(this, v.errore);
        return;
    }
    formazioni_ = v.formazioni;
    righeFormazioni_ = v.righe;
    MostraMessaggio(this, v.riepilogo);
}

void FrmPrecursoriTordelli::SalvaFormazioni() {
    if (righeFormazioni_.empty() || formazioni_.empty()) {
        MostraMessaggio(this, {"E' necessario prima validare le formazioni inserite!", "Precursori",
                               archives::Icona::Esclamazione});
        return;
    }
    std::vector<config::RigaTesto> righe;
    for (const std::string& r : righeFormazioni_) righe.push_back({r});
    if (SalvaReportSuFile(this, sessione_, righe, QStringLiteral("Formazioni.txt"), DomandaFile::Sovrascrivi))
        MostraMessaggio(this,
                        {"Memorizzazione effettuata!", "Formazioni salvate su file", archives::Icona::Informazione});
}

void FrmPrecursoriTordelli::Calcola() {
    if (elaborazione_) return;
    PulisciRisultati();
    const bool formazioni = chkInserimentoManuale_->isChecked() && fraFormazioni_->isVisibleTo(this);
    if (!PreparaPeriodo()) return;
    ParametriPrecursori p;
    const std::optional<int32_t> da = Indice(DTPickerDa_, false);
    if (!da) return;
    p.Inizio = *da;
    const std::optional<int32_t> a = Indice(DTPickerA_, true);
    if (!a) return;
    const std::optional<int32_t> v = Indice(DTPickerVerifica_, true);
    if (!v) return;
    p.Fine = *a;
    p.IndiceVerifica = *v;
    p.Precedenti = Valore(txtPrecedenti_);
    p.NumPrecursori = Valore(txtPrecursori_);
    p.Successivi = Valore(txtSuccessivi_);
    p.sorte = cboSceltaelaborazione_->currentIndex() == 1 ? Sorte::Ambi : Sorte::Ambate;
    p.PerPercentuale = optOrdinamento_[1]->isChecked();
    for (int n = 1; n <= 90; ++n)
        p.Considerato[static_cast<size_t>(n)] = chkNumero_[static_cast<size_t>(n)]->isChecked();
    p.PresenzeMinime = Valore(txtPresenze_);
    p.MinimoNumeri = Valore(txtNumeriInFormazione_);
    p.TerzineIntegrali = formazioni && chkTerzineIntegrali_->isChecked();

    Avvia(p, formazioni, false);
}

void FrmPrecursoriTordelli::Avvia(const ParametriPrecursori& p, bool formazioni, bool confermato) {
    auto fonte = std::make_shared<FonteEstrazioni>(Fonte());
    elaborazione_ = true;
    auto risultato = std::make_shared<EsitoPrecursori>();
    const Formazioni fz = formazioni_;
    const Procedura personale = ProceduraPersonale(p);
    Elaborazione::Avvia(
        this, sessione_, QStringLiteral("Analisi precursori..."),
        [p, fonte, fz, formazioni, confermato, risultato, personale](std::stop_token stop, const Progresso& progresso) {
            Avanzamento av{stop, [&progresso](int v, int m) { progresso("Analisi precursori...", v, m); }};
            if (personale)
                *risultato = personale(*fonte, av);
            else
                *risultato =
                    formazioni ? AnalisiFormazioni(p, *fonte, fz, confermato, av) : AnalisiPrecursori(p, *fonte, av);
        },
        [this, risultato, fonte, p, formazioni](bool) {
            elaborazione_ = false;
            // Formations shorter than the minimum: asked, then run again with the answer.
            if (!risultato->domanda.vuoto()) {
                if (Chiedi(this, risultato->domanda, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) ==
                    QMessageBox::Yes) {
                    Avvia(p, formazioni, true);
                    return;
                }
                txtNumeriInFormazione_->setFocus();
                emit analisiTerminata();
                return;
            }
            MostraEsito(*risultato, *fonte);
            emit analisiTerminata();
        });
}

void FrmPrecursoriTordelli::MostraEsito(const EsitoPrecursori& e, const FonteEstrazioni& fonte) {
    if (!e.avviso.vuoto()) {
        MostraMessaggio(this, e.avviso);
        const QSignalBlocker blocca(DTPickerDa_);
        DTPickerDa_->setDate(DataQt(std::string(archives::DataInizioNazionale)));
    }
    if (e.interrotta) return;
    if (!e.errore.vuoto()) {
        MostraMessaggio(this, e.errore);
        if (auto* w = findChild<QWidget*>(QString::fromStdString(e.focus))) w->setFocus();
        return;
    }
    esito_ = e;
    fonteEsito_ = fonte;
    ListView_[0]->setHeaderLabels({Q(e.titoli[0]), Q(e.titoli[1]), Q(e.titoli[2]), Q(e.titoli[3])});
    QStringList teste;
    for (const std::string& t : e.titoliPresenti) teste << Q(t);
    ListView_[1]->setHeaderLabels(teste);
    QFont grassetto = ListView_[0]->font();
    grassetto.setBold(true);
    for (const RigaPrecursori& r : e.lista) {
        auto* item = new QTreeWidgetItem(ListView_[0], {Q(r.testo[0]), Q(r.testo[1]), Q(r.testo[2]), Q(r.testo[3])});
        item->setData(0, Qt::UserRole, r.chiave);
        for (auto [c, colore] : {std::pair{0, Blu}, std::pair{1, Verde}, std::pair{3, Marrone}}) {
            item->setFont(c, grassetto);
            item->setForeground(c, colore);
        }
    }
    for (const RigaPresenti& r : e.presenti) {
        QStringList t;
        for (const std::string& x : r.testo) t << Q(x);
        auto* item = new QTreeWidgetItem(ListView_[1], t);
        item->setFont(0, grassetto);
        item->setForeground(0, Blu);
        for (int c : {2, 3, 4, 5}) item->setFont(c, grassetto);
        item->setForeground(5, Marrone);
        if (r.colore != Colore::Nessuno) item->setForeground(3, r.colore == Colore::Verde ? Verde : Marrone);
    }
    for (QTreeWidget* l : ListView_)
        for (int c = 0; c < l->columnCount(); ++c) l->resizeColumnToContents(c);
    lblDescrizioneStatistica_->setText(Q(e.descrizioneStatistica));
    lblDescrizioneVerifica_->setText(Q(e.descrizioneVerifica));
    ProgressBar1_->setValue(ProgressBar1_->maximum());
    cmdStampa_->setEnabled(true);
    cmdPrintToFile_->setEnabled(true);
}

void FrmPrecursoriTordelli::Stampa() {
    // Reports only when both lists hold rows.
    if (ListView_[0]->topLevelItemCount() == 0 || ListView_[1]->topLevelItemCount() == 0 || !fonteEsito_) return;
    OpzioniStampa o;
    o.righePerPagina = 0;
    const std::vector<config::RigaTesto> righe = StampaPrecursori(esito_, *fonteEsito_);
    StampaReport(this, righe, o);
}

void FrmPrecursoriTordelli::PrintToFile() {
    if (ListView_[0]->topLevelItemCount() == 0 || ListView_[1]->topLevelItemCount() == 0 || !fonteEsito_) return;
    std::vector<config::RigaTesto> righe;
    for (std::string& r : ReportPrecursori(esito_, *fonteEsito_)) righe.push_back({std::move(r)});
    SalvaReportSuFile(this, sessione_, righe, Q(NomeFileReport(*fonteEsito_)), DomandaFile::Sovrascrivi);
}

void FrmPrecursoriTordelli::closeEvent(QCloseEvent* e) {
    if (elaborazione_) {
        e->ignore();
        return;
    }
    SalvaPosizione(this, sessione_.ini, chiaveLeft_, chiaveTop_);
    std::string numeri;
    for (int n = 1; n <= 90; ++n) numeri += chkNumero_[static_cast<size_t>(n)]->isChecked() ? '1' : '0';
    config::ScriviImpostazione(sessione_.ini, config::sezioni::Restrizioni, "NumeriTordelli", numeri);
    e->accept();
}

}  // namespace gorgo::screens
