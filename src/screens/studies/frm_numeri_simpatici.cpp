#include "screens/studies/frm_numeri_simpatici.h"

#include <QCloseEvent>
#include <QDate>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QShortcut>
#include <QTabWidget>
#include <QVBoxLayout>

#include "archives/regole.h"
#include "config/restrizioni.h"
#include "screens/common/aiuto.h"
#include "screens/common/caselle.h"
#include "screens/common/elaborazioni.h"
#include "screens/common/messaggi.h"
#include "screens/common/stile.h"
#include "screens/common/twips.h"
#include "screens/studies/liste_studi.h"

namespace gorgo::screens {

using namespace gorgo::studies;

namespace {

// A cell of the table of numbers that reports its clicks.
class Casella : public QLabel {
public:
    Casella(int numero, std::function<void(int)> click, QWidget* parent)
        : QLabel(QString::number(numero), parent), numero_(numero), click_(std::move(click)) {}

protected:
    void mousePressEvent(QMouseEvent*) override { click_(numero_); }

private:
    int numero_;
    std::function<void(int)> click_;
};

const QStringList ColonneAmbo = {"Ambo",  "Abbinam.", "Ritardo",        "Rit.Max",
                                 "Freq.", "I.C.",     "Ruota migliore", "Rit. simul."};

}  // namespace

FrmNumeriSimpatici::FrmNumeriSimpatici(Sessione& sessione, const archives::Archivio& archivio, QWidget* parent)
    : QWidget(parent, Qt::Window), sessione_(sessione), archivio_(archivio), storia_(archivio.Storia()) {
    setObjectName("frmNumeriSimpatici");
    setWindowTitle(QStringLiteral("Ricerca simultanea per il gioco della quaterna"));
    setAttribute(Qt::WA_DeleteOnClose);
    CreaControlli();
    ApplicaStile(this, sessione_.ini);
    RipristinaPosizione(this, sessione_.ini, "SimpaticiLeft", "SimpaticiTop");
}

void FrmNumeriSimpatici::CreaControlli() {
    auto* principale = new QHBoxLayout(this);
    auto* sinistra = new QVBoxLayout;
    auto* fraTabella = new QGroupBox(this);
    auto* gt = new QGridLayout(fraTabella);
    gt->setSpacing(1);
    for (int n = 1; n <= 90; ++n) {
        auto* c = new Casella(
            n, [this](int k) { Seleziona(k); }, fraTabella);
        c->setObjectName(QStringLiteral("lblTabella_%1").arg(n));
        c->setToolTip(QStringLiteral("Fare click per selezionare/deselezionare un numero"));
        c->setAlignment(Qt::AlignCenter);
        c->setFrameShape(QFrame::Box);
        c->setMinimumSize(26, 22);
        gt->addWidget(c, (n - 1) / 10, (n - 1) % 10);
        lblTabella_[static_cast<size_t>(n)] = c;
    }
    sinistra->addWidget(fraTabella);
    auto* riga = new QHBoxLayout;
    auto* cmdCancella = new QPushButton(QStringLiteral("Cancella"), this);
    cmdCancella->setObjectName("cmdCancella");
    cmdCancella->setToolTip(QStringLiteral("Azzera la tabella dei numeri inseriti"));
    lblContatore_ = new QLabel(QStringLiteral("0"), this);
    lblContatore_->setObjectName("lblContatore");
    riga->addWidget(cmdCancella);
    riga->addWidget(lblContatore_);
    sinistra->addLayout(riga);
    connect(cmdCancella, &QPushButton::clicked, this, [this] {
        scelti_.fill(false);
        for (int n = 1; n <= 90; ++n) lblTabella_[static_cast<size_t>(n)]->setStyleSheet({});
        lblContatore_->setText(QStringLiteral("0"));
    });

    auto* fraRuote = new QGroupBox(QStringLiteral("Ruote"), this);
    auto* gr = new QGridLayout(fraRuote);
    QStringList nomi;
    for (int w = 1; w <= archives::NumeroRuote; ++w) nomi << Q(NomeRuota(w));
    nomi << QStringLiteral("Tutte");
    CreaCaselle<QCheckBox>(fraRuote, gr, {0, 0, 3}, "chkRuota", 1, nomi, std::span(chkRuota_).subspan(1));
    for (int w = 1; w <= 12; ++w)
        connect(chkRuota_[static_cast<size_t>(w)], &QCheckBox::clicked, this, [this, w] { AggiornaRuote(w); });
    lblRuote_ = new QLabel(fraRuote);
    lblRuote_->setObjectName("lblRuote");
    gr->addWidget(lblRuote_, 4, 0, 1, 3);
    sinistra->addWidget(fraRuote);
    chkRuota_[12]->setChecked(true);
    AggiornaRuote(12);

    auto* fraDate = new QGroupBox(this);
    auto* gd = new QGridLayout(fraDate);
    DTPickerDa_ = CreaDataEstrazione(fraDate, "DTPickerDa");
    DTPickerA_ = CreaDataEstrazione(fraDate, "DTPickerA");
    DTPickerDa_->setDate(QDate(1946, 1, 1));
    DTPickerA_->setDate(DataQt(storia_->DataEstrazione(storia_->NumeroEstrazioni())));
    gd->addWidget(new QLabel(QStringLiteral("Dal"), fraDate), 0, 0);
    gd->addWidget(DTPickerDa_, 0, 1);
    gd->addWidget(new QLabel(QStringLiteral("al"), fraDate), 1, 0);
    gd->addWidget(DTPickerA_, 1, 1);
    sinistra->addWidget(fraDate);
    auto* cmdCalcola = new QPushButton(QStringLiteral("Ricerca"), this);
    cmdCalcola->setObjectName("cmdCalcola");
    auto* cmdTutti = new QPushButton(QStringLiteral("Statistica generale dei 4005 ambi"), this);
    cmdTutti->setObjectName("cmdTutti");
    connect(cmdCalcola, &QPushButton::clicked, this, &FrmNumeriSimpatici::Calcola);
    connect(cmdTutti, &QPushButton::clicked, this, &FrmNumeriSimpatici::Tutti);
    sinistra->addWidget(cmdCalcola);
    sinistra->addWidget(cmdTutti);
    lblAnalizzate_ = new QLabel(this);
    lblAnalizzate_->setObjectName("lblAnalizzate");
    lblRestrizioni_ = new QLabel(this);
    lblRestrizioni_->setObjectName("lblRestrizioni");
    lblRestrizioni_->setWordWrap(true);
    sinistra->addWidget(lblAnalizzate_);
    sinistra->addWidget(lblRestrizioni_);
    sinistra->addStretch();
    principale->addLayout(sinistra);

    auto* destra = new QVBoxLayout;
    QStringList testa1 = ColonneAmbo.mid(0, 7);
    testa1[0] = QStringLiteral("Ambo ricercato");
    testa1[1] = QStringLiteral("Sortite");
    ListView1_ = CreaListaStudi(this, "ListView1", testa1, true);
    ListView1_->setMaximumHeight(70);
    ListView2_ = CreaListaStudi(this, "ListView2", ColonneAmbo, true);
    QStringList testaTutti = ColonneAmbo;
    testaTutti[0] = QStringLiteral("Ambi abbinati");
    testaTutti.prepend(QStringLiteral("Ambo ricercato"));
    ListViewTutti_ = CreaListaStudi(this, "ListViewTutti", testaTutti, true);
    auto* schede = new QTabWidget(this);
    auto* pagina = new QWidget(schede);
    auto* vp = new QVBoxLayout(pagina);
    vp->addWidget(ListView1_);
    vp->addWidget(ListView2_);
    schede->addTab(pagina, QStringLiteral("Ambo"));
    schede->addTab(ListViewTutti_, QStringLiteral("Statistica generale"));
    schede->setObjectName("tabListe");
    destra->addWidget(schede);
    ProgressBar1_ = new QProgressBar(this);
    ProgressBar1_->setObjectName("ProgressBar1");
    destra->addWidget(ProgressBar1_);
    // Esc stops the 4005 ambi, keeping the rows of the ambi already done.
    auto* esc = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    esc->setContext(Qt::ApplicationShortcut);
    connect(esc, &QShortcut::activated, this, [this] {
        if (elaborazione_) elaborazione_->Ferma();
    });
    auto* pulsanti = new QHBoxLayout;
    const auto pulsante = [&](const char* nome, const QString& testo, int lista, bool stampa) {
        auto* b = new QPushButton(testo, this);
        b->setObjectName(nome);
        connect(b, &QPushButton::clicked, this, [this, lista, stampa] { Report(lista, stampa); });
        pulsanti->addWidget(b);
    };
    pulsante("cmdStampa", QStringLiteral("Stampa"), 0, true);
    pulsante("cmdPrintToFile", QStringLiteral("Su file"), 0, false);
    pulsante("cmdStampaListaSpiati", QStringLiteral("Stampa ambo"), 1, true);
    pulsante("cmdStampaListaRicercati", QStringLiteral("Stampa abbinati"), 2, true);
    pulsante("cmdStampaTutti", QStringLiteral("Stampa statistica"), 3, true);
    pulsante("cmdPrintToFileTutti", QStringLiteral("Statistica su file"), 3, false);
    auto* cmdAiuto = new QPushButton(QStringLiteral("Aiuto"), this);
    cmdAiuto->setObjectName("cmdAiuto");
    connect(cmdAiuto, &QPushButton::clicked, this, [this] {
        MostraAiuto(this, sessione_, QStringLiteral("[Ricerca simultanea per il gioco della quaterna]"));
    });
    pulsanti->addWidget(cmdAiuto);
    destra->addLayout(pulsanti);
    principale->addLayout(destra, 1);
}

void FrmNumeriSimpatici::AggiornaRuote(int indice) {
    // "Tutte" stands for wheels 1 to 10; a single wheel clears it.
    if (indice == 12 && chkRuota_[12]->isChecked())
        for (int w = 1; w <= 10; ++w) chkRuota_[static_cast<size_t>(w)]->setChecked(false);
    if (indice <= 10 && chkRuota_[static_cast<size_t>(indice)]->isChecked()) chkRuota_[12]->setChecked(false);
    std::array<bool, 12> r{};
    for (int w = 1; w <= 11; ++w)
        r[static_cast<size_t>(w)] =
            chkRuota_[static_cast<size_t>(w)]->isChecked() || (w <= 10 && chkRuota_[12]->isChecked());
    lblRuote_->setText(Q(TestoRuote(r)));
}

void FrmNumeriSimpatici::Seleziona(int n) {
    int quanti = 0;
    for (bool b : scelti_) quanti += b;
    if (scelti_[static_cast<size_t>(n)]) {
        scelti_[static_cast<size_t>(n)] = false;
        lblTabella_[static_cast<size_t>(n)]->setStyleSheet({});
        --quanti;
    } else if (quanti < 2) {
        scelti_[static_cast<size_t>(n)] = true;
        lblTabella_[static_cast<size_t>(n)]->setStyleSheet("background: red; color: white; font-weight: bold;");
        ++quanti;
    }
    lblContatore_->setText(QString::number(quanti));
}

bool FrmNumeriSimpatici::Parametri(ParametriSimultanea& p, bool conCoppia) {
    storia_ = archivio_.Storia();
    int k = 0;
    for (int n = 1; n <= 90; ++n)
        if (scelti_[static_cast<size_t>(n)] && k < 2) p.Coppia[static_cast<size_t>(k++)] = n;
    if (conCoppia && k < 2) {
        MostraMessaggio(this, {std::string(MessaggioDueNumeri), "", archives::Icona::Esclamazione});
        return false;
    }
    for (auto [picker, indice] : {std::pair{DTPickerDa_, &p.Dal}, std::pair{DTPickerA_, &p.Al}}) {
        const archives::RisultatoData r = archives::ControllaData(TestoData(picker), *storia_, false);
        if (r.ErroreData) {
            MostraMessaggio(this, r.messaggio);
            return false;
        }
        *indice = r.IndiceTrovato;
    }
    for (int w = 1; w <= 11; ++w)
        p.RuoteScelte[static_cast<size_t>(w)] =
            chkRuota_[static_cast<size_t>(w)]->isChecked() || (w <= 10 && chkRuota_[12]->isChecked());
    p.restrizioni = config::LeggiRestrizioni(sessione_.ini);
    if (archives::Messaggio m = ControllaSimultanea(p, conCoppia); !m.vuoto()) {
        MostraMessaggio(this, m);
        return false;
    }
    return true;
}

void FrmNumeriSimpatici::Calcola() {
    ParametriSimultanea p;
    if (!Parametri(p, true)) return;
    esito_ = RicercaSimultanea(*storia_, p);
    parametri_ = p;
    RiempiListaStudi(ListView1_, esito_.righeCoppia);
    RiempiListaStudi(ListView2_, esito_.righe);
    lblAnalizzate_->setText(Q(esito_.analizzate));
    lblRestrizioni_->setText(Q(config::TestoRestrizioni(sessione_.ini, false, true)));
}

void FrmNumeriSimpatici::Tutti() {
    ParametriSimultanea p;
    if (!Parametri(p, false)) return;
    ListViewTutti_->clear();
    ProgressBar1_->setRange(0, 4005);
    auto esito = std::make_shared<EsitoGenerale>();
    const auto storia = storia_;
    elaborazione_ = Elaborazione::Avvia(
        this, sessione_, QStringLiteral("Statistica generale dei 4005 ambi..."),
        [storia, p, esito](std::stop_token stop, const Progresso& progresso) {
            *esito = StatisticaGenerale(*storia, p, {stop, progresso});
        },
        [this, esito, p](bool) {
            // A stopped run keeps the rows of the ambi it finished, as Esc does.
            esitoTutti_ = *esito;
            parametriTutti_ = p;
            ProgressBar1_->setValue(4005);
            lblAnalizzate_->setText(Q(esito->analizzati));
            RiempiListaStudi(ListViewTutti_, esito->righe);
            emit statisticaTerminata();
        });
}

void FrmNumeriSimpatici::Report(int lista, bool stampa) {
    config::ReportTesto r;
    bool vuoto = false;
    OpzioniStampa o;
    o.titolo1 = QStringLiteral("Ricerca simultanea per il gioco della quaterna");
    if (lista == 3) {
        r = ReportGenerale(*storia_, parametriTutti_, esitoTutti_);
        vuoto = esitoTutti_.righe.empty();
        o.punti = 8;
    } else {
        r = ReportSimultanea(*storia_, parametri_, esito_, lista != 2, lista != 1);
        vuoto = esito_.righeCoppia.empty();
    }
    if (stampa)
        StampaStudio(this, r, vuoto, o);
    else
        SalvaStudio(this, sessione_, r, vuoto,
                    QStringLiteral("Ricerca_simultanea_") + QDate::currentDate().toString("dd-MM-yyyy"),
                    DomandaFile::InCalce, Q(config::FiltroFileTesto), config::NullaDaStampare);
}

void FrmNumeriSimpatici::closeEvent(QCloseEvent* e) {
    if (sessione_.ElaborazioneInCorso) {
        e->ignore();
        return;
    }
    SalvaPosizione(this, sessione_.ini, "SimpaticiLeft", "SimpaticiTop");
    QWidget::closeEvent(e);
}

}  // namespace gorgo::screens
