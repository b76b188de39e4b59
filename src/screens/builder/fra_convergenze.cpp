#include "screens/builder/fra_convergenze.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "archives/regole.h"
#include "builder/report.h"
#include "screens/builder/frm_capo_abbinamenti_costruttore.h"
#include "screens/common/elaborazioni.h"
#include "screens/common/messaggi.h"
#include "screens/common/stampa.h"

namespace gorgo::screens {

namespace {

QString Q(std::string_view s) { return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size())); }

QFont FontFisso() {
    QFont f(QStringLiteral("Monospace"));
    f.setStyleHint(QFont::TypeWriter);
    return f;
}

QPushButton* Pulsante(QWidget* w, const char* nome, const QString& testo) {
    auto* b = new QPushButton(testo, w);
    b->setObjectName(nome);
    return b;
}

QTreeWidget* ListaDuColonne(QWidget* parent, const char* nome) {
    auto* l = new QTreeWidget(parent);
    l->setObjectName(nome);
    l->setRootIsDecorated(false);
    l->setFont(FontFisso());
    l->setHeaderLabels({QStringLiteral("Descrizione algoritmo"), QStringLiteral("Previsione")});
    return l;
}

void Riempi(QTreeWidget* lista, const std::vector<builder::RigaConvergenza>& righe) {
    lista->clear();
    for (const builder::RigaConvergenza& r : righe)
        new QTreeWidgetItem(lista, {QString::fromStdString(r.descrizione), QString::fromStdString(r.previsione)});
    lista->resizeColumnToContents(0);
}

// A frame floats over the builder as a small tool window.
void Galleggia(QGroupBox* f, const char* nome, const QString& titolo) {
    f->setObjectName(nome);
    f->setTitle(titolo);
    f->setWindowTitle(titolo);
    f->setWindowFlag(Qt::Tool);
}

}  // namespace

// ---- convergences ----

FraConvergenze::FraConvergenze(QWidget* parent, FonteCostruttore fonte) : QGroupBox(parent), fonte_(std::move(fonte)) {
    Galleggia(this, "fraConvergenze", QStringLiteral("Previsioni"));
    auto* l = new QVBoxLayout(this);
    lvConvergenze_ = ListaDuColonne(this, "lvConvergenze");
    l->addWidget(lvConvergenze_);
    auto* ok = Pulsante(this, "cmdOk", QStringLiteral("Ok"));
    l->addWidget(ok, 0, Qt::AlignRight);
    connect(ok, &QPushButton::clicked, this, &QWidget::hide);
    resize(520, 320);
}

void FraConvergenze::Calcola() {
    const DatiCostruttore d = fonte_();
    CMouse mouse;
    const builder::EsitoConvergenze e = builder::CalcolaConvergenze(d.parametri, d.contesto, d.righe);
    if (e.frame) {
        Riempi(lvConvergenze_, e.righe);
        show();
        raise();
    }
    MostraMessaggio(parentWidget(), e.messaggio);
    if (e.rilevate) emit convergenzeMostrate();
}

// ---- lunghetta ----

FraLunghette::FraLunghette(QWidget* parent, FonteCostruttore fonte) : QGroupBox(parent), fonte_(std::move(fonte)) {
    Galleggia(this, "fraLunghette", QStringLiteral("Lunghetta"));
    auto* l = new QVBoxLayout(this);
    auto* riga = new QHBoxLayout;
    cboNumeriLunga_ = new QComboBox(this);
    cboNumeriLunga_->setObjectName("cboNumeriLunga");
    for (int n = 1; n <= builder::MassimoNumeriLunghetta; ++n) cboNumeriLunga_->addItem(QString::number(n));
    cboNumeriLunga_->setCurrentIndex(3);
    chkRuotaMigliore_ = new QCheckBox(QStringLiteral("Solo ruota migliore"), this);
    chkRuotaMigliore_->setObjectName("chkRuotaMigliore");
    auto* vai = Pulsante(this, "cmdVai", QStringLiteral("Elabora lunghetta"));
    riga->addWidget(new QLabel(QStringLiteral("Numeri"), this));
    riga->addWidget(cboNumeriLunga_);
    riga->addWidget(chkRuotaMigliore_);
    riga->addStretch();
    riga->addWidget(vai);
    l->addLayout(riga);
    ListViewAlgoLunghetta_ = ListaDuColonne(this, "ListViewAlgoLunghetta");
    l->addWidget(ListViewAlgoLunghetta_);
    auto* esito = new QGridLayout;
    txtLunghetta_ = new QLineEdit(this);
    txtLunghetta_->setObjectName("txtLunghetta");
    txtLunghetta_->setReadOnly(true);
    txtRuotaMigliore_ = new QLineEdit(this);
    txtRuotaMigliore_->setObjectName("txtRuotaMigliore");
    txtRuotaMigliore_->setReadOnly(true);
    esito->addWidget(new QLabel(QStringLiteral("Lunghetta"), this), 0, 0);
    esito->addWidget(txtLunghetta_, 0, 1);
    esito->addWidget(new QLabel(QStringLiteral("Ruota migliore"), this), 1, 0);
    esito->addWidget(txtRuotaMigliore_, 1, 1);
    l->addLayout(esito);
    auto* chiudi = Pulsante(this, "cmdChiudi", QStringLiteral("Chiudi finestra"));
    l->addWidget(chiudi, 0, Qt::AlignRight);
    connect(vai, &QPushButton::clicked, this, &FraLunghette::Elabora);
    connect(chiudi, &QPushButton::clicked, this, &QWidget::hide);
    const auto cambia = [this] {
        Svuota();
        emit sceltaCambiata();
    };
    connect(cboNumeriLunga_, &QComboBox::currentIndexChanged, this, cambia);
    connect(chkRuotaMigliore_, &QCheckBox::toggled, this, cambia);
    resize(560, 380);
}

void FraLunghette::Svuota() {
    ListViewAlgoLunghetta_->clear();
    txtLunghetta_->clear();
    txtRuotaMigliore_->clear();
    numeri_.clear();
}

void FraLunghette::Elabora() {
    const DatiCostruttore d = fonte_();
    CMouse mouse;
    const builder::EsitoLunghetta e = builder::ElaboraLunghetta(
        d.parametri, d.contesto, d.righe, {cboNumeriLunga_->currentIndex() + 1, chkRuotaMigliore_->isChecked()});
    if (!e.errore.vuoto()) {
        hide();
        MostraMessaggio(parentWidget(), e.errore);
        return;
    }
    Riempi(ListViewAlgoLunghetta_, e.righe);
    txtLunghetta_->setText(QString::fromStdString(e.txtLunghetta));
    txtRuotaMigliore_->setText(QString::fromStdString(e.txtRuotaMigliore));
    numeri_ = e.numeri;
}

// ---- capogioco and abbinamenti ----

FrameAbbinamenti::FrameAbbinamenti(QWidget* parent, Sessione& sessione, const archives::StoriaLotto& storia,
                                   const builder::IndiciMensili& indici, FonteCostruttore fonte,
                                   std::function<std::vector<int>()> lunghetta)
    : QGroupBox(parent),
      sessione_(sessione),
      storia_(storia),
      indici_(indici),
      fonte_(std::move(fonte)),
      lunghetta_(std::move(lunghetta)) {
    Galleggia(this, "FrameAbbinamenti", QStringLiteral("Abbinamenti con l'algoritmo capogioco"));
    auto* l = new QVBoxLayout(this);
    auto* algoritmo = new QHBoxLayout;
    txtAlgoritmoCapogioco_ = new QLineEdit(this);
    txtAlgoritmoCapogioco_->setObjectName("txtAlgoritmoCapogioco");
    txtAlgoritmoCapogioco_->setReadOnly(true);
    txtAlgoritmoCapogioco_->setFont(FontFisso());
    lblTag_ = new QLabel(this);
    lblTag_->setObjectName("lblTag");
    lblTag_->setMinimumWidth(28);
    algoritmo->addWidget(txtAlgoritmoCapogioco_, 1);
    algoritmo->addWidget(lblTag_);
    l->addLayout(algoritmo);

    auto* data = new QHBoxLayout;
    auto* precedente = Pulsante(this, "cmdPrecedente", QStringLiteral("<"));
    txtDataAbbinamenti_ = new QLineEdit(this);
    txtDataAbbinamenti_->setObjectName("txtDataAbbinamenti");
    txtDataAbbinamenti_->setMaxLength(10);
    txtDataAbbinamenti_->setMaximumWidth(110);
    auto* successiva = Pulsante(this, "cmdSuccessiva", QStringLiteral(">"));
    lblCapoAbbinamenti_ = new QLabel(this);
    lblCapoAbbinamenti_->setObjectName("lblCapoAbbinamenti");
    QFont grassetto = lblCapoAbbinamenti_->font();
    grassetto.setBold(true);
    grassetto.setPointSize(grassetto.pointSize() + 4);
    lblCapoAbbinamenti_->setFont(grassetto);
    lblCapoAbbinamenti_->setMinimumWidth(40);
    data->addWidget(precedente);
    data->addWidget(txtDataAbbinamenti_);
    data->addWidget(successiva);
    data->addWidget(lblCapoAbbinamenti_);
    data->addStretch();
    l->addLayout(data);
    chkSincronizza_ = new QCheckBox(QStringLiteral("Sincronizza l'estrazione con l'indice mensile impostato"), this);
    chkSincronizza_->setObjectName("chkSincronizza");
    l->addWidget(chkSincronizza_);

    auto* ricerca = new QHBoxLayout;
    cboNumAbbinati_ = new QComboBox(this);
    cboNumAbbinati_->setObjectName("cboNumAbbinati");
    for (int n = 1; n <= 15; ++n) cboNumAbbinati_->addItem(QString::number(n));
    cboNumAbbinati_->setCurrentIndex(builder::QuantiAbbinatiPredefiniti - 1);
    auto* calcola = Pulsante(this, "cmdNumAbbinati", QStringLiteral("Ricerca di"));
    ricerca->addWidget(calcola);
    ricerca->addWidget(cboNumAbbinati_);
    ricerca->addWidget(new QLabel(QStringLiteral(" N.abbinati"), this));
    ricerca->addStretch();
    l->addLayout(ricerca);
    lstNumeriAbbinati_ = new QListWidget(this);
    lstNumeriAbbinati_->setObjectName("lstNumeriAbbinati");
    lstNumeriAbbinati_->setFont(FontFisso());
    l->addWidget(lstNumeriAbbinati_);

    auto* piede = new QHBoxLayout;
    auto* file = Pulsante(this, "cmdPrintTofileAbbinamenti", QStringLiteral("Su file"));
    auto* numeri = Pulsante(this, "cmdNumeriDaGiocare", QStringLiteral("Numeri da giocare..."));
    auto* chiudi = Pulsante(this, "Command1", QStringLiteral("Chiudi"));
    piede->addWidget(file);
    piede->addWidget(numeri);
    piede->addStretch();
    piede->addWidget(chiudi);
    l->addLayout(piede);

    connect(precedente, &QPushButton::clicked, this, [this] { Sposta(false); });
    connect(successiva, &QPushButton::clicked, this, [this] { Sposta(true); });
    connect(txtDataAbbinamenti_, &QLineEdit::editingFinished, this, [this] {
        if (!txtDataAbbinamenti_->isModified()) return;
        txtDataAbbinamenti_->setModified(false);
        const archives::RisultatoData d =
            archives::ControllaData(txtDataAbbinamenti_->text().toStdString(), storia_, true);
        if (d.ErroreData) {
            MostraMessaggio(this, d.messaggio);
            return;
        }
        Ricalcola(d.IndiceTrovato);
    });
    connect(calcola, &QPushButton::clicked, this, &FrameAbbinamenti::CalcolaAbbinati);
    connect(file, &QPushButton::clicked, this, &FrameAbbinamenti::SuFile);
    connect(numeri, &QPushButton::clicked, this, &FrameAbbinamenti::NumeriDaGiocare);
    connect(chiudi, &QPushButton::clicked, this, &QWidget::hide);
    resize(520, 460);
}

void FrameAbbinamenti::ImpostaAlgoritmo(const std::string& descrizione, const std::string& chiave,
                                        const std::string& dataA) {
    descrizione_ = descrizione;
    chiave_ = chiave;
    txtAlgoritmoCapogioco_->setText(QString::fromStdString(descrizione));
    lblTag_->setText(QString::number(chiave.size()));
    if (txtDataAbbinamenti_->text().isEmpty()) txtDataAbbinamenti_->setText(QString::fromStdString(dataA));
    const archives::RisultatoData d = archives::ControllaData(txtDataAbbinamenti_->text().toStdString(), storia_, true);
    if (!d.ErroreData) Ricalcola(d.IndiceTrovato);
}

void FrameAbbinamenti::Svuota() {
    descrizione_.clear();
    chiave_.clear();
    capo_ = {};
    capoAbbinati_ = {};
    abbinati_ = {};
    txtAlgoritmoCapogioco_->clear();
    lblTag_->clear();
    lblCapoAbbinamenti_->clear();
    lstNumeriAbbinati_->clear();
}

void FrameAbbinamenti::Ricalcola(int32_t indice) {
    const builder::ParametriRicerca p = fonte_().parametri;
    capo_ = builder::RicalcolaCapogioco(storia_, indici_, p.indiceMese, chiave_, indice);
    lblCapoAbbinamenti_->clear();
    if (capo_.indice == 0) return;  // below draw 19 nothing is shown
    txtDataAbbinamenti_->setText(QString::fromStdString(capo_.data));
    if (!capo_.errore.vuoto()) {
        MostraMessaggio(this, capo_.errore);
        return;
    }
    if (capo_.numero > 0) lblCapoAbbinamenti_->setText(QString::number(capo_.numero));
}

void FrameAbbinamenti::Sposta(bool avanti) {
    const archives::RisultatoData d = archives::ControllaData(txtDataAbbinamenti_->text().toStdString(), storia_, true);
    if (d.ErroreData) {
        MostraMessaggio(this, d.messaggio);
        return;
    }
    const int indiceMese = fonte_().parametri.indiceMese;
    Ricalcola(avanti ? builder::EstrazioneSuccessiva(storia_, indici_, indiceMese, chkSincronizza_->isChecked(),
                                                     d.IndiceTrovato)
                     : builder::EstrazionePrecedente(d.IndiceTrovato));
}

void FrameAbbinamenti::CalcolaAbbinati() {
    const DatiCostruttore d = fonte_();
    const archives::RisultatoData data =
        archives::ControllaData(txtDataAbbinamenti_->text().toStdString(), storia_, true);
    if (data.ErroreData) {
        MostraMessaggio(this, data.messaggio);
        return;
    }
    CMouse mouse;
    abbinati_ = builder::CalcolaAbbinamenti(d.parametri, d.contesto, chiave_, data.IndiceTrovato, capo_.numero,
                                            cboNumAbbinati_->currentIndex() + 1);
    parametriAbbinati_ = d.parametri;
    capoAbbinati_ = capo_;
    lstNumeriAbbinati_->clear();
    if (!abbinati_.errore.vuoto()) {
        MostraMessaggio(this, abbinati_.errore);
        if (!abbinati_.focus.empty())
            if (QWidget* w = parentWidget()->findChild<QWidget*>(QString::fromStdString(abbinati_.focus)))
                w->setFocus();
        return;
    }
    for (const builder::RigaAbbinamento& r : abbinati_.righe)
        lstNumeriAbbinati_->addItem(QString::fromStdString(r.testo));
}

void FrameAbbinamenti::SuFile() {
    if (abbinati_.righe.empty()) return;
    const config::ReportTesto r = builder::ReportAbbinamenti(parametriAbbinati_, storia_, descrizione_,
                                                             capoAbbinati_.data, capoAbbinati_.numero, abbinati_);
    SalvaReportSuFile(this, sessione_, r.righe(), Q(builder::NomeReportAbbinamenti), DomandaFile::InCalce);
}

void FrameAbbinamenti::NumeriDaGiocare() {
    // The list and the capogioco it was computed for; without a list, the capogioco shown.
    const builder::Capogioco& capo = abbinati_.righe.empty() ? capo_ : capoAbbinati_;
    if (capo.indice == 0) return;
    const builder::ParametriRicerca p = fonte_().parametri;
    auto* f = new FrmCapoAbbinamentiCostruttore(
        sessione_, parentWidget(),
        builder::ComponiNumeriDaGiocare(p.ruoteGioco, capo.data, capo.numero, lunghetta_(), abbinati_));
    f->show();
}

}  // namespace gorgo::screens
