#include "screens/consultation/frm_consulta_estrazioni.h"

#include <fmt/format.h>

#include <QButtonGroup>
#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenuBar>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

#include "archives/archivio.h"
#include "config/formato.h"
#include "config/impostazioni.h"
#include "config/ini.h"
#include "screens/common/aiuto.h"
#include "screens/common/messaggi.h"
#include "screens/common/stampa.h"
#include "screens/common/stile.h"
#include "screens/common/twips.h"
#include "screens/consultation/controlli.h"
#include "screens/consultation/frm_analisi.h"
#include "screens/consultation/frm_somme_distanze.h"

namespace gorgo::screens {

using namespace consultazione;
using consultation::Consultazione;
using consultation::Vista;

namespace {

QLineEdit* Casella(QWidget* parent, const QString& nome, const QString& testo, int larghezza = 40) {
    auto* t = new QLineEdit(testo, parent);
    t->setObjectName(nome);
    t->setFixedWidth(larghezza);
    // Digits only.
    t->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), t));
    return t;
}

QCheckBox* Spunta(QWidget* parent, const QString& nome, const QString& testo, const QString& suggerimento = {}) {
    auto* c = new QCheckBox(testo, parent);
    c->setObjectName(nome);
    c->setFocusPolicy(Qt::NoFocus);
    if (!suggerimento.isEmpty()) c->setToolTip(suggerimento);
    return c;
}

QDate DataQt(const std::string& testo) { return QDate::fromString(QString::fromStdString(testo), "dd/MM/yyyy"); }

struct VoceFamiglia {
    int codice;
    const char* nome;
    const char* testo;
    const char* suggerimento;
};

constexpr VoceFamiglia Famiglie[] = {
    {consultation::FamDecina, "cmdDecine", "Decina", ""},
    {consultation::FamCadenza, "cmdCadenze", "Cadenza", ""},
    {consultation::FamFigura, "cmdFigure", "Figura", ""},
    {consultation::FamQuindicina, "cmdQuindicina", "Quindicina", ""},
    {consultation::FamComplementari, "cmdComplementari", "Complementari", "Somma 90: 1-89,2-88,3-87,...,44-46"},
    {consultation::FamSimmetrici, "cmdSimmetrici", "Simmetrici", "Distanza 45: 1-46,2-47,3-48,...,45-90"},
    {consultation::FamGemelli, "cmdGemelli", "Gemelli", ""},
    {consultation::FamVertibili, "cmdVertibili", "Vertibili", ""},
    {consultation::FamRadicali, "cmdRadicali", "Radicali", ""},
    {consultation::FamTerzine, "cmdTerzine", "Terzine simm.", ""},
    {consultation::FamNumeriRipetuti, "cmdNumeriRipetuti", "Numeri ripetuti", ""},
    {consultation::FamAmbiRipetuti, "cmdAmbiRipetuti", "Ambi ripetuti", ""},
    {consultation::FamUsciti, "cmdUsciti", "Usciti su 90", ""},
    {consultation::FamNonUsciti, "cmdNonUsciti", "Non usciti su 90", ""},
    {consultation::FamUscitiScorsa, "cmdUscitiScorsa", "Usciti scorsa est.", ""},
    {consultation::FamNonUscitiScorsa, "cmdNonUscitiScorsa", "Non usciti scorsa est.", ""},
    {consultation::FamUnoIcsDue, "cmd1x2", "1 - X - 2", ""},
    {consultation::FamPariDispari, "cmdPariDispari", "Pari - Dispari", ""},
    {consultation::FamSommeUguali, "cmdSommeUguali", "Somme uguali isotope", ""},
    {consultation::FamDistanzeUguali, "cmdDistanzeUguali", "Distanze uguali isotope", ""},
};

}  // namespace

FrmConsultaEstrazioni::FrmConsultaEstrazioni(Sessione& sessione, const archives::Archivio& archivio, QWidget* parent)
    : QWidget(parent, Qt::Window), sessione_(sessione) {
    setObjectName("frmConsultaEstrazioni");
    setWindowTitle(QStringLiteral("Gorgo 2 - Consulta estrazioni"));
    setAttribute(Qt::WA_DeleteOnClose);
    setFocusPolicy(Qt::StrongFocus);
    RipristinaPosizione(this, sessione_.ini, "ConsultaLeft", "ConsultaTop");
    cursore_ = std::make_unique<Consultazione>(archivio.Storia());
    CreaControlli();
    mnuVisualizzaRiepilogo_->setChecked(
        config::LeggiBooleano(sessione_.ini, config::sezioni::Options, "Riepilogo", false));
    ApplicaStile(this, sessione_.ini);
    ScegliRuota(0);
}

FrmConsultaEstrazioni::~FrmConsultaEstrazioni() = default;

FrmAnalisi* FrmConsultaEstrazioni::analisi() const { return analisi_.data(); }
FrmSommeDistanze* FrmConsultaEstrazioni::sommeDistanze() const { return sommeDistanze_.data(); }

void FrmConsultaEstrazioni::CreaControlli() {
    auto* v = new QVBoxLayout(this);
    CreaMenu(v);
    auto* h = new QHBoxLayout;
    auto* sinistra = new QVBoxLayout;
    sinistra->addWidget(CreaVisualizzazione());
    sinistra->addWidget(CreaGriglia());
    sinistra->addWidget(CreaMovimenti());
    sinistra->addStretch();
    h->addLayout(sinistra);
    fraDestra_ = new QWidget(this);
    auto* destra = new QVBoxLayout(fraDestra_);
    destra->setContentsMargins(0, 0, 0, 0);
    destra->addWidget(CreaFamiglie());
    destra->addWidget(CreaTrovaNumeri());
    destra->addWidget(CreaTrovaSomme(true));
    destra->addWidget(CreaTrovaSomme(false));
    destra->addStretch();
    h->addWidget(fraDestra_);
    v->addLayout(h);
}

void FrmConsultaEstrazioni::CreaMenu(QVBoxLayout* v) {
    auto* barra = new QMenuBar(this);
    QMenu* trova = barra->addMenu(QStringLiteral("Trova..."));
    const auto mostra = [this](QGroupBox* f, QGroupBox* r) {
        f->setVisible(!f->isVisible());
        r->setVisible(f->isVisible() && mnuVisualizzaRiepilogo_->isChecked());
    };
    QAction* a = trova->addAction(QStringLiteral("Numeri"));
    a->setObjectName("mnuMostraNumeri");
    connect(a, &QAction::triggered, this, [this, mostra] { mostra(fraTrovaNumeri_, fraRiepilogoNumeri_); });
    a = trova->addAction(QStringLiteral("Somme"));
    a->setObjectName("mnuMostraSomme");
    connect(a, &QAction::triggered, this, [this, mostra] { mostra(fraTrovaSomme_, fraRiepilogoSomme_); });
    a = trova->addAction(QStringLiteral("Distanze"));
    a->setObjectName("mnuMostraDistanze");
    connect(a, &QAction::triggered, this, [this, mostra] { mostra(fraTrovaDistanze_, fraRiepilogoDistanze_); });
    QMenu* vis = barra->addMenu(QStringLiteral("Visualizza"));
    mnuVisualizzaRiepilogo_ = vis->addAction(QStringLiteral("Finestra di riepilogo"));
    mnuVisualizzaRiepilogo_->setObjectName("mnuVisualizzaRiepilogo");
    mnuVisualizzaRiepilogo_->setCheckable(true);
    connect(mnuVisualizzaRiepilogo_, &QAction::toggled, this, [this](bool on) {
        fraRiepilogoNumeri_->setVisible(on && fraTrovaNumeri_->isVisible());
        fraRiepilogoSomme_->setVisible(on && fraTrovaSomme_->isVisible());
        fraRiepilogoDistanze_->setVisible(on && fraTrovaDistanze_->isVisible());
    });
    QAction* sd = vis->addAction(QStringLiteral("Somme e distanze"));
    sd->setObjectName("mnuSommeDistanze");
    connect(sd, &QAction::triggered, this, &FrmConsultaEstrazioni::ApriSommeDistanze);
    v->setMenuBar(barra);
}

QWidget* FrmConsultaEstrazioni::CreaVisualizzazione() {
    auto* w = new QWidget(this);
    auto* g = new QGridLayout(w);
    g->setContentsMargins(0, 0, 0, 0);
    const char* testi[] = {"NORMALE", "RITARDO ALLA SORTITA", "FREQUENZA NEL PERIODO"};
    auto* gruppo = new QButtonGroup(w);
    for (int i = 0; i < 3; ++i) {
        optTipoVis_[static_cast<size_t>(i)] = new QRadioButton(QString::fromUtf8(testi[i]), w);
        optTipoVis_[static_cast<size_t>(i)]->setObjectName(QStringLiteral("optTipoVis_%1").arg(i));
        optTipoVis_[static_cast<size_t>(i)]->setFocusPolicy(Qt::NoFocus);
        gruppo->addButton(optTipoVis_[static_cast<size_t>(i)], i);
        g->addWidget(optTipoVis_[static_cast<size_t>(i)], 0, i);
    }
    optTipoVis_[0]->setChecked(true);
    connect(gruppo, &QButtonGroup::idClicked, this, &FrmConsultaEstrazioni::ScegliVista);
    lblVisualizzazione_ = Etichetta(w, "lblVisualizzazione", QStringLiteral("Numeri estratti"));
    QFont f = lblVisualizzazione_->font();
    f.setBold(true);
    f.setPointSize(f.pointSize() + 2);
    lblVisualizzazione_->setFont(f);
    g->addWidget(lblVisualizzazione_, 1, 0, 1, 2);
    chkOrdin_ = Spunta(w, "chkOrdin", QStringLiteral("Estrazioni ordinate"),
                       QStringLiteral("Se spuntata ordina le estrazioni per numero crescente"));
    connect(chkOrdin_, &QCheckBox::toggled, this, [this](bool on) {
        cursore_->Ordinate = on;
        AggiornaConsultazione();
    });
    g->addWidget(chkOrdin_, 1, 2);
    auto* ruote = new QHBoxLayout;
    for (int r = 0; r <= archives::NumeroRuote; ++r) {
        const QString testo = r == 0
                                  ? QStringLiteral("Tutte")
                                  : QString::fromStdString(std::string(archives::SigleRuota[static_cast<size_t>(r)]));
        cmdRuota_[static_cast<size_t>(r)] =
            Pulsante(w, QStringLiteral("cmdRuota_%1").arg(r), testo,
                     r == 0 ? QStringLiteral("Tutte le ruote") : QString::fromStdString(consultation::NomeRuota(r)));
        cmdRuota_[static_cast<size_t>(r)]->setCheckable(true);
        cmdRuota_[static_cast<size_t>(r)]->setMaximumWidth(52);
        connect(cmdRuota_[static_cast<size_t>(r)], &QPushButton::clicked, this, [this, r] { ScegliRuota(r); });
        ruote->addWidget(cmdRuota_[static_cast<size_t>(r)]);
    }
    g->addLayout(ruote, 2, 0, 1, 3);
    return w;
}

QWidget* FrmConsultaEstrazioni::CreaGriglia() {
    auto* w = new QGroupBox(this);
    auto* g = new QGridLayout(w);
    g->setSpacing(3);
    for (int r = 0; r < 11; ++r) {
        lblNomeRuota_[static_cast<size_t>(r)] = Etichetta(w, QStringLiteral("lblNomeRuota_%1").arg(r + 1),
                                                          QString::fromStdString(consultation::NomeRuota(r + 1)));
        lblNomeRuota_[static_cast<size_t>(r)]->setMinimumWidth(80);
        g->addWidget(lblNomeRuota_[static_cast<size_t>(r)], r, 0);
        if (r < 10) {
            lblData_[static_cast<size_t>(r)] = Etichetta(w, QStringLiteral("lblData_%1").arg(r));
            g->addWidget(lblData_[static_cast<size_t>(r)], r, 0);
        }
        for (int p = 0; p < 5; ++p) {
            const int k = r * 5 + p;
            txtEstratto_[static_cast<size_t>(k)] = CasellaNumero(w, QStringLiteral("txtEstratto_%1").arg(k + 1));
            g->addWidget(txtEstratto_[static_cast<size_t>(k)], r, p + 1);
        }
    }
    auto* etichette = new QGridLayout;
    const auto riga = [&](int i, const QString& testo, QLabel*& l, const char* nome) {
        etichette->addWidget(new QLabel(testo, w), i, 0);
        l = Etichetta(w, nome);
        QFont f = l->font();
        f.setBold(true);
        l->setFont(f);
        etichette->addWidget(l, i, 1);
    };
    riga(0, QStringLiteral("Progressivo assoluto dal 1871"), lblTotaleEstrazioni_, "lblTotaleEstrazioni");
    riga(1, QStringLiteral("Estrazione n."), lblNumeroAnnoEstraz_, "lblNumeroAnnoEstraz");
    riga(2, QStringLiteral("Anno"), lblAnnoEstrazione_, "lblAnnoEstrazione");
    riga(3, QStringLiteral("Giorno"), lblGiornoEstraz_, "lblGiornoEstraz");
    riga(4, QStringLiteral("I. mese"), lblindiceMese_, "lblindiceMese");
    lblSorMedia_ = Etichetta(w, "lblSorMedia");
    etichette->addWidget(lblSorMedia_, 5, 0, 1, 2);
    etichette->setRowStretch(6, 1);
    g->addLayout(etichette, 0, 6, 11, 1);
    return w;
}

QWidget* FrmConsultaEstrazioni::CreaMovimenti() {
    auto* w = new QWidget(this);
    auto* v = new QVBoxLayout(w);
    v->setContentsMargins(0, 0, 0, 0);
    Slider1_ = new QSlider(Qt::Horizontal, w);
    Slider1_->setObjectName("Slider1");
    Slider1_->setToolTip(QStringLiteral("Slider numero estrazione"));
    Slider1_->setRange(std::min(1, cursore_->NumeroEstrazioni()), cursore_->NumeroEstrazioni());
    Slider1_->setPageStep(10);
    Slider1_->setFocusPolicy(Qt::NoFocus);
    connect(Slider1_, &QSlider::valueChanged, this, [this](int valore) {
        if (InAggiornamento) return;
        cursore_->VaiA(valore);
        AggiornaConsultazione();
    });
    v->addWidget(Slider1_);

    // The full layout.
    fraComandi_ = new QWidget(w);
    auto* h = new QHBoxLayout(fraComandi_);
    h->setContentsMargins(0, 0, 0, 0);
    auto* fastPrec =
        Pulsante(fraComandi_, "cmdFastPrec", QStringLiteral("<<"), QStringLiteral("Indietro di 10-100 estrazioni"));
    auto* prec =
        Pulsante(fraComandi_, "cmdPrecedente", QStringLiteral("< Precedente"), QStringLiteral("- 1 Estrazione"));
    auto* succ =
        Pulsante(fraComandi_, "cmdSuccessiva", QStringLiteral("Successiva >"), QStringLiteral("+ 1 Estrazione"));
    auto* fastSucc =
        Pulsante(fraComandi_, "cmdFastSucc", QStringLiteral(">>"), QStringLiteral("Avanti di 10-100 estrazioni"));
    cboSalto_ = new QComboBox(fraComandi_);
    cboSalto_->setObjectName("cboSalto");
    cboSalto_->setToolTip(QStringLiteral("Salto estrazioni"));
    cboSalto_->setFocusPolicy(Qt::NoFocus);
    for (int s = 10; s <= 100; s += 10) cboSalto_->addItem(QString::number(s));
    connect(cboSalto_, &QComboBox::currentIndexChanged, this, [this](int i) {
        cursore_->Salto = (i + 1) * 10;
        Slider1_->setPageStep(cursore_->Salto);
    });
    DTPicker1_ = new QDateEdit(fraComandi_);
    DTPicker1_->setObjectName("DTPicker1");
    DTPicker1_->setDisplayFormat("dd/MM/yyyy");
    DTPicker1_->setCalendarPopup(true);
    auto* conferma = Pulsante(fraComandi_, "cmdConferma", QStringLiteral("Vai alla data"));
    connect(conferma, &QPushButton::clicked, this, [this] { ConfermaData(DTPicker1_); });
    connect(fastPrec, &QPushButton::clicked, this, [this] { Muovi(&Consultazione::IndietroVeloce); });
    connect(prec, &QPushButton::clicked, this, [this] { Muovi(&Consultazione::Precedente); });
    connect(succ, &QPushButton::clicked, this, [this] { Muovi(&Consultazione::Successiva); });
    connect(fastSucc, &QPushButton::clicked, this, [this] { Muovi(&Consultazione::AvantiVeloce); });
    for (QWidget* c : std::initializer_list<QWidget*>{fastPrec, prec, succ, fastSucc, cboSalto_, DTPicker1_, conferma})
        h->addWidget(c);
    v->addWidget(fraComandi_);

    // The compact layout.
    fraComandiSmall_ = new QWidget(w);
    fraComandiSmall_->setObjectName("fraComandiSmall");
    auto* hs = new QHBoxLayout(fraComandiSmall_);
    hs->setContentsMargins(0, 0, 0, 0);
    auto* precPlus = Pulsante(fraComandiSmall_, "cmdPrecPlus", QStringLiteral("<<"),
                              QStringLiteral("Indietro di 10-100 estrazioni"));
    auto* precS = Pulsante(fraComandiSmall_, "cmdPrec", QStringLiteral("<"), QStringLiteral("- 1 Estrazione"));
    auto* succS = Pulsante(fraComandiSmall_, "cmdsucc", QStringLiteral(">"), QStringLiteral("+ 1 Estrazione"));
    auto* succPlus =
        Pulsante(fraComandiSmall_, "cmdSuccPlus", QStringLiteral(">>"), QStringLiteral("Avanti di 10-100 estrazioni"));
    DTPicker2_ = new QDateEdit(fraComandiSmall_);
    DTPicker2_->setObjectName("DTPicker2");
    DTPicker2_->setDisplayFormat("dd/MM/yyyy");
    auto* confermaS = Pulsante(fraComandiSmall_, "cmdConfermaSmall", QStringLiteral("Vai"));
    connect(confermaS, &QPushButton::clicked, this, [this] { ConfermaData(DTPicker2_); });
    connect(precPlus, &QPushButton::clicked, this, [this] { Muovi(&Consultazione::IndietroVeloce); });
    connect(precS, &QPushButton::clicked, this, [this] { Muovi(&Consultazione::Precedente); });
    connect(succS, &QPushButton::clicked, this, [this] { Muovi(&Consultazione::Successiva); });
    connect(succPlus, &QPushButton::clicked, this, [this] { Muovi(&Consultazione::AvantiVeloce); });
    for (QWidget* c : std::initializer_list<QWidget*>{precPlus, precS, succS, succPlus, DTPicker2_, confermaS})
        hs->addWidget(c);
    fraComandiSmall_->hide();
    v->addWidget(fraComandiSmall_);

    auto* basso = new QHBoxLayout;
    auto* resize = Pulsante(w, "cmdResize", QStringLiteral("Riduci"), QStringLiteral("Passa alla finestra ridotta"));
    connect(resize, &QPushButton::clicked, this, &FrmConsultaEstrazioni::Ridimensiona);
    auto* somme = Pulsante(w, "cmdSommeDistanze", QStringLiteral("Somme e distanze"));
    connect(somme, &QPushButton::clicked, this, &FrmConsultaEstrazioni::ApriSommeDistanze);
    auto* stampa = Pulsante(w, "cmdStampa", QStringLiteral("Stampa"));
    connect(stampa, &QPushButton::clicked, this, &FrmConsultaEstrazioni::Stampa);
    auto* help = Pulsante(w, "cmdHelp", QStringLiteral("?"));
    connect(help, &QPushButton::clicked, this, [this] { HelpContext(this, sessione_.ini, AiutoConsultazione); });
    auto* esci = Pulsante(w, "cmdEsci", QStringLiteral("Esci"));
    connect(esci, &QPushButton::clicked, this, &QWidget::close);
    for (QWidget* c : std::initializer_list<QWidget*>{resize, somme, stampa, help, esci}) basso->addWidget(c);
    v->addLayout(basso);
    return w;
}

QWidget* FrmConsultaEstrazioni::CreaFamiglie() {
    auto* w = new QWidget(this);
    auto* v = new QVBoxLayout(w);
    v->setContentsMargins(0, 0, 0, 0);

    // The period of the frequencies.
    auto* periodo = new QGroupBox(QStringLiteral("Periodo delle frequenze"), w);
    fraPeriodo_ = periodo;
    auto* gp = new QGridLayout(periodo);
    const char* testi[] = {"Ultime", "Ultimo anno", "Dall'inizio dell'anno considerato", "Ultimi"};
    auto* gruppo = new QButtonGroup(periodo);
    for (int i = 0; i < 4; ++i) {
        optPeriodo_[static_cast<size_t>(i)] = new QRadioButton(QString::fromUtf8(testi[i]), periodo);
        optPeriodo_[static_cast<size_t>(i)]->setObjectName(QStringLiteral("optPeriodo_%1").arg(i));
        gruppo->addButton(optPeriodo_[static_cast<size_t>(i)], i);
    }
    optPeriodo_[0]->setChecked(true);
    txtNumeroEstrazioni_ = Casella(periodo, "txtNumeroEstrazioni", QStringLiteral("10"));
    txtCicli_ = Casella(periodo, "txtCicli", QStringLiteral("1"));
    gp->addWidget(optPeriodo_[0], 0, 0);
    gp->addWidget(txtNumeroEstrazioni_, 0, 1);
    gp->addWidget(new QLabel(QStringLiteral("estrazioni"), periodo), 0, 2);
    gp->addWidget(optPeriodo_[1], 1, 0, 1, 3);
    gp->addWidget(optPeriodo_[2], 2, 0, 1, 3);
    gp->addWidget(optPeriodo_[3], 3, 0);
    gp->addWidget(txtCicli_, 3, 1);
    gp->addWidget(new QLabel(QStringLiteral("cicli da 18 estraz."), periodo), 3, 2);
    chkConsideraAttuale_ =
        Spunta(periodo, "chkConsideraAttuale", QStringLiteral("Non considerare l'estrazione\nattuale nelle frequenze"));
    gp->addWidget(chkConsideraAttuale_, 4, 0, 1, 3);
    connect(gruppo, &QButtonGroup::idClicked, this, [this] { CambiaPeriodo(); });
    connect(txtNumeroEstrazioni_, &QLineEdit::textChanged, this, [this] { CambiaPeriodo(); });
    connect(txtCicli_, &QLineEdit::textChanged, this, [this] { CambiaPeriodo(); });
    connect(chkConsideraAttuale_, &QCheckBox::toggled, this, [this] { CambiaPeriodo(); });
    v->addWidget(periodo);

    // Families and analyses.
    auto* fam = new QGroupBox(QStringLiteral("Famiglie e analisi"), w);
    fraFamiglie_ = fam;
    auto* g = new QGridLayout(fam);
    g->setSpacing(2);
    int i = 0;
    for (const VoceFamiglia& f : Famiglie) {
        auto* b = Pulsante(fam, f.nome, QString::fromUtf8(f.testo), QString::fromUtf8(f.suggerimento));
        const int codice = f.codice;
        connect(b, &QPushButton::clicked, this, [this, codice] { ScegliFamiglia(codice); });
        famiglie_[codice] = b;
        g->addWidget(b, i / 4, i % 4);
        ++i;
    }
    int riga = (i + 3) / 4;
    auto* cifre = new QHBoxLayout;
    for (int c = 0; c < 10; ++c) {
        cmdNumero_[static_cast<size_t>(c)] = Pulsante(fam, QStringLiteral("cmdNumero_%1").arg(c), QString::number(c));
        cmdNumero_[static_cast<size_t>(c)]->setMaximumWidth(28);
        cmdNumero_[static_cast<size_t>(c)]->setEnabled(false);
        connect(cmdNumero_[static_cast<size_t>(c)], &QPushButton::clicked, this, [this, c] { ScegliCifra(c); });
        cifre->addWidget(cmdNumero_[static_cast<size_t>(c)]);
    }
    lblNFamiglia_ = CasellaNumero(fam, "lblNFamiglia", 28);
    cifre->addWidget(lblNFamiglia_);
    g->addLayout(cifre, riga++, 0, 1, 4);

    // Somma, distanza, ultimo ritardo, with their boxes.
    auto* somma = Pulsante(fam, "cmdSomma", QStringLiteral("Somma --->"));
    txtSomma_ = Casella(fam, "txtSomma", QString());
    chkIsotopi_ = Spunta(fam, "chkIsotopi", QStringLiteral("Isotopi"));
    chkF90_ = Spunta(fam, "chkF90", QStringLiteral("Fuori 90"));
    g->addWidget(somma, riga, 0);
    g->addWidget(txtSomma_, riga, 1);
    g->addWidget(chkIsotopi_, riga, 2);
    g->addWidget(chkF90_, riga++, 3);
    auto* distanza = Pulsante(fam, "cmdDistanza", QStringLiteral("Distanza -->"));
    txtDistanza_ = Casella(fam, "txtDistanza", QString());
    chlIsotopiDistanza_ = Spunta(fam, "chlIsotopiDistanza", QStringLiteral("Isotopi"));
    g->addWidget(distanza, riga, 0);
    g->addWidget(txtDistanza_, riga, 1);
    g->addWidget(chlIsotopiDistanza_, riga++, 2);
    auto* ritardi = Pulsante(fam, "cmdRitardi", QStringLiteral("Ultimo ritardo =>"));
    txtRitardo_ = Casella(fam, "txtRitardo", QStringLiteral("50"));
    chkNumeriAmbiIsotopi_ = Spunta(fam, "chkNumeriAmbiIsotopi", QStringLiteral("isotopi"));
    g->addWidget(ritardi, riga, 0);
    g->addWidget(txtRitardo_, riga, 1);
    g->addWidget(chkNumeriAmbiIsotopi_, riga++, 2);
    famiglie_[consultation::FamSomma] = somma;
    famiglie_[consultation::FamDistanza] = distanza;
    famiglie_[consultation::FamUltimoRitardo] = ritardi;
    connect(somma, &QPushButton::clicked, this, [this] {
        int v = 0;
        if (!LeggiValore(txtSomma_, 2, 180, "inserisci un valore tra 2 e 180 !", v)) return;
        cursore_->Analisi.somma = v;
        ScegliFamiglia(consultation::FamSomma);
    });
    connect(distanza, &QPushButton::clicked, this, [this] {
        int v = 0;
        if (!LeggiValore(txtDistanza_, 1, 89, "inserisci un valore tra 1 e 89 !", v)) return;
        cursore_->Analisi.distanza = v;
        ScegliFamiglia(consultation::FamDistanza);
    });
    connect(ritardi, &QPushButton::clicked, this, [this] {
        cursore_->Analisi.ritardo = txtRitardo_->text().toInt();
        ScegliFamiglia(consultation::FamUltimoRitardo);
    });
    // Leaving a box with a value out of bounds says so.
    connect(txtSomma_, &QLineEdit::editingFinished, this, [this] {
        const int v = txtSomma_->text().toInt();
        if (!txtSomma_->text().isEmpty() && (v < 2 || v > 180))
            MostraMessaggio(this, {"inserisci un numero tra 2 e 180 !", "Errore", archives::Icona::Esclamazione});
    });
    connect(txtDistanza_, &QLineEdit::editingFinished, this, [this] {
        const int v = txtDistanza_->text().toInt();
        if (!txtDistanza_->text().isEmpty() && (v < 1 || v > 89))
            MostraMessaggio(this, {"inserisci un numero tra 1 e 89 !", "Errore", archives::Icona::Esclamazione});
    });
    const auto riesegui = [this](std::initializer_list<int> codici) {
        for (int c : codici)
            if (cursore_->Analisi.famiglia == c) AggiornaConsultazione();
    };
    connect(chkIsotopi_, &QCheckBox::toggled, this, [this, riesegui](bool on) {
        cursore_->Analisi.isotopiSomma = on;
        riesegui({consultation::FamSomma});
    });
    connect(chkF90_, &QCheckBox::toggled, this, [this, riesegui](bool on) {
        cursore_->Analisi.f90Somma = on;
        riesegui({consultation::FamSomma});
    });
    connect(chlIsotopiDistanza_, &QCheckBox::toggled, this, [this, riesegui](bool on) {
        cursore_->Analisi.isotopiDistanza = on;
        riesegui({consultation::FamDistanza});
    });
    connect(chkNumeriAmbiIsotopi_, &QCheckBox::toggled, this, [this, riesegui](bool on) {
        cursore_->Analisi.isotopiRipetuti = on;
        riesegui({consultation::FamNumeriRipetuti, consultation::FamAmbiRipetuti});
    });

    auto* descr = new QHBoxLayout;
    lblDescrFamiglia_ = Etichetta(fam, "lblDescrFamiglia", QStringLiteral("Nessuna selezione"));
    QFont f = lblDescrFamiglia_->font();
    f.setBold(true);
    lblDescrFamiglia_->setFont(f);
    auto* reset = Pulsante(fam, "cmdReset", QStringLiteral("Reset"), QStringLiteral("Annulla la selezione impostata"));
    connect(reset, &QPushButton::clicked, this, &FrmConsultaEstrazioni::Annulla);
    descr->addWidget(lblDescrFamiglia_, 1);
    descr->addWidget(reset);
    g->addLayout(descr, riga, 0, 1, 4);
    v->addWidget(fam);
    return w;
}

QWidget* FrmConsultaEstrazioni::CreaTrovaNumeri() {
    auto* w = new QWidget(this);
    auto* h = new QHBoxLayout(w);
    h->setContentsMargins(0, 0, 0, 0);
    fraTrovaNumeri_ = new QGroupBox(QStringLiteral("Trova i seguenti numeri:"), w);
    fraTrovaNumeri_->setObjectName("fraTrovaNumeri");
    auto* g = new QGridLayout(fraTrovaNumeri_);
    g->setSpacing(0);
    for (int n = 1; n <= 90; ++n) {
        auto* c = Spunta(fraTrovaNumeri_, QStringLiteral("chkNumero_%1").arg(n), QString::number(n));
        chkNumero_[static_cast<size_t>(n)] = c;
        // Ticked red, cleared blue.
        connect(c, &QCheckBox::toggled, c, [c](bool on) {
            QPalette p = c->palette();
            p.setColor(QPalette::WindowText, Qcolore(on ? consultation::Rosso : consultation::Blu));
            c->setPalette(p);
        });
        g->addWidget(c, (n - 1) / 10, (n - 1) % 10);
    }
    auto* ok = Pulsante(fraTrovaNumeri_, "cmdOk", QStringLiteral("Ok"));
    auto* elimina = Pulsante(fraTrovaNumeri_, "cmdElimina", QStringLiteral("Elimina"));
    g->addWidget(ok, 9, 0, 1, 5);
    g->addWidget(elimina, 9, 5, 1, 5);
    fraRiepilogoNumeri_ = new QGroupBox(QStringLiteral("Riepilogo numeri rintracciati"), w);
    auto* vr = new QVBoxLayout(fraRiepilogoNumeri_);
    ListViewNumeri_ = new QTreeWidget(fraRiepilogoNumeri_);
    ListViewNumeri_->setObjectName("ListViewNumeri");
    ListViewNumeri_->setHeaderLabels({QStringLiteral("Num."), QStringLiteral("Sortite")});
    ListViewNumeri_->setRootIsDecorated(false);
    ListViewNumeri_->setFont(FontReport(QStringLiteral("Courier New"), 9));
    vr->addWidget(ListViewNumeri_);
    auto* eliminaNumeri = Pulsante(fraRiepilogoNumeri_, "cmdEliminaNumeri", QStringLiteral("Elimina"));
    vr->addWidget(eliminaNumeri);
    const auto elimina_ = [this] {
        for (int n = 1; n <= 90; ++n) chkNumero_[static_cast<size_t>(n)]->setChecked(false);
        cursore_->ImpostaNumeriDaTrovare({});
        ListViewNumeri_->clear();
        AggiornaConsultazione();
    };
    connect(elimina, &QPushButton::clicked, this, elimina_);
    connect(eliminaNumeri, &QPushButton::clicked, this, elimina_);
    connect(ok, &QPushButton::clicked, this, [this] {
        std::array<bool, 91> scelti{};
        for (int n = 1; n <= 90; ++n) scelti[static_cast<size_t>(n)] = chkNumero_[static_cast<size_t>(n)]->isChecked();
        cursore_->ImpostaNumeriDaTrovare(scelti);
        fraRiepilogoNumeri_->setVisible(true);
        AggiornaConsultazione();
    });
    h->addWidget(fraTrovaNumeri_);
    h->addWidget(fraRiepilogoNumeri_);
    fraTrovaNumeri_->hide();
    fraRiepilogoNumeri_->hide();
    return w;
}

QWidget* FrmConsultaEstrazioni::CreaTrovaSomme(bool somme) {
    auto* w = new QWidget(this);
    auto* h = new QHBoxLayout(w);
    h->setContentsMargins(0, 0, 0, 0);
    const QString tipo = somme ? QStringLiteral("Somma") : QStringLiteral("Distanza");
    auto* fra = new QGroupBox(
        somme ? QStringLiteral("Trova le seguenti somme:") : QStringLiteral("Trova le seguenti distanze:"), w);
    auto* rie = new QGroupBox(
        somme ? QStringLiteral("Riepilogo somme rintracciate") : QStringLiteral("Riepilogo distanze rintracciate"), w);
    (somme ? fraTrovaSomme_ : fraTrovaDistanze_) = fra;
    (somme ? fraRiepilogoSomme_ : fraRiepilogoDistanze_) = rie;
    auto& obiettivi = somme ? txtSommaTot_ : txtDistanzaTot_;
    auto& totali = somme ? lblTotaleSomma_ : lblTotaleDistanza_;
    auto& riepilogo = somme ? txtRiepilogoSomma_ : txtRiepilogoDistanza_;
    auto* g = new QGridLayout(fra);
    auto* gr = new QGridLayout(rie);
    for (int i = 0; i < 6; ++i) {
        obiettivi[static_cast<size_t>(i)] =
            Casella(fra, QStringLiteral("txt%1Tot_%2").arg(tipo).arg(i + 1), QString(), 36);
        auto* modello =
            CasellaNumero(fra, QStringLiteral("txtModello%1_%2").arg(somme ? "" : "Distanza").arg(i + 1), 24);
        const auto colori = consultation::ColoriObiettivi[static_cast<size_t>(i)];
        MostraCasella(modello, QStringLiteral("00"), colori.sfondo, colori.testo);
        g->addWidget(obiettivi[static_cast<size_t>(i)], i / 3, (i % 3) * 2);
        g->addWidget(modello, i / 3, (i % 3) * 2 + 1);
        riepilogo[static_cast<size_t>(i)] = Etichetta(rie, QStringLiteral("txtRiepilogo%1_%2").arg(tipo).arg(i + 1));
        totali[static_cast<size_t>(i)] =
            Etichetta(rie, QStringLiteral("lblTotale%1_%2").arg(tipo).arg(i + 1), QStringLiteral("0"));
        gr->addWidget(riepilogo[static_cast<size_t>(i)], i, 0);
        gr->addWidget(totali[static_cast<size_t>(i)], i, 1);
    }
    int riga = 2;
    if (somme) {
        chkTrovaF90_ = Spunta(fra, "chkTrovaF90", QStringLiteral("Fuori 90"));
        connect(chkTrovaF90_, &QCheckBox::toggled, this, [this](bool on) { cursore_->SommeFuori90 = on; });
        g->addWidget(chkTrovaF90_, riga++, 0, 1, 3);
    }
    auto* ok = Pulsante(fra, somme ? "cmdOkSomme" : "cmdOkDistanze", QStringLiteral("Ok"));
    auto* elimina = Pulsante(fra, somme ? "cmdEliminaSomme" : "cmdEliminaDistanze", QStringLiteral("Elimina"));
    g->addWidget(ok, riga, 0, 1, 3);
    g->addWidget(elimina, riga, 3, 1, 3);
    auto* azzera = Pulsante(rie, somme ? "cmdAzzeraSomme" : "cmdAzzeraDistanze", QStringLiteral("Azzera"));
    gr->addWidget(azzera, 6, 0, 1, 2);
    connect(ok, &QPushButton::clicked, this, [this, somme] {
        consultation::Ricerca& r = somme ? cursore_->TrovaSomme : cursore_->TrovaDistanze;
        auto& caselle = somme ? txtSommaTot_ : txtDistanzaTot_;
        auto& riep = somme ? txtRiepilogoSomma_ : txtRiepilogoDistanza_;
        r = {};
        for (size_t i = 0; i < 6; ++i) {
            r.obiettivi[i] = caselle[i]->text().toInt();
            riep[i]->setText(r.obiettivi[i] > 0 ? QString::number(r.obiettivi[i]) : QString());
            if (r.obiettivi[i] > 0) r.attiva = true;
        }
        (somme ? fraRiepilogoSomme_ : fraRiepilogoDistanze_)->setVisible(true);
        AggiornaConsultazione();
    });
    connect(elimina, &QPushButton::clicked, this, [this, somme] {
        (somme ? cursore_->TrovaSomme : cursore_->TrovaDistanze) = {};
        for (QLineEdit* t : somme ? txtSommaTot_ : txtDistanzaTot_) t->clear();
        for (QLabel* l : somme ? txtRiepilogoSomma_ : txtRiepilogoDistanza_) l->clear();
        AggiornaConsultazione();
    });
    connect(azzera, &QPushButton::clicked, this, [this, somme] {
        (somme ? cursore_->TrovaSomme : cursore_->TrovaDistanze).totali.fill(0);
        MostraTotali();
    });
    h->addWidget(fra);
    h->addWidget(rie);
    fra->hide();
    rie->hide();
    return w;
}

bool FrmConsultaEstrazioni::LeggiValore(QLineEdit* t, int minimo, int massimo, const char* messaggio, int& valore) {
    bool ok = false;
    valore = t->text().toInt(&ok);
    if (!ok || valore < minimo || valore > massimo) {
        MostraMessaggio(this, {messaggio, "Errore", archives::Icona::Esclamazione});
        return false;
    }
    return true;
}

void FrmConsultaEstrazioni::Muovi(void (Consultazione::*mossa)()) {
    ((*cursore_).*mossa)();
    AggiornaConsultazione();
}

void FrmConsultaEstrazioni::keyPressEvent(QKeyEvent* e) {
    switch (e->key()) {
        case Qt::Key_Left:
        case Qt::Key_Up: Muovi(&Consultazione::Precedente); break;
        case Qt::Key_Right:
        case Qt::Key_Down: Muovi(&Consultazione::Successiva); break;
        case Qt::Key_PageUp: Muovi(&Consultazione::IndietroVeloce); break;
        case Qt::Key_PageDown: Muovi(&Consultazione::AvantiVeloce); break;
        case Qt::Key_Home:
            cursore_->VaiA(1);
            AggiornaConsultazione();
            break;
        case Qt::Key_End:
            cursore_->VaiA(cursore_->NumeroEstrazioni());
            AggiornaConsultazione();
            break;
        default: QWidget::keyPressEvent(e);
    }
}

void FrmConsultaEstrazioni::showEvent(QShowEvent* e) {
    QWidget::showEvent(e);
    // The arrows scroll the archive from the start, not the date of the picker.
    setFocus(Qt::OtherFocusReason);
}

void FrmConsultaEstrazioni::ScegliRuota(int ruota) {
    const bool daTutte = cursore_->RuotaCorrente == 0;
    cursore_->RuotaCorrente = ruota;
    for (int r = 0; r <= archives::NumeroRuote; ++r) cmdRuota_[static_cast<size_t>(r)]->setChecked(r == ruota);
    for (int r = 0; r < 11; ++r) lblNomeRuota_[static_cast<size_t>(r)]->setVisible(ruota == 0);
    for (int r = 0; r < 10; ++r) lblData_[static_cast<size_t>(r)]->setVisible(ruota != 0);
    for (int k = 50; k < 55; ++k) txtEstratto_[static_cast<size_t>(k)]->setVisible(ruota == 0);
    if (daTutte && ruota != 0 && analisi_) analisi_->close();
    AbilitaPerVistaERuota();
    AggiornaConsultazione();
}

void FrmConsultaEstrazioni::AbilitaPerVistaERuota() {
    const bool normale = cursore_->TipoVisualizzazione == Vista::Normale;
    const bool tutte = cursore_->RuotaCorrente == 0;
    for (auto& [codice, b] : famiglie_) b->setEnabled(normale && (tutte || !consultation::SoloTutteLeRuote(codice)));
    txtRitardo_->setEnabled(tutte && normale);
    const auto cifre = consultation::CifreAmmesse(cursore_->Analisi.famiglia);
    for (int c = 0; c < 10; ++c)
        cmdNumero_[static_cast<size_t>(c)]->setEnabled(normale &&
                                                       std::find(cifre.begin(), cifre.end(), c) != cifre.end());
    fraPeriodo_->setEnabled(cursore_->TipoVisualizzazione == Vista::Frequenze);
    for (QGroupBox* f : {fraTrovaNumeri_, fraTrovaSomme_, fraTrovaDistanze_}) f->setEnabled(normale);
}

void FrmConsultaEstrazioni::ScegliVista(int vista) {
    const char* testi[] = {"Numeri estratti", "Ritardi alla sortita", "Frequenze nel periodo"};
    lblVisualizzazione_->setText(QString::fromUtf8(testi[vista]));
    for (int i = 0; i < 3; ++i) {
        QFont f = optTipoVis_[static_cast<size_t>(i)]->font();
        f.setBold(i == vista);
        optTipoVis_[static_cast<size_t>(i)]->setFont(f);
    }
    optTipoVis_[static_cast<size_t>(vista)]->setChecked(true);
    cursore_->ImpostaVista(static_cast<Vista>(vista));
    AbilitaPerVistaERuota();
    AggiornaConsultazione();
}

void FrmConsultaEstrazioni::CambiaPeriodo() {
    for (int i = 0; i < 4; ++i)
        if (optPeriodo_[static_cast<size_t>(i)]->isChecked())
            cursore_->Periodo = static_cast<consultation::TipoPeriodo>(i);
    cursore_->UltimeEstrazioni = txtNumeroEstrazioni_->text().toInt();
    cursore_->Cicli = txtCicli_->text().toInt();
    cursore_->NonConsiderareAttuale = chkConsideraAttuale_->isChecked();
    if (cursore_->TipoVisualizzazione == Vista::Frequenze) AggiornaConsultazione();
}

void FrmConsultaEstrazioni::ScegliFamiglia(int codice) {
    cursore_->Analisi.famiglia = codice;
    cursore_->Analisi.cifra = -1;
    lblDescrFamiglia_->setText(QString::fromStdString(consultation::DescrizioneFamiglia(codice, cursore_->Analisi)));
    const bool attesa = consultation::FamigliaConCifra(codice);
    MostraCasella(lblNFamiglia_, QString(), attesa ? consultation::SfondoAttesaCifra : consultation::SfondoNormale,
                  consultation::TestoNormale);
    AbilitaPerVistaERuota();
    AggiornaConsultazione();
}

void FrmConsultaEstrazioni::ScegliCifra(int cifra) {
    cursore_->Analisi.cifra = cifra;
    MostraCasella(lblNFamiglia_, QString::number(cifra), consultation::SfondoNormale, consultation::TestoNormale);
    AggiornaConsultazione();
}

void FrmConsultaEstrazioni::Annulla() {
    cursore_->Analisi.famiglia = consultation::NessunaFamiglia;
    cursore_->Analisi.cifra = -1;
    lblDescrFamiglia_->setText(QStringLiteral("Nessuna selezione"));
    MostraCasella(lblNFamiglia_, QString(), consultation::SfondoNormale, consultation::TestoNormale);
    if (analisi_) analisi_->Mostra({});
    if (analisi_) analisi_->close();
    AbilitaPerVistaERuota();
    AggiornaConsultazione();
}

void FrmConsultaEstrazioni::ConfermaData(QDateEdit* picker) {
    const archives::RisultatoData r = cursore_->VaiAData(picker->date().toString("dd/MM/yyyy").toStdString());
    if (r.ErroreData) {
        MostraMessaggio(this, r.messaggio);
        return;
    }
    AggiornaConsultazione();
}

void FrmConsultaEstrazioni::AggiornaConsultazione() {
    if (InAggiornamento) return;
    InAggiornamento = true;
    const consultation::Griglia& g = cursore_->Aggiorna();
    lblindiceMese_->setText(QString::fromStdString(g.indiceMese));
    const bool tutte = cursore_->RuotaCorrente == 0;
    for (size_t k = 0; k < txtEstratto_.size(); ++k) {
        const consultation::Cella& c = g.celle[k];
        MostraCasella(txtEstratto_[k], QString::fromStdString(c.testo), c.sfondo, c.colore);
        const QString tip = tutte ? QString::fromStdString(c.suggerimento) : QString();
        if (txtEstratto_[k]->toolTip() != tip) txtEstratto_[k]->setToolTip(tip);
    }
    for (size_t r = 0; r < 10; ++r) lblData_[r]->setText(QString::fromStdString(g.righeDate[r]));
    const QDate data = DataQt(g.data);
    DTPicker1_->setDate(data);
    DTPicker2_->setDate(data);
    lblNumeroAnnoEstraz_->setText(QString::fromStdString(g.numeroAnno));
    lblAnnoEstrazione_->setText(QString::fromStdString(g.anno));
    Slider1_->setValue(g.indice);
    lblGiornoEstraz_->setText(QString::fromStdString(g.giorno));
    lblTotaleEstrazioni_->setText(QString::fromStdString(g.totale));
    lblSorMedia_->setText(cursore_->TipoVisualizzazione == Vista::Frequenze ? QString::fromStdString(g.sortitaMedia)
                                                                            : QString());
    InAggiornamento = false;

    if (g.mostraAnalisi) {
        if (!analisi_) analisi_ = new FrmAnalisi(sessione_, this);
        analisi_->Mostra(g.report);
    }
    if (sommeDistanze_) sommeDistanze_->Aggiorna(cursore_->EstrazioneCorrente());
    MostraTotali();
}

void FrmConsultaEstrazioni::MostraTotali() {
    if (cursore_->TrovaNumeri) {
        ListViewNumeri_->clear();
        for (int n = 1; n <= 90; ++n) {
            if (!cursore_->NumeriDaTrovare[static_cast<size_t>(n)]) continue;
            auto* i = new QTreeWidgetItem(ListViewNumeri_);
            i->setText(0, QString::fromStdString(config::AllineaDestra(std::to_string(n), 3)));
            i->setText(1, QString::fromStdString(
                              config::AllineaDestra(std::to_string(cursore_->ContaNumeri[static_cast<size_t>(n)]), 4)));
        }
    }
    for (size_t i = 0; i < 6; ++i) {
        lblTotaleSomma_[i]->setText(QString::number(cursore_->TrovaSomme.totali[i]));
        lblTotaleDistanza_[i]->setText(QString::number(cursore_->TrovaDistanze.totali[i]));
    }
}

void FrmConsultaEstrazioni::ApriSommeDistanze() {
    if (!sommeDistanze_) {
        sommeDistanze_ = new FrmSommeDistanze(sessione_, this);
        sommeDistanze_->setAttribute(Qt::WA_DeleteOnClose);
    }
    sommeDistanze_->Aggiorna(cursore_->EstrazioneCorrente());
    sommeDistanze_->show();
    sommeDistanze_->raise();
}

void FrmConsultaEstrazioni::Ridimensiona() {
    compatta_ = !compatta_;
    fraDestra_->setVisible(!compatta_);
    fraComandi_->setVisible(!compatta_);
    fraComandiSmall_->setVisible(compatta_);
    if (auto* b = findChild<QPushButton*>("cmdResize"))
        b->setText(compatta_ ? QStringLiteral("Allarga") : QStringLiteral("Riduci"));
    adjustSize();
}

std::vector<config::RigaTesto> FrmConsultaEstrazioni::RigheStampa() const {
    const consultation::Griglia& g = cursore_->griglia();
    const bool tutte = cursore_->RuotaCorrente == 0;
    std::vector<config::RigaTesto> righe;
    righe.push_back({tutte ? fmt::format("Estrazione n. {} del {}", g.numeroAnno, g.data)
                           : consultation::NomeRuota(cursore_->RuotaCorrente) + " Estrazioni",
                     true});
    righe.push_back({lblVisualizzazione_->text().toStdString() +
                     (cursore_->Analisi.famiglia != 0 && cursore_->TipoVisualizzazione == Vista::Normale &&
                              (tutte || !consultation::SoloTutteLeRuote(cursore_->Analisi.famiglia))
                          ? " - " + lblDescrFamiglia_->text().toStdString()
                          : std::string())});
    righe.push_back({});
    for (int r = 0; r < (tutte ? 11 : 10); ++r) {
        std::string riga =
            config::AllineaSinistra(tutte ? consultation::NomeRuota(r + 1) : g.righeDate[static_cast<size_t>(r)], 12);
        for (int p = 0; p < 5; ++p) {
            const consultation::Cella& c = g.celle[static_cast<size_t>(r * 5 + p)];
            const std::string t = config::AllineaDestra(c.testo, 3);
            riga += c.colorata ? "[" + t + "]" : " " + t + " ";
        }
        righe.push_back({riga});
    }
    return righe;
}

void FrmConsultaEstrazioni::Stampa() {
    OpzioniStampa o;
    o.punti = 12;
    o.titolo1 = QStringLiteral("Gorgo - Consulta estrazioni");
    StampaReport(this, RigheStampa(), o);
}

void FrmConsultaEstrazioni::closeEvent(QCloseEvent* e) {
    SalvaPosizione(this, sessione_.ini, "ConsultaLeft", "ConsultaTop");
    config::ScriviImpostazione(sessione_.ini, config::sezioni::Options, "Riepilogo",
                               mnuVisualizzaRiepilogo_->isChecked() ? config::TestoVero : config::TestoFalso);
    if (analisi_) analisi_->close();
    if (sommeDistanze_) sommeDistanze_->close();
    e->accept();
}

}  // namespace gorgo::screens
