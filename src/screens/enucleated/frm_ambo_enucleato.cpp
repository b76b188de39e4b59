#include "screens/enucleated/frm_ambo_enucleato.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "archives/archivio.h"
#include "archives/record.h"
#include "archives/regole.h"
#include "config/impostazioni.h"
#include "screens/common/aiuto.h"
#include "screens/common/caselle.h"
#include "screens/common/elaborazioni.h"
#include "screens/common/liste.h"
#include "screens/common/messaggi.h"
#include "screens/common/stampa.h"
#include "screens/common/stile.h"
#include "screens/common/twips.h"
#include "screens/enucleated/comune.h"
#include "screens/enucleated/frm_statistica_ambi_matematici.h"
#include "screens/enucleated/frm_statistica_generale.h"

namespace gorgo::screens {

using namespace enucleato;
using namespace gorgo::enucleated;

FrmAmboEnucleato::FrmAmboEnucleato(Sessione& sessione, const archives::Archivio& archivio, QWidget* parent)
    : QWidget(parent, Qt::Window), sessione_(sessione), storia_(archivio.Storia()) {
    setObjectName("frmAmboEnucleato");
    setWindowTitle(QStringLiteral("   Ambo enucleato - Ideato da Sergio Tordelli"));
    setAttribute(Qt::WA_DeleteOnClose);
    caricamento_ = true;
    CreaControlli();
    ApplicaStile(this, sessione_.ini);
    RipristinaPosizione(this, sessione_.ini, "AmboEnucleatoLeft", "AmboEnucleatoTop");
    DTPickerEstrazione_->setDate(DTPickerA_->date());
    caricamento_ = false;
    Sposta(0);
}

FrmAmboEnucleato::~FrmAmboEnucleato() = default;

void FrmAmboEnucleato::CreaControlli() {
    const archives::StoriaLotto& s = *storia_;
    auto* principale = new QVBoxLayout(this);
    auto* alto = new QHBoxLayout;
    principale->addLayout(alto);

    // The matrix: a row of five labels for each wheel, headed by its short name.
    auto* matrice = new QGroupBox(this);
    auto* gm = new QGridLayout(matrice);
    for (int w = 1; w <= archives::NumeroRuote; ++w) {
        auto* sigla = new QLabel(Q(archives::SigleRuota[static_cast<size_t>(w)]), matrice);
        sigla->setObjectName(QStringLiteral("lblSiglaRuota_%1").arg(w));
        gm->addWidget(sigla, w - 1, 0);
        for (int p = 1; p <= 5; ++p) {
            const int i = (w - 1) * 5 + p;
            auto* l = new QLabel(matrice);
            l->setObjectName(QStringLiteral("lblNumero_%1").arg(i));
            l->setAlignment(Qt::AlignCenter);
            l->setMinimumWidth(30);
            l->setAutoFillBackground(true);
            QFont f(QStringLiteral("Courier New"));
            f.setBold(true);
            l->setFont(f);
            lblNumero_[static_cast<size_t>(i)] = l;
            gm->addWidget(l, w - 1, p);
        }
    }
    DTPickerEstrazione_ = new QDateEdit(matrice);
    DTPickerEstrazione_->setObjectName("DTPickerEstrazione");
    auto* cmdPrecedente = new QPushButton(QStringLiteral("-1 Estrazione"), matrice);
    cmdPrecedente->setObjectName("cmdPrecedente");
    auto* cmdSuccessiva = new QPushButton(QStringLiteral("+1 Estrazione"), matrice);
    cmdSuccessiva->setObjectName("cmdSuccessiva");
    auto* cmdUltima = new QPushButton(QStringLiteral("Ultima estrazione"), matrice);
    cmdUltima->setObjectName("cmdUltima");
    gm->addWidget(DTPickerEstrazione_, 11, 0, 1, 3);
    gm->addWidget(cmdUltima, 11, 3, 1, 3);
    gm->addWidget(cmdPrecedente, 12, 0, 1, 3);
    gm->addWidget(cmdSuccessiva, 12, 3, 1, 3);
    connect(cmdPrecedente, &QPushButton::clicked, this, [this] { Sposta(-1); });
    connect(cmdSuccessiva, &QPushButton::clicked, this, [this] { Sposta(1); });
    connect(cmdUltima, &QPushButton::clicked, this, [this] { Sposta(0); });
    alto->addWidget(matrice);

    auto* comandi = new QVBoxLayout;
    alto->addLayout(comandi, 1);
    auto* Frame3 = new QGroupBox(QStringLiteral("Ruota di ricerca"), this);
    Frame3->setObjectName("Frame3");
    auto* g3 = new QGridLayout(Frame3);
    QStringList nomi;
    for (int w = 1; w <= archives::NumeroRuote; ++w) nomi << QString::fromStdString(NomeRuota(w));
    CreaCaselle<QCheckBox>(Frame3, g3, {0, 0, 4}, "chkRuota", 1, nomi, std::span(chkRuota_).subspan(1, 11));
    const config::CaselleRuote caselle = config::CaricaRuote(
        config::LeggiImpostazione(sessione_.ini, config::sezioni::Settings, "Ruota", "YNNNNNNNNNN"));
    for (int w = 1; w <= archives::NumeroRuote; ++w) {
        chkRuota_[static_cast<size_t>(w)]->setChecked(caselle[static_cast<size_t>(w)]);
        connect(chkRuota_[static_cast<size_t>(w)], &QCheckBox::clicked, this, [this, w] { ClicRuota(w); });
    }
    comandi->addWidget(Frame3);

    auto* riga = new QHBoxLayout;
    cboTipoRicerca_ = new QComboBox(this);
    cboTipoRicerca_->setObjectName("cboTipoRicerca");
    cboTipoRicerca_->addItems({QStringLiteral("Analisi ambi"), QStringLiteral("Analisi terni")});
    chkMatematici_ = new QCheckBox(QStringLiteral("Verifica solo ambi matematici"), this);
    chkMatematici_->setObjectName("chkMatematici");
    riga->addWidget(cboTipoRicerca_);
    riga->addWidget(chkMatematici_);
    comandi->addLayout(riga);

    auto* Frame2 = new QGroupBox(QStringLiteral("Periodo di verifica"), this);
    Frame2->setObjectName("Frame2");
    auto* g2 = new QGridLayout(Frame2);
    const config::IndiciRicerca ir = config::LeggiIndiciRicerca(sessione_.ini, s.NumeroEstrazioni());
    DTPickerDa_ = new QDateEdit(DataQt(s.DataEstrazione(ir.IndiceInizio)), Frame2);
    DTPickerDa_->setObjectName("DTPickerDa");
    DTPickerA_ = new QDateEdit(DataQt(s.DataEstrazione(ir.IndiceFine)), Frame2);
    DTPickerA_->setObjectName("DTPickerA");
    for (QDateEdit* d : {DTPickerDa_, DTPickerA_, DTPickerEstrazione_}) {
        d->setDisplayFormat("dd/MM/yyyy");
        d->setCalendarPopup(true);
        d->setMinimumDate(QDate(1871, 1, 7));
    }
    DTPickerA_->setMaximumDate(DataQt(s.DataEstrazione(ir.IndiceFine)));
    g2->addWidget(new QLabel(QStringLiteral("Esegui verifica dal"), Frame2), 0, 0);
    g2->addWidget(DTPickerDa_, 0, 1);
    g2->addWidget(new QLabel(QStringLiteral("al"), Frame2), 0, 2);
    g2->addWidget(DTPickerA_, 0, 3);
    comandi->addWidget(Frame2);
    connect(DTPickerDa_, &QDateEdit::dateChanged, this, [this] {
        if (!caricamento_) PulisciStatistiche();
    });

    auto* cmdCalcola = new QPushButton(QStringLiteral("Calcola somme ritardi"), this);
    cmdCalcola->setObjectName("cmdCalcola");
    cmdCalcola->setMinimumHeight(32);
    connect(cmdCalcola, &QPushButton::clicked, this, &FrmAmboEnucleato::RicercaEnucleato);
    comandi->addWidget(cmdCalcola);
    auto* gs = new QGridLayout;
    for (int k = 0; k < 2; ++k) {
        auto* b = new QPushButton(QStringLiteral("Verifica statistica generale"), this);
        b->setObjectName(QStringLiteral("cmdStatistica_%1").arg(k));
        b->setToolTip(k == 0 ? QStringLiteral("Coppie") : QStringLiteral("Terzine"));
        connect(b, &QPushButton::clicked, this, [this, k] { ApriStatisticaGenerale(k); });
        gs->addWidget(b, 0, k);
    }
    auto* vedi = new QPushButton(QStringLiteral("Verifica statistica generale"), this);
    vedi->setObjectName("cdmVediFormStatistica");
    connect(vedi, &QPushButton::clicked, this, [this] { ApriStatisticaGenerale(-1); });
    gs->addWidget(vedi, 1, 0);
    auto* Command1 = new QPushButton(QStringLiteral("Statistica gruppo ambi matematici"), this);
    Command1->setObjectName("Command1");
    connect(Command1, &QPushButton::clicked, this, &FrmAmboEnucleato::ApriGruppo);
    gs->addWidget(Command1, 1, 1);
    comandi->addLayout(gs);
    comandi->addStretch();

    auto* fondo = new QHBoxLayout;
    auto* cmdPulisciLista = new QPushButton(QStringLiteral("Pulisci lista ------------------->"), this);
    cmdPulisciLista->setObjectName("cmdPulisciLista");
    connect(cmdPulisciLista, &QPushButton::clicked, this, [this] {
        lista_.Pulisci();
        MostraLista();
    });
    auto* cmdStampa = new QPushButton(QStringLiteral("Stampa"), this);
    cmdStampa->setObjectName("cmdStampa");
    connect(cmdStampa, &QPushButton::clicked, this, &FrmAmboEnucleato::Stampa);
    auto* cmdPrintToFile = new QPushButton(QStringLiteral("Salva su file"), this);
    cmdPrintToFile->setObjectName("cmdPrintToFile");
    connect(cmdPrintToFile, &QPushButton::clicked, this, &FrmAmboEnucleato::FileReport);
    auto* cmdAiuto = new QPushButton(QStringLiteral("Aiuto"), this);
    cmdAiuto->setObjectName("cmdAiuto");
    connect(cmdAiuto, &QPushButton::clicked, this,
            [this] { MostraAiuto(this, sessione_, QStringLiteral("[Ambo Enucleato]")); });
    fondo->addWidget(cmdPulisciLista);
    fondo->addStretch();
    fondo->addWidget(cmdStampa);
    fondo->addWidget(cmdPrintToFile);
    fondo->addWidget(cmdAiuto);
    principale->addLayout(fondo);

    ListView1_ =
        NuovaLista(this, "ListView1",
                   {QStringLiteral("Descrizione ambo "), QStringLiteral("Prog."), QStringLiteral("Data"),
                    QStringLiteral("Somma rit."), QStringLiteral("P"), QStringLiteral("R"), QStringLiteral("Note")});
    ListView1_->setColumnHidden(4, true);
    ListView1_->setColumnHidden(5, true);
    ListView1_->setColumnWidth(0, 150);
    ListView1_->setMinimumHeight(220);
    // The description and the date sort on the hidden run-order key.
    OrdinaColonnaSecondo(ListView1_, 0, 4);
    OrdinaColonnaSecondo(ListView1_, 2, 4);
    principale->addWidget(ListView1_, 1);

    connect(cboTipoRicerca_, &QComboBox::currentIndexChanged, this, [this](int i) {
        lista_.ImpostaTipo(i == 1 ? TipoAnalisi::Terni : TipoAnalisi::Ambi);
        ListView1_->headerItem()->setText(0, Q(lista_.TitoloDescrizione()));
        MostraLista();
    });
    connect(chkMatematici_, &QCheckBox::toggled, this, [this] { MostraEstrazioneEnucleato(); });
}

int FrmAmboEnucleato::RuotaScelta() const {
    for (int w = 1; w <= archives::NumeroRuote; ++w)
        if (chkRuota_[static_cast<size_t>(w)]->isChecked()) return w;
    return 0;
}

std::array<bool, 12> FrmAmboEnucleato::RuoteScelte() const {
    std::array<bool, 12> r{};
    for (int w = 1; w <= archives::NumeroRuote; ++w)
        r[static_cast<size_t>(w)] = chkRuota_[static_cast<size_t>(w)]->isChecked();
    return r;
}

bool FrmAmboEnucleato::SoloMatematici() const { return chkMatematici_->isChecked(); }
std::string FrmAmboEnucleato::DataDa() const { return Testo(DTPickerDa_->date()); }
std::string FrmAmboEnucleato::DataA() const { return Testo(DTPickerA_->date()); }

void FrmAmboEnucleato::MostraEstrazioneEnucleato() {
    const archives::RisultatoData r = archives::ControllaData(Testo(DTPickerEstrazione_->date()), *storia_, true);
    if (r.ErroreData) {
        MostraMessaggio(this, r.messaggio);
        return;
    }
    matrice_ = enucleated::MostraEstrazioneEnucleato(*storia_, r.IndiceTrovato, SoloMatematici());
    for (int w = 1; w <= archives::NumeroRuote; ++w)
        for (int p = 1; p <= 5; ++p) {
            QLabel* l = lblNumero_[static_cast<size_t>((w - 1) * 5 + p)];
            const bool ev = matrice_.evidenziato[static_cast<size_t>(w)][static_cast<size_t>(p - 1)];
            QPalette pal = l->palette();
            pal.setColor(QPalette::Window, ev ? QColor(0, 0, 128) : QColor(255, 255, 255));
            pal.setColor(QPalette::WindowText, ev ? QColor(255, 255, 255) : QColor(0, 0, 128));
            l->setPalette(pal);
            l->setText(QString::fromStdString(matrice_.Testo(w, p)));
        }
}

void FrmAmboEnucleato::Sposta(int verso) {
    const archives::StoriaLotto& s = *storia_;
    int32_t indice = s.NumeroEstrazioni();
    if (verso != 0) {
        const archives::RisultatoData r = archives::ControllaData(Testo(DTPickerEstrazione_->date()), s, true);
        if (r.ErroreData) {
            MostraMessaggio(this, r.messaggio);
            return;
        }
        if (verso < 0 && r.IndiceTrovato == 1) return;
        if (verso > 0 && r.IndiceTrovato == s.NumeroEstrazioni()) return;
        indice = r.IndiceTrovato + verso;
    }
    const QDate d = DataQt(s.DataEstrazione(indice));
    DTPickerEstrazione_->setDate(d);
    DTPickerA_->setDate(d);
    PulisciStatistiche();
    MostraEstrazioneEnucleato();
}

void FrmAmboEnucleato::ClicRuota(int w) {
    std::string lettere(11, 'N');
    lettere[static_cast<size_t>(w - 1)] = 'Y';
    for (int k = 1; k <= archives::NumeroRuote; ++k) chkRuota_[static_cast<size_t>(k)]->setChecked(k == w);
    config::ScriviImpostazione(sessione_.ini, config::sezioni::Settings, "Ruota", lettere);
    PulisciStatistiche();
}

void FrmAmboEnucleato::PulisciStatistiche() {
    statistiche_.PulisciStatistiche();
    emit statisticheCancellate();
}

void FrmAmboEnucleato::RicercaEnucleato() {
    if (elaborazione_) return;
    const EsitoPeriodo e = enucleated::ControllaPeriodo(*storia_, DataDa(), DataA());
    if (!e.valido()) {
        MostraMessaggio(this, e.errore);
        return;
    }
    caricamento_ = true;
    DTPickerDa_->setDate(DataQt(e.periodo.dataDa));
    DTPickerA_->setDate(DataQt(e.periodo.dataA));
    caricamento_ = false;
    lista_.Aggiungi(*storia_, matrice_, e.periodo.fine, e.periodo.dataA, RuoteScelte());
    MostraLista();
}

void FrmAmboEnucleato::MostraLista() {
    RiempiLista(ListView1_, [&] {
        for (const RigaEnucleato& r : lista_.righe())
            new RigaLista(ListView1_, {QString::fromStdString(r.descrizione), QString::fromStdString(r.prog),
                                       QString::fromStdString(r.data), QString::fromStdString(r.somma),
                                       QString::fromStdString(r.chiave), QString::fromStdString(r.ruota),
                                       QString::fromStdString(r.nota)});
    });
}

void FrmAmboEnucleato::Stampa() {
    if (lista_.vuota()) return;
    const config::ReportTesto r =
        ReportEnucleatoStampa(lista_, Testo(DTPickerEstrazione_->date()), RuoteScelte(), DataDa(), DataA());
    OpzioniStampa o;
    o.punti = 12;
    o.righePerPagina = 0;
    StampaReport(this, r.righe(), o);
}

void FrmAmboEnucleato::FileReport() {
    if (lista_.vuota()) return;
    const std::string data = Testo(DTPickerEstrazione_->date());
    SalvaReportSuFile(this, sessione_, RigheTesto(ReportEnucleatoFile(lista_, data, RuoteScelte())),
                      Q(NomeFileEnucleato(data)), DomandaFile::Sovrascrivi, QStringLiteral("File di testo (*.txt)"));
}

void FrmAmboEnucleato::Statistica(int tipo, bool perPresenze, int presenze, int quante,
                                  std::function<void(const EsitoStatistica*)> fine) {
    if (elaborazione_) return;
    const EsitoPeriodo ep = enucleated::ControllaPeriodo(*storia_, DataDa(), DataA());
    if (!ep.valido()) {
        MostraMessaggio(this, ep.errore);
        fine(nullptr);
        return;
    }
    caricamento_ = true;
    DTPickerDa_->setDate(DataQt(ep.periodo.dataDa));
    DTPickerA_->setDate(DataQt(ep.periodo.dataA));
    caricamento_ = false;
    ParametriStatistica p;
    p.ruota = std::max(1, RuotaScelta());
    p.tipo = tipo == 1 ? TipoAnalisi::Terni : TipoAnalisi::Ambi;
    p.soloMatematici = SoloMatematici();
    p.perPresenze = perPresenze;
    p.presenze = presenze;
    p.quante = quante;
    // A new set of tables; the old ones stand until it is whole.
    auto nuove = std::make_shared<StatisticheEnucleato>();
    auto esito = std::make_shared<EsitoStatistica>();
    elaborazione_ = true;
    const archives::StoriaCondivisa storia = storia_;
    const Periodo periodo = ep.periodo;
    Elaborazione::Avvia(
        this, sessione_, QStringLiteral("Statistica generale..."),
        [storia, periodo, p, nuove, esito](std::stop_token stop, const Progresso& progresso) {
            *esito = nuove->Calcola(*storia, periodo, p, Avanzamento{stop, progresso});
        },
        [this, nuove, esito, fine](bool fermato) {
            elaborazione_ = false;
            if (fermato || esito->interrotta) {
                fine(nullptr);
                return;
            }
            statistiche_ = std::move(*nuove);
            fine(esito.get());
        });
}

void FrmAmboEnucleato::ApriStatisticaGenerale(int tipo) {
    if (!statistica_) {
        statistica_ = new FrmStatisticaGenerale(*this);
        statistica_->show();
    } else {
        statistica_->showNormal();
        statistica_->raise();
        statistica_->activateWindow();
    }
    if (tipo >= 0) statistica_->Verifica(tipo);
}

void FrmAmboEnucleato::ApriGruppo() {
    if (!gruppo_) {
        gruppo_ = new FrmStatisticaAmbiMatematici(*this);
        gruppo_->show();
        return;
    }
    gruppo_->showNormal();
    gruppo_->raise();
    gruppo_->activateWindow();
}

void FrmAmboEnucleato::closeEvent(QCloseEvent* e) {
    if (elaborazione_) {
        e->ignore();
        return;
    }
    if (statistica_) statistica_->close();
    if (gruppo_) gruppo_->close();
    SalvaPosizione(this, sessione_.ini, "AmboEnucleatoLeft", "AmboEnucleatoTop");
    e->accept();
}

}  // namespace gorgo::screens
