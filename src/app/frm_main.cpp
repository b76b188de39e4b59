#include "app/frm_main.h"

#include <fmt/format.h>
#include <QApplication>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QVBoxLayout>

#include "app/frm_about_me.h"
#include "config/impostazioni.h"
#include "config/restrizioni.h"
#include "maintenance/importazione.h"
#include "network/connessione.h"
#include "screens/builder/frm_costruttore.h"
#include "screens/common/browser.h"
#include "screens/common/elaborazioni.h"
#include "screens/common/messaggi.h"
#include "screens/common/scelta_file.h"
#include "screens/common/stile.h"
#include "screens/common/twips.h"
#include "screens/config/frm_colori.h"
#include "screens/config/frm_esclusioni.h"
#include "screens/config/frm_opzioni.h"
#include "screens/config/frm_url.h"
#include "screens/consultation/frm_10_estrazioni_10elotto.h"
#include "screens/consultation/frm_10_estrazioni_superenalotto.h"
#include "screens/consultation/frm_consulta_estrazioni.h"
#include "screens/enucleated/frm_ambo_enucleato.h"
#include "screens/maintenance/frm_aggiorna_internet.h"
#include "screens/maintenance/frm_aggiornamenti.h"
#include "screens/maintenance/frm_esportazione.h"
#include "screens/maintenance/frm_input_estrazioni.h"
#include "screens/maintenance/frm_stampa_estrazioni.h"
#include "screens/precursors/frm_scelta_precursori.h"
#include "screens/studies/frm_ambate_ambi_terni_multi.h"
#include "screens/studies/frm_numeri_simpatici.h"
#include "screens/studies/frm_punti_incogniti.h"
#include "screens/studies/frm_utility.h"

namespace gorgo::screens {

namespace {

// The main window is sized in twips as the system lays it out.
constexpr int kLarghezzaMinima = 9300, kAltezzaMinima = 8145;
constexpr int kLarghezzaPredefinita = 14800, kAltezzaPredefinita = 8300;

QString TestoUltima(int numeroAnno, const std::string& data) {
    return QString::fromStdString(fmt::format("n.{} del {}", numeroAnno, data));
}

}  // namespace

FrmMain::FrmMain(std::unique_ptr<Programma> programma, QWidget* parent)
    : QMainWindow(parent),
      programma_(std::move(programma)),
      sessione_(programma_->sessione),
      archivio_(*programma_->archivio) {
    setObjectName("frmMain");
    QString titolo = QString::fromUtf8(CaptionPrincipale);
    if (programma_->demo) titolo += QStringLiteral(" - ARCHIVIO DIMOSTRATIVO");
    setWindowTitle(titolo);
    CreaMenu();
    CreaPannello();

    auto* barra = new QStatusBar(this);
    barra->setObjectName("sbStatusBar");
    setStatusBar(barra);
    if (programma_->demo)
        barra->showMessage(QStringLiteral("Archivio dimostrativo: estrazioni sintetiche, non reali - ") +
                           QString::fromStdString(sessione_.PercorsoProgramma.string()));
    else
        barra->showMessage(QString::fromStdString(sessione_.PercorsoProgramma.string()));

    const QScreen* s = screen();
    setMinimumSize(PixelDaTwips(kLarghezzaMinima, s), PixelDaTwips(kAltezzaMinima, s));
    resize(PixelDaTwips(kLarghezzaPredefinita, s), PixelDaTwips(kAltezzaPredefinita, s));

    AggiornaUltimeEstrazioni();
    MostraRestrizioni();
    ApplicaStile(this, sessione_.ini);
    RipristinaPosizione(this, sessione_.ini, "MainLeft", "MainTop");
}

FrmMain::~FrmMain() {
    // The windows opened from this one use the session and the archives it owns: they go first.
    for (QWidget* w : findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        if (w->isWindow()) delete w;
}

QPushButton* FrmMain::Pulsante(const char* nome, const QString& testo) {
    auto* b = new QPushButton(testo, this);
    b->setObjectName(nome);
    b->setMinimumHeight(36);
    return b;
}

void FrmMain::CreaMenu() {
    QMenuBar* mb = menuBar();
    auto voce = [this](QMenu* m, const char* nome, const QString& testo, auto azione) {
        QAction* a = m->addAction(testo);
        a->setObjectName(nome);
        connect(a, &QAction::triggered, this, azione);
        return a;
    };
    QMenu* file = mb->addMenu(QStringLiteral("&File"));
    voce(file, "mnuFileExit", QStringLiteral("&Esci"), [this] { close(); });

    QMenu* lotto = mb->addMenu(QStringLiteral("&Estrazioni Lotto"));
    voce(lotto, "mnuEstrazioniInserisci", QStringLiteral("Inserisci/modifica"),
         [this] { ApriEstrazioni(FinestraEstrazioni::Inserisci); });
    voce(lotto, "mnuEstrazioniConsulta", QStringLiteral("Consulta"), [this] { ApriConsulta(); });
    voce(lotto, "mnuEstrazioniAggiorna", QStringLiteral("Aggiorna da file..."),
         [this] { ApriDialogoArchivio(new FrmAggiornamenti(sessione_, archivio_, this)); });
    voce(lotto, "mnuEstrazioniAggiornaInt", QStringLiteral("Aggiorna archivi Lotto da Internet..."),
         [this] { ApriAggiornaInternet(false); });
    voce(lotto, "mnuEstrazioniScaricaStorico", QStringLiteral("Scarica archivio storico da Internet..."),
         [this] { ApriScaricaStorico(); });
    voce(lotto, "mnuEstrazioniEsporta", QStringLiteral("Esporta archivio lotto..."),
         [this] { ApriDialogoArchivio(new FrmEsportazione(sessione_, archivio_, this)); });
    voce(lotto, "mnuEstrazioniImporta", QStringLiteral("Importa archivio da file di testo..."),
         [this] { ImportaArchivioTesto(); });
    voce(lotto, "mnuEstrazioniStampa", QStringLiteral("Stampa..."),
         [this] { ApriEstrazioni(FinestraEstrazioni::Stampa); });

    QMenu* dieci = mb->addMenu(QStringLiteral("Estrazioni 10eLotto"));
    voce(dieci, "mnuEstrazioniConsulta10elotto", QStringLiteral("Consulta"), [this] { ApriConsultaAltroGioco(false); });
    voce(dieci, "mnuEstrazioniStampa10elotto", QStringLiteral("Stampa..."),
         [this] { ApriEstrazioni(FinestraEstrazioni::Stampa10eLotto); });

    QMenu* super = mb->addMenu(QStringLiteral("Estrazioni Superenalotto"));
    voce(super, "mnuEstrazioniInserisciSuper", QStringLiteral("Inserisci/modifica"),
         [this] { ApriEstrazioni(FinestraEstrazioni::InserisciSuper); });
    voce(super, "mnuEstrazioniConsultaSuper", QStringLiteral("Consulta"), [this] { ApriConsultaAltroGioco(true); });
    voce(super, "mnuEstrazioniAggiornaSuper", QStringLiteral("Aggiorna da file..."),
         [this] { ApriDialogoArchivio(new FrmAggiornamentiSuper(sessione_, archivio_, this)); });
    voce(super, "mnuEstrazioniAggiornaIntSuper", QStringLiteral("Aggiorna archivi SuperEnalotto da Internet..."),
         [this] { ApriAggiornaInternet(true); });
    voce(super, "mnuEstrazioniStampaSuper", QStringLiteral("Stampa..."),
         [this] { ApriEstrazioni(FinestraEstrazioni::StampaSuper); });

    QMenu* strumenti = mb->addMenu(QStringLiteral("S&trumenti"));
    voce(strumenti, "mnuStrumentiRestrizioni", QStringLiteral("Restrizioni di ricerca..."), [this] { ApriOpzioni(); });
    voce(strumenti, "mnuStrumentiOpzioni", QStringLiteral("Opzioni..."), [this] { ApriEsclusioni(); });
    voce(strumenti, "mnuStrumentiWeb", QStringLiteral("Sito web Ardesia"), [this] { ApriSitoWeb(); });
    voce(strumenti, "mnuStrumentiUrl", QStringLiteral("Url predefinita"), [this] { ApriUrl(); });
    voce(strumenti, "mnuColori", QStringLiteral("Colori"), [this] { ApriColori(); });
    voce(strumenti, "mnuStrumentiPannello", QStringLiteral("Ripristina tutti i pannelli"),
         [this] { RipristinaPannelli(); });

    QMenu* utility = mb->addMenu(QStringLiteral("&Utility"));
    voce(utility, "mnuUtilitySommaCinquine", QStringLiteral("Utility somma cinquine"), [this] { ApriUtility(); });
    voce(utility, "mnuUtilityPuntiIncogniti", QStringLiteral("I Punti incogniti"), [this] { ApriPuntiIncogniti(); });
    voce(utility, "mnuRicercaQuaterna", QStringLiteral("Ricerca simultanea per il gioco della quaterna"),
         [this] { ApriNumeriSimpatici(); });
    voce(utility, "mnuAmbateAmbiTerniMulti", QStringLiteral("Ambate ambi e terni multiruota"),
         [this] { ApriAmbateAmbiTerniMulti(); });

    QMenu* aiuto = mb->addMenu(QStringLiteral("&?"));
    voce(aiuto, "mnuHelpAbout", QStringLiteral("&Informazioni su "), [this] { ApriInformazioni(); });
    for (QMenu* m : {file, lotto, dieci, super, strumenti, utility, aiuto}) m->setToolTipsVisible(true);
}

void FrmMain::CreaPannello() {
    auto* centro = new QWidget(this);
    centro->setObjectName("Picture1");
    auto* v = new QVBoxLayout(centro);

    auto* titolo = new QLabel(QStringLiteral("Gorgo 2 - Tris metodologie"), centro);
    titolo->setObjectName("lblTitolo");
    QFont f = titolo->font();
    f.setPointSize(f.pointSize() + 8);
    f.setBold(true);
    titolo->setFont(f);
    titolo->setAlignment(Qt::AlignCenter);
    titolo->setMinimumHeight(64);
    titolo->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    v->addWidget(titolo);

    // Last draws and restrictions.
    auto* pannello = new QGroupBox(centro);
    pannello->setObjectName("Picture2");
    auto* g = new QGridLayout(pannello);
    auto* testaUltima = new QLabel(QStringLiteral("Ultima estrazione memorizzata :"), pannello);
    testaUltima->setObjectName("lblTestaUltima");
    g->addWidget(testaUltima, 0, 0, 1, 2);
    const char* giochi[] = {"Lotto / 10eLotto", "SuperEnalotto"};
    for (int i = 0; i < 2; ++i) {
        auto* gioco = new QLabel(QString::fromUtf8(giochi[i]), pannello);
        gioco->setObjectName(QStringLiteral("lblGioco_%1").arg(i));
        lblUltimaEstrazione_[static_cast<size_t>(i)] = new QLabel(pannello);
        lblUltimaEstrazione_[static_cast<size_t>(i)]->setObjectName(QStringLiteral("lblUltimaEstrazione_%1").arg(i));
        QFont b = lblUltimaEstrazione_[static_cast<size_t>(i)]->font();
        b.setBold(true);
        lblUltimaEstrazione_[static_cast<size_t>(i)]->setFont(b);
        g->addWidget(gioco, i + 1, 0);
        g->addWidget(lblUltimaEstrazione_[static_cast<size_t>(i)], i + 1, 1);
    }
    auto* restrizioni = new QGroupBox(pannello);
    restrizioni->setObjectName("fraRestrizioni");
    auto* r = new QVBoxLayout(restrizioni);
    auto* testaRestrizioni = new QLabel(QStringLiteral("Restrizioni attive in ricerche statistiche:"), restrizioni);
    testaRestrizioni->setObjectName("lblTestaRestrizioni");
    r->addWidget(testaRestrizioni);
    lblNessuna_ = new QLabel(
        QString::fromUtf8(config::TestoNessuna.data(), static_cast<int>(config::TestoNessuna.size())), restrizioni);
    lblNessuna_->setObjectName("lblNessuna");
    r->addWidget(lblNessuna_);
    for (size_t i = 0; i < lblRestrizioni_.size(); ++i) {
        const auto t = config::TestiRestrizioni[i];
        lblRestrizioni_[i] = new QLabel(QString::fromUtf8(t.data(), static_cast<int>(t.size())), restrizioni);
        lblRestrizioni_[i]->setObjectName(QStringLiteral("lblRestrizioni_%1").arg(i));
        r->addWidget(lblRestrizioni_[i]);
    }
    auto* cambia = Pulsante("cmdCambiaImpostazioniRestrizione", QStringLiteral("Cambia..."));
    cambia->setToolTip(QStringLiteral("Permette di impostare i parametri di esclusione per le ricerche statistiche"));
    connect(cambia, &QPushButton::clicked, this, [this] { ApriOpzioni(); });
    r->addWidget(cambia, 0, Qt::AlignLeft);
    r->addStretch();
    g->addWidget(restrizioni, 0, 2, 4, 1);
    g->setColumnStretch(1, 1);
    v->addWidget(pannello);

    // The procedures.
    auto* pulsanti = new QGroupBox(centro);
    pulsanti->setObjectName("fraPulsanti");
    auto* p = new QGridLayout(pulsanti);
    // One line a procedure: its button and the window it opens.
    struct Voce {
        const char* nome;
        const char* testo;
        void (FrmMain::*apri)();
    };
    const Voce voci[] = {{"cmdGorgo", "The Gorgo 2", &FrmMain::ApriCostruttore},
                         {"cmdPrecursori", "La scia inversa dei precursori", &FrmMain::ApriSceltaPrecursori},
                         {"cmdAmboEnucleato", "L'ambo enucleato", &FrmMain::ApriAmboEnucleato},
                         {"cmdNuovaProcedura", "Precursori 10elotto", &FrmMain::ApriPrecursori10eLotto},
                         {"Command1", "Precursori Superenalotto", &FrmMain::ApriPrecursoriSuper},
                         {"cmdProcedura", "Procedura", &FrmMain::ApriPuntiIncogniti}};
    int i = 0;
    for (const Voce& vc : voci) {
        QPushButton* b = Pulsante(vc.nome, QString::fromUtf8(vc.testo));
        connect(b, &QPushButton::clicked, this, vc.apri);
        p->addWidget(b, i / 3, i % 3);
        ++i;
    }
    const Voce scarica[] = {{"cmdScarica_0", "Scarica aggiornamento archivi Lotto/10eLotto da internet...", nullptr},
                            {"cmdScarica_1", "Scarica aggiornamento archivio Superenalotto da internet...", nullptr}};
    for (int k = 0; k < 2; ++k) {
        QPushButton* b = Pulsante(scarica[k].nome, QStringLiteral("..."));
        b->setMaximumWidth(48);
        if (k == 0) b->setToolTip(QStringLiteral("Aggiorna l'archivio estrazioni via internet"));
        connect(b, &QPushButton::clicked, this, [this, k] { ApriAggiornaInternet(k == 1); });
        auto* etichetta = new QLabel(QString::fromUtf8(scarica[k].testo), pulsanti);
        etichetta->setObjectName(QStringLiteral("lblScarica_%1").arg(k));
        p->addWidget(b, 2 + k, 0, Qt::AlignRight);
        p->addWidget(etichetta, 2 + k, 1, 1, 2);
    }
    v->addWidget(pulsanti);
    v->addStretch();
    setCentralWidget(centro);
}

void FrmMain::AggiornaUltimeEstrazioni() {
    const archives::Archivio& a = archivio_;
    if (a.NumeroEstrazioni() > 0) {
        const archives::RecordEstrazione r = a.LeggiEstrazione(a.NumeroEstrazioni());
        lblUltimaEstrazione_[0]->setText(TestoUltima(r.NumeroAnno, r.dataTesto()));
    }
    if (a.NumeroEstrazioniSuper() > 0) {
        const archives::RecordSuperEnalotto s = a.LeggiRecordSuper(a.NumeroEstrazioniSuper());
        lblUltimaEstrazione_[1]->setText(TestoUltima(s.NumeroAnno, s.dataTesto()));
    }
}

void FrmMain::MostraRestrizioni() {
    const config::StatoPannelloRestrizioni p = config::PannelloRestrizioni(sessione_.ini);
    lblNessuna_->setVisible(p.nessuna);
    for (size_t i = 0; i < lblRestrizioni_.size(); ++i) lblRestrizioni_[i]->setVisible(p.visibile[i]);
}

void FrmMain::RipristinaPannelli() {
    const QWidgetList finestre = QApplication::topLevelWidgets();
    try {
        for (auto it = finestre.rbegin(); it != finestre.rend(); ++it) {
            QWidget* w = *it;
            if (w == this || !w->isVisible() || w->isMinimized()) continue;
            Centra(w);
        }
    } catch (...) {
        MostraMessaggio(this, {"Errore nel pannello impostazioni", "", archives::Icona::Esclamazione});
    }
}

void FrmMain::changeEvent(QEvent* e) {
    if (e->type() == QEvent::ActivationChange && isActiveWindow()) {
        // An update made in another window shows as soon as the user comes back.
        AggiornaUltimeEstrazioni();
        sessione_.FormCorrente = this;
        ApplicaStile(this, sessione_.ini);
    }
    QMainWindow::changeEvent(e);
}

void FrmMain::closeEvent(QCloseEvent* e) {
    if (sessione_.ElaborazioneInCorso) {
        e->ignore();
        return;
    }
    const QWidgetList finestre = QApplication::topLevelWidgets();
    for (auto it = finestre.rbegin(); it != finestre.rend(); ++it)
        if (*it != this && (*it)->isVisible()) (*it)->close();
    SalvaPosizione(this, sessione_.ini, "MainLeft", "MainTop");
    e->accept();
}

void FrmMain::ApriOpzioni() {
    FrmOpzioni dlg(sessione_.ini, this);
    connect(&dlg, &FrmOpzioni::restrizioniCambiate, this, [this] { MostraRestrizioni(); });
    dlg.exec();
}

void FrmMain::ApriEsclusioni() {
    FrmEsclusioni dlg(sessione_.ini, this);
    dlg.exec();
}

void FrmMain::ApriColori() {
    auto* dlg = new FrmColori(sessione_, &archivio_, this);
    dlg->setAttribute(Qt::WA_DeleteOnClose);
    dlg->show();
}

void FrmMain::ApriUrl() {
    FrmUrl dlg(sessione_.ini, this);
    dlg.exec();
}

void FrmMain::ApriSitoWeb() {
    if (!network::VaiInLineaSeServe()) {
        MostraMessaggio(this, {network::MessaggioOffLine, "Errore", archives::Icona::Stop});
        return;
    }
    ApriBrowser(QString::fromStdString(config::LeggiImpostazione(
        sessione_.ini, config::sezioni::Options, "Url", config::Predefinito(config::sezioni::Options, "Url"))));
}

template <typename Finestra>
void FrmMain::ApriUnica(QPointer<QWidget>& aperta) {
    // A window already open comes forward instead of opening twice.
    if (aperta) {
        aperta->showNormal();
        aperta->raise();
        aperta->activateWindow();
        return;
    }
    auto* f = new Finestra(sessione_, archivio_, this);
    aperta = f;
    f->show();
}

// The builder and the enucleated pair put the precursor chooser away before they open.
void FrmMain::NascondiSceltaPrecursori() {
    if (sceltaPrecursori_) sceltaPrecursori_->hide();
}

void FrmMain::ApriCostruttore() {
    NascondiSceltaPrecursori();
    ApriUnica<FrmCostruttore>(costruttore_);
}

void FrmMain::ApriPuntiIncogniti() { ApriUnica<FrmPuntiIncogniti>(puntiIncogniti_); }
void FrmMain::ApriNumeriSimpatici() { ApriUnica<FrmNumeriSimpatici>(numeriSimpatici_); }
void FrmMain::ApriAmbateAmbiTerniMulti() { ApriUnica<FrmAmbateAmbiTerniMulti>(multiruota_); }
void FrmMain::ApriUtility() { ApriUnica<FrmUtility>(utility_); }
void FrmMain::ApriAmboEnucleato() {
    NascondiSceltaPrecursori();
    ApriUnica<FrmAmboEnucleato>(amboEnucleato_);
}

void FrmMain::ApriConsulta() {
    // Every click opens one more desk: a player may keep two draws side by side.
    (new FrmConsultaEstrazioni(sessione_, archivio_, this))->show();
}

void FrmMain::ApriConsultaAltroGioco(bool super) {
    if (super)
        ApriUnica<Frm10EstrazioniSuperEnaLotto>(consultaSuper_);
    else
        ApriUnica<Frm10Estrazioni10eLotto>(consulta10eLotto_);
}

FrmSceltaPrecursori* FrmMain::SceltaPrecursori() {
    if (!sceltaPrecursori_) sceltaPrecursori_ = new FrmSceltaPrecursori(sessione_, archivio_, this);
    return static_cast<FrmSceltaPrecursori*>(sceltaPrecursori_.data());
}

void FrmMain::ApriSceltaPrecursori() {
    FrmSceltaPrecursori* f = SceltaPrecursori();
    f->showNormal();
    f->raise();
    f->activateWindow();
}

// The panel's own entries for the other games open their window through the chooser (shown
// or not), so that a window is never open twice.
void FrmMain::ApriPrecursori10eLotto() { SceltaPrecursori()->ApriClassici(1); }

void FrmMain::ApriPrecursoriSuper() { SceltaPrecursori()->ApriClassici(2); }

void FrmMain::ApriAggiornaInternet(bool super) {
    QPointer<QWidget>& aperta = super ? aggiornaSuperInternet_ : aggiornaInternet_;
    if (aperta) {
        aperta->showNormal();
        aperta->raise();
        aperta->activateWindow();
        return;
    }
    FrmAggiornaInternetBase* f =
        super ? static_cast<FrmAggiornaInternetBase*>(new FrmAggiornaSuperInternet(sessione_, archivio_, this))
              : new FrmAggiornaInternet(sessione_, archivio_, this);
    f->setAttribute(Qt::WA_DeleteOnClose);
    connect(f, &FrmAggiornaInternetBase::archivioAggiornato, this, [this] { AggiornaUltimeEstrazioni(); });
    aperta = f;
    f->show();
}

void FrmMain::ApriScaricaStorico() {
    if (scaricaStorico_) {
        scaricaStorico_->showNormal();
        scaricaStorico_->raise();
        scaricaStorico_->activateWindow();
        return;
    }
    auto* f = new FrmScaricaStorico(sessione_, archivio_, this);
    f->setAttribute(Qt::WA_DeleteOnClose);
    connect(f, &FrmScaricaStorico::archivioAggiornato, this, [this] { AggiornaUltimeEstrazioni(); });
    scaricaStorico_ = f;
    f->show();
}

void FrmMain::ApriDialogoArchivio(QDialog* dialogo) {
    dialogo->setAttribute(Qt::WA_DeleteOnClose);
    if (auto* a = qobject_cast<FrmAggiornamenti*>(dialogo))
        connect(a, &FrmAggiornamenti::archivioAggiornato, this, [this] { AggiornaUltimeEstrazioni(); });
    dialogo->exec();
    AggiornaUltimeEstrazioni();
}

void FrmMain::ImportaArchivioTesto() {
    const QString file =
        ScegliFileManutenzione(this, ModoSceltaFile::Apri, QStringLiteral("Importa archivio da file di testo"),
                               QStringLiteral("Archivio storico (*.txt *.zip)|*.txt;*.zip|Tutti i file (*.*)|*.*"),
                               QString::fromStdString(sessione_.PercorsoProgramma.string()));
    if (file.isEmpty()) return;
    CMouse mouse;
    const maintenance::EsitoImportazione e =
        maintenance::ImportaFile(archivio_, file.toStdString(), maintenance::Gioco::Lotto);
    MostraMessaggio(this, e.messaggio);
    AggiornaUltimeEstrazioni();
}

void FrmMain::ApriEstrazioni(FinestraEstrazioni quale) {
    QPointer<QWidget>& aperta = finestreEstrazioni_[static_cast<size_t>(quale)];
    if (aperta) {
        aperta->showNormal();
        aperta->raise();
        aperta->activateWindow();
        return;
    }
    QWidget* f = nullptr;
    switch (quale) {
        case FinestraEstrazioni::Inserisci:
        case FinestraEstrazioni::InserisciSuper: {
            auto* input = quale == FinestraEstrazioni::Inserisci
                              ? new FrmInputEstrazioni(sessione_, archivio_, this)
                              : new FrmInputEstrazioniSuperEnalotto(sessione_, archivio_, this);
            connect(input, &FrmInputEstrazioni::estrazioneMemorizzata, this, [this] { AggiornaUltimeEstrazioni(); });
            f = input;
            break;
        }
        case FinestraEstrazioni::Stampa: f = new FrmStampaEstrazioni(sessione_, archivio_, this); break;
        case FinestraEstrazioni::StampaSuper:
            f = new FrmStampaEstrazioniSuperEnalotto(sessione_, archivio_, this);
            break;
        case FinestraEstrazioni::Stampa10eLotto: f = new FrmStampaEstrazioni10eLotto(sessione_, archivio_, this); break;
    }
    aperta = f;
    f->show();
}

void FrmMain::ApriInformazioni() {
    FrmAboutMe dlg(*programma_, this);
    dlg.exec();
}

}  // namespace gorgo::screens
