#include "screens/maintenance/frm_input_estrazioni.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QTimer>
#include <QVBoxLayout>

#include "config/impostazioni.h"
#include "config/ini.h"
#include "screens/common/aiuto.h"
#include "screens/common/caselle.h"
#include "screens/common/messaggi.h"
#include "screens/common/stile.h"
#include "screens/common/twips.h"

namespace gorgo::screens {

namespace {

using maintenance::GiocoInserimento;
using maintenance::ModoInserimento;

QString Q(std::string_view s) { return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size())); }

// Locked boxes are grey, open ones white.
void Colora(QWidget* w, bool aperta) {
    QPalette p = w->palette();
    p.setColor(QPalette::Base, aperta ? QColor(Qt::white) : QColor(212, 208, 200));
    w->setPalette(p);
}

QLineEdit* CasellaData(QWidget* parent, const char* nome, const char* suggerimento, int cifre) {
    auto* t = new QLineEdit(parent);
    t->setObjectName(nome);
    t->setToolTip(QString::fromUtf8(suggerimento));
    t->setMaxLength(cifre);
    t->setFixedWidth(cifre == 4 ? 56 : 36);
    t->setAlignment(Qt::AlignCenter);
    return t;
}

}  // namespace

FrmInputEstrazioni::FrmInputEstrazioni(Sessione& sessione, archives::Archivio& archivio, QWidget* parent,
                                       GiocoInserimento gioco)
    : QWidget(parent, Qt::Window), sessione_(sessione) {
    const bool lotto = gioco == GiocoInserimento::Lotto;
    setObjectName(lotto ? "frmInputEstrazioni" : "frmInputEstrazioniSuperEnalotto");
    setWindowTitle(Q(lotto ? maintenance::CaptionInserimento : maintenance::CaptionInserimentoSuper));
    setAttribute(Qt::WA_DeleteOnClose);
    motore_ = std::make_unique<maintenance::Inserimento>(archivio, gioco);
    CreaControlli();
    ApplicaStile(this, sessione_.ini);
    MostraStato();
}

void FrmInputEstrazioni::CreaControlli() {
    auto* principale = new QVBoxLayout(this);
    principale->addWidget(CreaFrameData());
    principale->addLayout(CreaScorrimento());
    auto* centro = new QHBoxLayout;
    centro->addWidget(CreaFrameNumeri());
    centro->addWidget(CreaFrameTesto(), 1);
    principale->addLayout(centro, 1);
    principale->addLayout(CreaComandi());
    Collega();
}

// The date of the draw and its numbers in the year and in the archive.
QGroupBox* FrmInputEstrazioni::CreaFrameData() {
    auto* fraData = new QGroupBox(this);
    fraData->setObjectName("fraData");
    auto* gd = new QHBoxLayout(fraData);
    txtGiorno_ = CasellaData(fraData, "txtGiorno", "Giorno estrazione", 2);
    txtMese_ = CasellaData(fraData, "txtMese", "Mese estrazione", 2);
    txtAnno_ = CasellaData(fraData, "txtAnno", "Anno estrazione", 4);
    lblGiornoEstraz_ = new QLabel(fraData);
    lblGiornoEstraz_->setObjectName("lblGiornoEstraz");
    lblGiornoEstraz_->setMinimumWidth(90);
    gd->addWidget(new QLabel(QStringLiteral("Data :"), fraData));
    gd->addWidget(txtGiorno_);
    gd->addWidget(new QLabel(QStringLiteral("/"), fraData));
    gd->addWidget(txtMese_);
    gd->addWidget(new QLabel(QStringLiteral("/"), fraData));
    gd->addWidget(txtAnno_);
    gd->addWidget(lblGiornoEstraz_);
    gd->addSpacing(16);
    auto* etichettaNumero = new QLabel(QStringLiteral("Estrazione n."), fraData);
    etichettaNumero->setObjectName("lblEstrazioneN");
    lblAnnoEstrazione_ = new QLabel(fraData);
    lblAnnoEstrazione_->setObjectName("lblAnnoEstrazione");
    lblNumeroAnnoEstraz_ = new QLabel(fraData);
    lblNumeroAnnoEstraz_->setObjectName("lblNumeroAnnoEstraz");
    QFont grassetto = lblNumeroAnnoEstraz_->font();
    grassetto.setBold(true);
    lblNumeroAnnoEstraz_->setFont(grassetto);
    gd->addWidget(etichettaNumero);
    gd->addWidget(lblAnnoEstrazione_);
    gd->addWidget(lblNumeroAnnoEstraz_);
    gd->addStretch();
    auto* etichettaTotale = new QLabel(QStringLiteral("Estrazioni in archivio"), fraData);
    etichettaTotale->setObjectName("lblEstrazioniInArchivio");
    lblTotaleEstrazioni_ = new QLabel(fraData);
    lblTotaleEstrazioni_->setObjectName("lblTotaleEstrazioni");
    lblTotaleEstrazioni_->setFont(grassetto);
    gd->addWidget(etichettaTotale);
    gd->addWidget(lblTotaleEstrazioni_);
    return fraData;
}

// Browse: the slider between the two step buttons.
QHBoxLayout* FrmInputEstrazioni::CreaScorrimento() {
    auto* scorri = new QHBoxLayout;
    cmdPrecedente_ = new QPushButton(QStringLiteral("<"), this);
    cmdPrecedente_->setObjectName("cmdPrecedente");
    cmdPrecedente_->setToolTip(QStringLiteral("-1 estrazione oppure diminuisce di 1 giorno la data"));
    cmdSuccessiva_ = new QPushButton(QStringLiteral(">"), this);
    cmdSuccessiva_->setObjectName("cmdSuccessiva");
    cmdSuccessiva_->setToolTip(QStringLiteral("+1 estrazione oppure aumentadi 1 giorno la data"));
    for (QPushButton* b : {cmdPrecedente_, cmdSuccessiva_}) b->setFixedWidth(40);
    Slider1_ = new QSlider(Qt::Horizontal, this);
    Slider1_->setObjectName("Slider1");
    scorri->addWidget(cmdPrecedente_);
    scorri->addWidget(Slider1_, 1);
    scorri->addWidget(cmdSuccessiva_);
    return scorri;
}

// The number boxes: Lotto five to a wheel under the positions; SuperEnalotto the six, the
// Jolly and the SuperStar in a row under their titles.
QGroupBox* FrmInputEstrazioni::CreaFrameNumeri() {
    const bool lotto = motore_->gioco() == GiocoInserimento::Lotto;
    auto* fraNumeri = new QGroupBox(this);
    fraNumeri->setObjectName("fraNumeri");
    auto* gn = new QGridLayout(fraNumeri);
    gn->setHorizontalSpacing(4);
    gn->setVerticalSpacing(2);
    const int caselle = motore_->NumeroCaselle();
    txtEstratto_.resize(static_cast<size_t>(caselle));
    CreaCaselle<QLineEdit>(fraNumeri, gn, lotto ? PostoCaselle{1, 1, 5} : PostoCaselle{1, 0, caselle},
                           QStringLiteral("txtEstratto"), 1, QStringList(caselle), txtEstratto_);
    for (int i = 1; i <= caselle; ++i) {
        QLineEdit* t = txtEstratto_[static_cast<size_t>(i - 1)];
        t->setFixedWidth(40);
        t->setMaxLength(20);
        t->setAlignment(Qt::AlignCenter);
        t->installEventFilter(this);
        connect(t, &QLineEdit::textChanged, this, [this, i](const QString& testo) {
            if (!InCaricamento_) motore_->ImpostaCasella(i, testo.toStdString());
        });
    }
    if (lotto) {
        for (int p = 1; p <= 5; ++p)
            gn->addWidget(new QLabel(QStringLiteral("%1°").arg(p), fraNumeri), 0, p, Qt::AlignCenter);
        for (int w = 1; w <= archives::NumeroRuote; ++w) {
            auto* nome = new QLabel(Q(archives::NomiRuota[static_cast<size_t>(w)]).trimmed(), fraNumeri);
            nome->setObjectName(QStringLiteral("lblRuota_%1").arg(w));
            gn->addWidget(nome, w, 0);
        }
        for (int i = 1; i <= caselle; ++i)
            txtEstratto_[static_cast<size_t>(i - 1)]->setToolTip(Q(maintenance::SuggerimentoCasella(i)));
    } else {
        const char* titoli[] = {"Sestina vincente", "Jolly", "SuperStar"};
        for (int k = 0; k < 3; ++k) {
            auto* l = new QLabel(QString::fromUtf8(titoli[k]), fraNumeri);
            l->setObjectName(QStringLiteral("lblTitolo_%1").arg(k));
            gn->addWidget(l, 0, k == 0 ? 0 : 5 + k, 1, k == 0 ? 6 : 1, Qt::AlignCenter);
        }
        gn->setRowStretch(2, 1);
        txtEstratto_[6]->setToolTip(QStringLiteral("Jolly"));
        txtEstratto_[7]->setToolTip(QStringLiteral("SuperStar"));
    }
    return fraNumeri;
}

// The paste box and its two commands.
QGroupBox* FrmInputEstrazioni::CreaFrameTesto() {
    auto* fraTesto = new QGroupBox(QStringLiteral("Testo da decodificare"), this);
    fraTesto->setObjectName("fraTesto");
    auto* gt = new QVBoxLayout(fraTesto);
    Text1_ = new QPlainTextEdit(fraTesto);
    Text1_->setObjectName("Text1");
    Text1_->setToolTip(
        QStringLiteral("Qui si può incollare con CTRL-V un'estrazione copiata negli appunti; "
                       "\"Inserisci\" poi la decodifica nelle caselle dei numeri"));
    Text1_->setMinimumWidth(220);
    connect(Text1_, &QPlainTextEdit::textChanged, this, [this] {
        if (!InCaricamento_) motore_->ImpostaTestoIncolla(Text1_->toPlainText().toStdString());
    });
    gt->addWidget(Text1_, 1);
    auto* pulsantiTesto = new QHBoxLayout;
    cmdInserisci_ = new QPushButton(QStringLiteral("Inserisci"), fraTesto);
    cmdInserisci_->setObjectName("cmdInserisci");
    cmdInserisci_->setToolTip(QStringLiteral("Inseriscii dati presenti nella finestra di testo"));
    cmdCancella_ = new QPushButton(QStringLiteral("Cancella"), fraTesto);
    cmdCancella_->setObjectName("cmdCancella");
    cmdCancella_->setToolTip(QStringLiteral("Cancella i dati presenti nella finestra di testo"));
    pulsantiTesto->addWidget(cmdInserisci_);
    pulsantiTesto->addWidget(cmdCancella_);
    gt->addLayout(pulsantiTesto);
    return fraTesto;
}

// The commands at the foot.
QHBoxLayout* FrmInputEstrazioni::CreaComandi() {
    auto* pulsanti = new QHBoxLayout;
    auto pulsante = [this, pulsanti](const char* nome, const char* testo) {
        auto* b = new QPushButton(QString::fromUtf8(testo), this);
        b->setObjectName(nome);
        pulsanti->addWidget(b);
        return b;
    };
    cmdNuova_ = pulsante("cmdNuova", "Nuova estrazione");
    cmdCorreggi_ = pulsante("cmdCorreggi", "Correggi estrazione");
    cmdMemorizza_ = pulsante("cmdMemorizza", "memorizza estrazione");
    pulsanti->addStretch();
    cmdAiuto_ = pulsante("cmdAiuto", "Aiuto");
    cmdEsci_ = pulsante("cmdEsci", "Esci");
    return pulsanti;
}

// The date boxes, the browsing and the commands to the engine.
void FrmInputEstrazioni::Collega() {
    for (QLineEdit* t : {txtGiorno_, txtMese_, txtAnno_}) {
        connect(t, &QLineEdit::textChanged, this, [this] {
            if (InCaricamento_) return;
            motore_->ImpostaGiorno(txtGiorno_->text().toStdString());
            motore_->ImpostaMese(txtMese_->text().toStdString());
            motore_->ImpostaAnno(txtAnno_->text().toStdString());
            lblGiornoEstraz_->setText(Q(motore_->NomeGiornoEstrazione()));
        });
    }
    connect(Slider1_, &QSlider::valueChanged, this, [this](int v) {
        if (InCaricamento_ || motore_->modo() != ModoInserimento::Consulta) return;
        motore_->Mostra(v);
        MostraStato();
    });
    connect(cmdPrecedente_, &QPushButton::clicked, this, [this] {
        motore_->Precedente();
        MostraStato();
    });
    connect(cmdSuccessiva_, &QPushButton::clicked, this, [this] {
        motore_->Successiva();
        MostraStato();
    });
    connect(cmdNuova_, &QPushButton::clicked, this, [this] { Nuova(); });
    connect(cmdCorreggi_, &QPushButton::clicked, this, [this] { Correggi(); });
    connect(cmdMemorizza_, &QPushButton::clicked, this, [this] { Memorizza(); });
    connect(cmdInserisci_, &QPushButton::clicked, this, [this] { Inserisci(); });
    connect(cmdCancella_, &QPushButton::clicked, this, [this] {
        motore_->Cancella();
        MostraStato();
    });
    connect(cmdEsci_, &QPushButton::clicked, this, [this] { close(); });
    connect(cmdAiuto_, &QPushButton::clicked, this, [this] { HelpContext(this, sessione_.ini, AiutoInserimento); });
}

void FrmInputEstrazioni::MostraStato() {
    const maintenance::Inserimento& m = *motore_;
    InCaricamento_ = true;
    for (int i = 1; i <= m.NumeroCaselle(); ++i) {
        QLineEdit* t = txtEstratto_[static_cast<size_t>(i - 1)];
        const QString testo = Q(m.Casella(i));
        if (t->text() != testo) t->setText(testo);
        t->setReadOnly(!m.CasellaAperta(i));
        Colora(t, m.CasellaAperta(i));
    }
    const maintenance::ControlliAttivi c = m.Controlli();
    txtGiorno_->setText(Q(m.Giorno()));
    txtMese_->setText(Q(m.Mese()));
    txtAnno_->setText(Q(m.Anno()));
    for (QLineEdit* t : {txtGiorno_, txtMese_, txtAnno_}) {
        t->setReadOnly(!c.date);
        Colora(t, c.date);
    }
    lblGiornoEstraz_->setText(Q(m.NomeGiornoEstrazione()));
    lblAnnoEstrazione_->setText(Q(m.TestoAnnoEstrazione()));
    lblNumeroAnnoEstraz_->setText(QString::number(m.NumeroAnno()));
    lblTotaleEstrazioni_->setText(QString::number(m.TotaleEstrazioni()));
    Slider1_->setRange(m.TotaleEstrazioni() > 0 ? 1 : 0, m.TotaleEstrazioni());
    if (m.IndiceCorrente() >= 1) Slider1_->setValue(m.IndiceCorrente());
    Slider1_->setEnabled(c.Slider1);
    const QString testo = Q(m.TestoIncolla());
    if (Text1_->toPlainText() != testo) Text1_->setPlainText(testo);
    Text1_->setReadOnly(!c.testo);
    Colora(Text1_, c.testo);
    cmdNuova_->setEnabled(c.cmdNuova);
    cmdCorreggi_->setEnabled(c.cmdCorreggi);
    cmdMemorizza_->setEnabled(c.cmdMemorizza);
    cmdInserisci_->setEnabled(c.cmdInserisci);
    cmdCancella_->setEnabled(c.cmdCancella);
    InCaricamento_ = false;
}

void FrmInputEstrazioni::Nuova() {
    const std::string giorni =
        config::LeggiImpostazione(sessione_.ini, config::sezioni::Options, "Giorni estrazione",
                                  config::Predefinito(config::sezioni::Options, "Giorni estrazione"));
    if (archives::Messaggio m = motore_->Nuova(giorni); !m.vuoto()) {
        MostraMessaggio(this, m);
        return;
    }
    MostraStato();
    txtEstratto_.front()->setFocus();
}

void FrmInputEstrazioni::Correggi() {
    motore_->Correggi();
    MostraStato();
    txtEstratto_.front()->setFocus();
}

void FrmInputEstrazioni::Inserisci() {
    const maintenance::EsitoDecodifica e = motore_->Inserisci();
    MostraStato();
    if (!e.errore.vuoto()) MostraMessaggio(this, e.errore);
}

bool FrmInputEstrazioni::Memorizza() {
    maintenance::RisposteInserimento risposte;
    maintenance::EsitoMemorizzazione e;
    try {
        for (;;) {
            e = motore_->Memorizza(risposte);
            if (e.stato != maintenance::StatoMemorizzazione::Domanda) break;
            if (Chiedi(this, e.messaggio, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) != QMessageBox::Yes)
                break;
            if (e.domanda == maintenance::DomandaInserimento::NumeriMancanti) risposte.numeriMancanti = true;
            if (e.domanda == maintenance::DomandaInserimento::NumeriUguali) risposte.numeriUguali = true;
        }
    } catch (const archives::ErroreArchivio& errore) {
        MostraMessaggio(this, {errore.what(), "Errore", archives::Icona::Stop});
        return false;
    }
    MostraStato();
    if (e.stato == maintenance::StatoMemorizzazione::Rifiutata) {
        if (!e.messaggio.vuoto()) MostraMessaggio(this, e.messaggio);
        if (e.casella >= 1 && e.casella <= static_cast<int>(txtEstratto_.size())) {
            QLineEdit* t = txtEstratto_[static_cast<size_t>(e.casella - 1)];
            t->setFocus();
            t->setSelection(0, 20);
        }
        return false;
    }
    if (e.stato != maintenance::StatoMemorizzazione::Memorizzata) return false;
    emit estrazioneMemorizzata();
    return true;
}

void FrmInputEstrazioni::ControllaUscita(QLineEdit* casella) {
    if (inControllo_ || casella->isReadOnly()) return;
    const archives::Messaggio m = maintenance::ControllaCasella(casella->text().toStdString());
    if (m.vuoto()) return;
    inControllo_ = true;
    MostraMessaggio(this, m);
    // After the focus has finished moving, back to the box with its text selected.
    QTimer::singleShot(0, casella, [this, casella] {
        casella->setFocus();
        casella->setSelection(0, 20);
        inControllo_ = false;
    });
}

bool FrmInputEstrazioni::eventFilter(QObject* oggetto, QEvent* evento) {
    auto* casella = qobject_cast<QLineEdit*>(oggetto);
    if (!casella) return QWidget::eventFilter(oggetto, evento);
    switch (evento->type()) {
        case QEvent::FocusIn:
            // Deferred: the mouse press that brought the focus would place the cursor after it.
            if (!casella->isReadOnly()) QTimer::singleShot(0, casella, [casella] { casella->selectAll(); });
            break;
        case QEvent::KeyPress: {
            const QString testo = static_cast<QKeyEvent*>(evento)->text();
            if (!testo.isEmpty() && !maintenance::SoloCifre(testo.at(0).unicode())) return true;
            break;
        }
        case QEvent::FocusOut: ControllaUscita(casella); break;
        default: break;
    }
    return QWidget::eventFilter(oggetto, evento);
}

void FrmInputEstrazioni::closeEvent(QCloseEvent* e) {
    if (motore_->Controlli().cmdMemorizza && motore_->ChiedeSalvataggio()) {
        const auto r = Chiedi(this, maintenance::Inserimento::DomandaSalvataggio(),
                              QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes);
        // A store that does not go through keeps the screen open on what was typed.
        if (r == QMessageBox::Cancel || (r == QMessageBox::Yes && !Memorizza())) {
            e->ignore();
            return;
        }
    }
    e->accept();
}

void FrmInputEstrazioni::changeEvent(QEvent* e) {
    if (e->type() == QEvent::ActivationChange && isActiveWindow()) sessione_.FormCorrente = this;
    QWidget::changeEvent(e);
}

void FrmInputEstrazioni::showEvent(QShowEvent* e) {
    QWidget::showEvent(e);
    // No place of its own in the settings: it opens in the middle of the screen.
    if (!centrata_) {
        centrata_ = true;
        Centra(this);
    }
}

}  // namespace gorgo::screens
