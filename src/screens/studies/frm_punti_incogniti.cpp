#include "screens/studies/frm_punti_incogniti.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

#include "config/impostazioni.h"
#include "config/ini.h"
#include "screens/common/aiuto.h"
#include "screens/common/caselle.h"
#include "screens/common/elaborazioni.h"
#include "screens/common/messaggi.h"
#include "screens/common/stile.h"
#include "screens/common/twips.h"
#include "screens/studies/liste_studi.h"

namespace gorgo::screens {

using namespace gorgo::studies;

FrmPuntiIncogniti::FrmPuntiIncogniti(Sessione& sessione, const archives::Archivio& archivio, QWidget* parent)
    : QWidget(parent, Qt::Window), sessione_(sessione), archivio_(archivio), storia_(archivio.Storia()) {
    setObjectName("frmPuntiIncogniti");
    setWindowTitle(QStringLiteral("I punti incogniti"));
    setAttribute(Qt::WA_DeleteOnClose);
    CreaControlli();
    ApplicaStile(this, sessione_.ini);
    RipristinaPosizione(this, sessione_.ini, "PuntiIncognitiLeft", "PuntiIncognitiTop");
    const auto caselle = config::CaricaRuote(
        config::LeggiImpostazione(sessione_.ini, config::sezioni::Settings, "Ruota", "YNNNNNNNNNN"));
    for (int w = 1; w <= archives::NumeroRuote; ++w)
        if (caselle[static_cast<size_t>(w)]) ruota_ = w;
    for (int w = 1; w <= archives::NumeroRuote; ++w) chkRuota_[static_cast<size_t>(w)]->setChecked(w == ruota_);
    const int32_t n = storia_->NumeroEstrazioni();
    DTPickerDa_->setDate(DataQt(storia_->DataEstrazione(std::min(PrimaEstrazioneVerifica, n))));
    MostraEstrazione(n);
}

void FrmPuntiIncogniti::CreaControlli() {
    auto* principale = new QVBoxLayout(this);
    auto* fraRuote = new QGroupBox(QStringLiteral("Ruota"), this);
    auto* gr = new QGridLayout(fraRuote);
    QStringList nomi;
    for (int w = 1; w <= archives::NumeroRuote; ++w) nomi << Q(NomeRuota(w));
    CreaCaselle<QCheckBox>(fraRuote, gr, {}, "chkRuota", 1, nomi, std::span(chkRuota_).subspan(1));
    for (int w = 1; w <= archives::NumeroRuote; ++w)
        connect(chkRuota_[static_cast<size_t>(w)], &QCheckBox::clicked, this, [this, w] { ScegliRuota(w); });
    principale->addWidget(fraRuote);

    auto* riga = new QHBoxLayout;
    DTPickerA_ = CreaDataEstrazione(this, "DTPickerA");
    auto* cmdOkData = new QPushButton(QStringLiteral("Ok"), this);
    cmdOkData->setObjectName("cmdOkData");
    auto* cmdDataPrec = new QPushButton(QStringLiteral("<<"), this);
    cmdDataPrec->setObjectName("cmdDataPrec");
    auto* cmdDataSucc = new QPushButton(QStringLiteral(">>"), this);
    cmdDataSucc->setObjectName("cmdDataSucc");
    auto* cmdUltima = new QPushButton(QStringLiteral("+1 Estrazione"), this);
    cmdUltima->setObjectName("cmdUltima");
    for (QWidget* w : std::initializer_list<QWidget*>{new QLabel(QStringLiteral("Estrazione del"), this), DTPickerA_,
                                                      cmdOkData, cmdDataPrec, cmdDataSucc, cmdUltima})
        riga->addWidget(w);
    riga->addStretch();
    principale->addLayout(riga);
    connect(cmdOkData, &QPushButton::clicked, this, &FrmPuntiIncogniti::OkData);
    connect(cmdDataPrec, &QPushButton::clicked, this, [this] {
        ListViewNumeri_->clear();
        MostraEstrazione(indice_ > 1 ? indice_ - 1 : indice_);
    });
    connect(cmdDataSucc, &QPushButton::clicked, this, [this] {
        ListViewNumeri_->clear();
        MostraEstrazione(indice_ < storia_->NumeroEstrazioni() ? indice_ + 1 : indice_);
    });
    connect(cmdUltima, &QPushButton::clicked, this, [this] { MostraEstrazione(storia_->NumeroEstrazioni()); });

    auto* fraSerie = new QGroupBox(this);
    auto* gs = new QGridLayout(fraSerie);
    gs->addWidget(new QLabel(QStringLiteral("Cinquina estratta"), fraSerie), 0, 0);
    gs->addWidget(new QLabel(QStringLiteral("Serie calcolata"), fraSerie), 1, 0);
    for (int k = 1; k <= 5; ++k) {
        lblEstrazione_[static_cast<size_t>(k)] = new QLabel(fraSerie);
        lblEstrazione_[static_cast<size_t>(k)]->setObjectName(QStringLiteral("lblEstrazione_%1").arg(k));
        lblRisultato_[static_cast<size_t>(k)] = new QLabel(fraSerie);
        lblRisultato_[static_cast<size_t>(k)]->setObjectName(QStringLiteral("lblRisultato_%1").arg(k));
        for (QLabel* l : {lblEstrazione_[static_cast<size_t>(k)], lblRisultato_[static_cast<size_t>(k)]}) {
            l->setFrameShape(QFrame::Box);
            l->setAlignment(Qt::AlignCenter);
            l->setMinimumWidth(32);
        }
        gs->addWidget(lblEstrazione_[static_cast<size_t>(k)], 0, k);
        gs->addWidget(lblRisultato_[static_cast<size_t>(k)], 1, k);
    }
    const auto etichetta = [&](const char* nome, const QString& testo, int r, int c) {
        gs->addWidget(new QLabel(testo, fraSerie), r, c);
        auto* l = new QLabel(fraSerie);
        l->setObjectName(nome);
        l->setFrameShape(QFrame::Box);
        l->setAlignment(Qt::AlignCenter);
        l->setMinimumWidth(32);
        gs->addWidget(l, r, c + 1);
        return l;
    };
    lblSommaEstrazione_ = etichetta("lblSommaEstrazione", QStringLiteral("Somma estratti"), 0, 6);
    lblSommaIgnotaPreCalcolo_ = etichetta("lblSommaIgnotaPreCalcolo", QStringLiteral("Somma ignota"), 0, 8);
    lblSommaIgnota_ = etichetta("lblSommaIgnota", QStringLiteral("Somma ignota"), 1, 6);
    lblProiezione_ = etichetta("lblProiezione", QStringLiteral("Punto di proiezione"), 1, 8);
    principale->addWidget(fraSerie);

    ListViewNumeri_ = CreaListaStudi(this, "ListViewNumeri",
                                     {"Colpo", "1'", "2'", "3'", "4'", "5'", "E", "A", "T", "Es", "As"}, false);
    ListViewNumeri_->setMinimumHeight(150);
    principale->addWidget(ListViewNumeri_);

    auto* fraStorica = new QGroupBox(this);
    auto* gv = new QGridLayout(fraStorica);
    DTPickerDa_ = CreaDataEstrazione(fraStorica, "DTPickerDa");
    gv->addWidget(new QLabel(QStringLiteral("Verifica storica dal"), fraStorica), 0, 0);
    gv->addWidget(DTPickerDa_, 0, 1);
    gv->addWidget(new QLabel(QStringLiteral("Sorte minima da rilevare"), fraStorica), 0, 2);
    cboSorte_ = new QComboBox(fraStorica);
    cboSorte_->setObjectName("cboSorte");
    for (auto t : TestiSorte) cboSorte_->addItem(Q(t));
    cboSorte_->setCurrentIndex(1);
    gv->addWidget(cboSorte_, 0, 3);
    gv->addWidget(new QLabel(QStringLiteral("Colpi da analizzare per verifica vincite"), fraStorica), 1, 0, 1, 2);
    txtNumeroVolte_ = new QLineEdit(QStringLiteral("10"), fraStorica);
    txtNumeroVolte_->setObjectName("txtNumeroVolte");
    txtNumeroVolte_->setMaxLength(3);
    txtNumeroVolte_->setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9]*"), txtNumeroVolte_));
    txtNumeroVolte_->setFixedWidth(48);
    gv->addWidget(txtNumeroVolte_, 1, 2);
    optVerificaTutte_[0] = new QRadioButton(QStringLiteral("Verifica solo la 1' vincita ottenuta"), fraStorica);
    optVerificaTutte_[1] = new QRadioButton(QStringLiteral("Verifica tutte le vincite ottenute"), fraStorica);
    optVerificaTutte_[0]->setObjectName("optVerificaTutte_0");
    optVerificaTutte_[1]->setObjectName("optVerificaTutte_1");
    optVerificaTutte_[0]->setChecked(true);
    gv->addWidget(optVerificaTutte_[0], 2, 0, 1, 2);
    gv->addWidget(optVerificaTutte_[1], 2, 2, 1, 2);
    auto* cmdCalcola = new QPushButton(QStringLiteral("Verifica storica"), fraStorica);
    cmdCalcola->setObjectName("cmdCalcola");
    auto* cmdCalcolaTutte = new QPushButton(QStringLiteral("Riepilogo storico di tutte le ruote"), fraStorica);
    cmdCalcolaTutte->setObjectName("cmdCalcolaTutte");
    gv->addWidget(cmdCalcola, 0, 4);
    gv->addWidget(cmdCalcolaTutte, 1, 4);
    principale->addWidget(fraStorica);
    connect(cmdCalcola, &QPushButton::clicked, this, &FrmPuntiIncogniti::Calcola);
    connect(cmdCalcolaTutte, &QPushButton::clicked, this, &FrmPuntiIncogniti::CalcolaTutte);

    ListViewStorico_ = CreaListaStudi(
        this, "ListViewStorico",
        {"Data", "Cinquina estratta", "Se", "Serie calcolata", "Si", "Colpo", "E", "A", "T", "Es", "As"}, false);
    ListViewStorico_->setMinimumHeight(200);
    ListViewRiepilogo_ = CreaListaStudi(this, "ListViewRiepilogo", {"Ruota", "Riepilogo"}, false);
    ListViewRiepilogo_->hide();
    principale->addWidget(ListViewStorico_);
    principale->addWidget(ListViewRiepilogo_);
    connect(ListViewStorico_, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* it) {
        if (cboSorte_->currentIndex() == 3) {
            ListViewNumeri_->clear();
            return;
        }
        const QString chiave = it->data(0, Qt::UserRole).toString();
        if (it->text(0).size() != 10 || chiave.isEmpty()) return;
        DTPickerA_->setDate(DataQt(it->text(0).toStdString()));
        OkData();
    });

    ProgressBar1_ = new QProgressBar(this);
    ProgressBar1_->setObjectName("ProgressBar1");
    lblDescrizione_ = new QLabel(this);
    lblDescrizione_->setObjectName("lblDescrizione");
    principale->addWidget(ProgressBar1_);
    principale->addWidget(lblDescrizione_);

    auto* pulsanti = new QHBoxLayout;
    for (int k = 0; k < 2; ++k) {
        auto* s = new QPushButton(k == 0 ? QStringLiteral("Stampa colpi") : QStringLiteral("Stampa verifica"), this);
        s->setObjectName(QStringLiteral("cmdStampaRisultati_%1").arg(k));
        auto* f = new QPushButton(k == 0 ? QStringLiteral("Colpi su file") : QStringLiteral("Verifica su file"), this);
        f->setObjectName(QStringLiteral("cmdPrintToFile_%1").arg(k));
        connect(s, &QPushButton::clicked, this, [this, k] { Report(k, true); });
        connect(f, &QPushButton::clicked, this, [this, k] { Report(k, false); });
        pulsanti->addWidget(s);
        pulsanti->addWidget(f);
    }
    auto* cmdAiuto = new QPushButton(QStringLiteral("Aiuto"), this);
    cmdAiuto->setObjectName("cmdAiuto");
    connect(cmdAiuto, &QPushButton::clicked, this,
            [this] { MostraAiuto(this, sessione_, QStringLiteral("[Punti incogniti]")); });
    pulsanti->addStretch();
    pulsanti->addWidget(cmdAiuto);
    principale->addLayout(pulsanti);
}

void FrmPuntiIncogniti::ScegliRuota(int w) {
    ruota_ = w;
    for (int k = 1; k <= archives::NumeroRuote; ++k) chkRuota_[static_cast<size_t>(k)]->setChecked(k == w);
    config::CaselleRuote c{};
    c[static_cast<size_t>(w)] = true;
    config::ScriviImpostazione(sessione_.ini, config::sezioni::Settings, "Ruota", config::LettereRuote(c));
    ListViewStorico_->clear();
    lblDescrizione_->clear();
    ListViewNumeri_->clear();
    OkData();
}

void FrmPuntiIncogniti::OkData() {
    const auto r = storia_->CercaIndice(*archives::Data::daTesto(TestoData(DTPickerA_)), false);
    MostraEstrazione(r ? r->IndiceTrovato : storia_->NumeroEstrazioni());
}

void FrmPuntiIncogniti::MostraEstrazione(int32_t indice) {
    if (RiepilogoInCorso_) return;
    storia_ = archivio_.Storia();
    indice_ = std::clamp(indice, 1, storia_->NumeroEstrazioni());
    DTPickerA_->setDate(DataQt(storia_->DataEstrazione(indice_)));
    const std::array<int, 5> c = Cinquina((*storia_)[indice_], ruota_);
    const SerieIncognita s = CalcolaSerie(c);
    for (int k = 1; k <= 5; ++k) {
        lblEstrazione_[static_cast<size_t>(k)]->setText(QString::number(c[static_cast<size_t>(k - 1)]));
        int uguali = 0;
        for (int h = 1; h <= 5; ++h) uguali += s[static_cast<size_t>(h)] == s[static_cast<size_t>(k)];
        QLabel* l = lblRisultato_[static_cast<size_t>(k)];
        l->setText(QString::number(s[static_cast<size_t>(k)]));
        // Two points with the same value turn dark red and bold.
        l->setStyleSheet(uguali > 1 ? "color: #800000; font-weight: bold;" : "color: #000080; font-weight: normal;");
    }
    lblSommaIgnotaPreCalcolo_->setText(QString::number(c[0] ? SommaIgnotaPreCalcolo(c[0]) : 0));
    lblProiezione_->setText(QString::number(s[0]));
    lblSommaEstrazione_->setText(QString::number(s[6]));
    lblSommaIgnota_->setText(QString::number(s[7]));
    colpi_ = VerificaColpi(*storia_, indice_, ruota_, txtNumeroVolte_->text().toInt());
    if (!colpi_.errore.vuoto()) {
        MostraMessaggio(this, colpi_.errore);
        txtNumeroVolte_->setFocus();
        return;
    }
    RiempiListaStudi(ListViewNumeri_, colpi_.righe);
}

bool FrmPuntiIncogniti::Parametri(ParametriVerifica& p) {
    p.Ruota = ruota_;
    p.Al = indice_;
    const auto da = storia_->CercaIndice(*archives::Data::daTesto(TestoData(DTPickerDa_)), false);
    p.Dal = da ? da->IndiceTrovato : storia_->NumeroEstrazioni();
    p.Sorte = cboSorte_->currentIndex() + 1;
    p.Colpi = txtNumeroVolte_->text().toInt();
    p.SoloPrima = optVerificaTutte_[0]->isChecked();
    return true;
}

void FrmPuntiIncogniti::Calcola() {
    ParametriVerifica p;
    Parametri(p);
    EsitoStorica e = VerificaStorica(*storia_, p, false, tag_);
    if (!e.errore.vuoto()) {
        MostraMessaggio(this, e.errore);
        if (e.errore.testo == MessaggioColpi) txtNumeroVolte_->setFocus();
        return;
    }
    ListViewRiepilogo_->hide();
    ListViewStorico_->show();
    ListViewStorico_->headerItem()->setText(6, p.Sorte == 4 ? QStringLiteral("Ruota") : QStringLiteral("E"));
    ProgressBar1_->setRange(0, 1);
    ProgressBar1_->setValue(1);
    RiempiListaStudi(ListViewStorico_, e.righe);
    lblDescrizione_->setText(Q(e.descrizione));
    tag_ = e.tag;
    storica_ = std::move(e);
    parametriStorica_ = p;
}

void FrmPuntiIncogniti::CalcolaTutte() {
    ParametriVerifica p;
    Parametri(p);
    if (EsitoStorica prova = VerificaStorica(*storia_, {p.Ruota, p.Al, p.Al, p.Sorte, p.Colpi, p.SoloPrima});
        !prova.errore.vuoto() || p.Dal > p.Al) {
        MostraMessaggio(this, !prova.errore.vuoto() ? prova.errore
                                                    : archives::Messaggio{std::string(MessaggioDate), "Errore",
                                                                          archives::Icona::Esclamazione});
        return;
    }
    RiepilogoInCorso_ = true;
    ListViewStorico_->hide();
    ListViewRiepilogo_->show();
    ListViewRiepilogo_->clear();
    auto esito = std::make_shared<EsitoRiepilogo>();
    const auto storia = storia_;
    const std::string tag = tag_;
    Elaborazione::Avvia(
        this, sessione_, QStringLiteral("Riepilogo storico di tutte le ruote..."),
        [storia, p, tag, esito](std::stop_token stop, const Progresso& progresso) {
            progresso("Riepilogo storico di tutte le ruote", 0, 11);
            EsitoRiepilogo r = RiepilogoRuote(*storia, p, tag);
            if (!stop.stop_requested()) *esito = std::move(r);
            progresso("Riepilogo storico di tutte le ruote", 11, 11);
        },
        [this, esito](bool fermato) {
            RiepilogoInCorso_ = false;
            if (!fermato) {
                RiempiListaStudi(ListViewRiepilogo_, esito->righe);
                tag_ = esito->tag;
            }
            lblDescrizione_->clear();
            emit riepilogoTerminato();
        });
}

void FrmPuntiIncogniti::Report(int quale, bool stampa) {
    OpzioniStampa o;
    o.titolo1 = QStringLiteral("I punti incogniti");
    o.punti = quale == 0 ? 12 : 10;
    o.righePerPagina = 0;  // the report opens its own pages, with the table's heading
    const config::ReportTesto r = quale == 0 ? ReportColpi(*storia_, indice_, ruota_, colpi_, stampa)
                                             : ReportStorica(*storia_, parametriStorica_, storica_, stampa);
    const bool vuoto = quale == 0 ? colpi_.righe.empty() : storica_.righe.empty();
    if (stampa)
        StampaStudio(this, r, vuoto, o);
    else
        SalvaStudio(this, sessione_, r, vuoto, QStringLiteral("Punti incogniti ") + Q(NomeRuota(ruota_)),
                    DomandaFile::Sovrascrivi, QStringLiteral("File di testo (*.txt)|*.txt"), config::NullaDaEsportare);
}

void FrmPuntiIncogniti::closeEvent(QCloseEvent* e) {
    if (sessione_.ElaborazioneInCorso) {
        e->ignore();
        return;
    }
    SalvaPosizione(this, sessione_.ini, "PuntiIncognitiLeft", "PuntiIncognitiTop");
    QWidget::closeEvent(e);
}

}  // namespace gorgo::screens
