#include "screens/precursors/frm_precursori_saruni.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

#include "archives/archivio.h"
#include "screens/common/caselle.h"
#include "screens/common/messaggi.h"

namespace gorgo::screens {

using namespace precursors;

namespace {

QLineEdit* Casella(QWidget* parent, const QString& nome, const QString& testo, int cifre) {
    auto* t = new QLineEdit(testo, parent);
    t->setObjectName(nome);
    t->setMaxLength(cifre);
    t->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), t));
    t->setMaximumWidth(40);
    return t;
}

int Valore(const QLineEdit* t) { return t->text().isEmpty() ? 0 : t->text().toInt(); }

}  // namespace

FrmPrecursoriSaruni::FrmPrecursoriSaruni(Sessione& sessione, const archives::Archivio& archivio, QWidget* parent)
    : FrmPrecursoriTordelli(sessione, archivio, Gioco::Lotto, "frmPrecursoriSaruni",
                            QStringLiteral("   La scia inversa dei precursori - Ideato da Sergio Tordelli - "
                                           "Personalizzazione Ciro Saruni"),
                            "PrecursoriLeft", "PrecursoriTop", parent) {
    // No formation mode here.
    fraFormazioni_->hide();
    auto* fra = new QGroupBox(QStringLiteral("Personalizzazione"), this);
    fra->setObjectName("fraSaruni");
    auto* g = new QGridLayout(fra);
    CreaCaselle<QRadioButton>(fra, g, {0, 0, 2}, QStringLiteral("optPeriodo"), 0, {"Date scelte", "Periodo in anni"},
                              optPeriodo_);
    optPeriodo_[0]->setChecked(true);
    txtAnni_ = Casella(fra, "txtAnni", "15", 2);
    txtAnni_->setEnabled(false);
    g->addWidget(txtAnni_, 0, 2);
    g->addWidget(new QLabel(QStringLiteral("Anni"), fra), 0, 3);
    cboSceltaTipoPrecursori_ = new QComboBox(fra);
    cboSceltaTipoPrecursori_->setObjectName("cboSceltaTipoPrecursori");
    cboSceltaTipoPrecursori_->addItems({"Ricerca precursori formati da NUMERI", "Ricerca precursori formati da AMBI"});
    g->addWidget(cboSceltaTipoPrecursori_, 1, 0, 1, 6);
    chkPosDet_ = new QCheckBox(QStringLiteral("Posizione --- --->"), fra);
    chkPosDet_->setObjectName("chkPosDet");
    g->addWidget(chkPosDet_, 2, 0);
    auto* posizioni = new QGridLayout;
    CreaCaselle<QCheckBox>(fra, posizioni, {}, QStringLiteral("chkPosizione"), 1, {"1", "2", "3", "4", "5"},
                           std::span<QCheckBox*>(chkPosizione_.data() + 1, 5));
    g->addLayout(posizioni, 2, 1, 1, 5);
    chkAmbiAdiacenti_ = new QCheckBox(QStringLiteral("Solo ambi adiacenti o uniti"), fra);
    chkAmbiAdiacenti_->setObjectName("chkAmbiAdiacenti");
    chkAmbiAdiacenti_->setEnabled(false);
    g->addWidget(chkAmbiAdiacenti_, 3, 0, 1, 6);
    for (int u = 1; u <= 5; ++u) chkPosizione_[static_cast<size_t>(u)]->setEnabled(false);
    connect(optPeriodo_[1], &QRadioButton::toggled, this, [this](bool anni) {
        txtAnni_->setEnabled(anni);
        DTPickerDa_->setEnabled(!anni);
        PulisciRisultati();
    });
    connect(cboSceltaTipoPrecursori_, &QComboBox::currentIndexChanged, this, [this](int i) {
        if (i == 0) chkAmbiAdiacenti_->setChecked(false);
        chkAmbiAdiacenti_->setEnabled(i == 1);
        PulisciRisultati();
    });
    connect(chkPosDet_, &QCheckBox::toggled, this, [this](bool on) {
        for (int u = 1; u <= 5; ++u) chkPosizione_[static_cast<size_t>(u)]->setEnabled(on);
        PulisciRisultati();
    });
    for (int u = 1; u <= 5; ++u)
        connect(chkPosizione_[static_cast<size_t>(u)], &QCheckBox::toggled, this, [this] { PulisciRisultati(); });
    connect(chkAmbiAdiacenti_, &QCheckBox::toggled, this, [this] { PulisciRisultati(); });
    sinistra_->insertWidget(1, fra);

    // The forecast panel.
    auto* fraPrevisioni = new QGroupBox(QStringLiteral("Previsioni"), this);
    fraPrevisioni->setObjectName("fraPrevisioni");
    auto* p = new QGridLayout(fraPrevisioni);
    for (int k = 0; k < 3; ++k)
        txtNum_[static_cast<size_t>(k)] =
            Casella(fraPrevisioni, QStringLiteral("txtNum_%1").arg(k), k == 2 ? "15" : "", 2);
    lblDescrizioneNumeri_ = new QLabel(QStringLiteral("Ambata selezionata"), fraPrevisioni);
    lblDescrizioneNumeri_->setObjectName("lblDescrizioneNumeri");
    p->addWidget(lblDescrizioneNumeri_, 0, 0);
    p->addWidget(txtNum_[0], 0, 1);
    p->addWidget(txtNum_[1], 0, 2);
    p->addWidget(new QLabel(QStringLiteral("verifica"), fraPrevisioni), 0, 3);
    p->addWidget(txtNum_[2], 0, 4);
    p->addWidget(new QLabel(QStringLiteral("per anni"), fraPrevisioni), 0, 5);
    auto* cmdPrevisione = new QPushButton(QStringLiteral("Previsione"), fraPrevisioni);
    cmdPrevisione->setObjectName("cmdPrevisione");
    auto* cmdChiudi = new QPushButton(QStringLiteral("Chiudi"), fraPrevisioni);
    cmdChiudi->setObjectName("cmdChiudi");
    p->addWidget(cmdPrevisione, 1, 0, 1, 3);
    p->addWidget(cmdChiudi, 1, 3, 1, 3);
    lstPrevisioni_ = new QTreeWidget(fraPrevisioni);
    lstPrevisioni_->setObjectName("lstPrevisioni");
    lstPrevisioni_->setAccessibleName(QStringLiteral("Precursori attualmente presenti"));
    lstPrevisioni_->setRootIsDecorated(false);
    lstPrevisioni_->setHeaderLabels({"Num", "Rit.sto", "Rit.att", "Rapp. %"});
    QFont f(QStringLiteral("Monospace"));
    f.setStyleHint(QFont::TypeWriter);
    lstPrevisioni_->setFont(f);
    p->addWidget(lstPrevisioni_, 2, 0, 1, 6);
    fraPrevisioni->hide();
    sinistra_->insertWidget(3, fraPrevisioni);
    connect(cmdPrevisione, &QPushButton::clicked, this, &FrmPrecursoriSaruni::Previsione);
    connect(cmdChiudi, &QPushButton::clicked, fraPrevisioni, &QWidget::hide);
    // A row of the forecast list fills the panel: one number, or two joined by "-".
    connect(ListView_[1], &QTreeWidget::itemClicked, this, [this, fraPrevisioni](QTreeWidgetItem* r) {
        const QStringList n = r->text(0).split('-');
        txtNum_[0]->setText(n.value(0).trimmed());
        txtNum_[1]->setText(n.size() > 1 ? n.value(1).trimmed() : QString());
        lblDescrizioneNumeri_->setText(n.size() > 1 ? QStringLiteral("Ambo selezionato")
                                                    : QStringLiteral("Ambata selezionata"));
        fraPrevisioni->show();
    });
}

bool FrmPrecursoriSaruni::PreparaPeriodo() {
    if (!optPeriodo_[1]->isChecked()) return true;
    const int anni = Valore(txtAnni_);
    if (anni == 0) {
        MostraMessaggio(this, {"Inserire il n. di anni desiderato", "Errore", archives::Icona::Esclamazione});
        txtAnni_->setFocus();
        return false;
    }
    const QSignalBlocker blocca(DTPickerDa_);
    DTPickerDa_->setDate(DTPickerA_->date().addYears(-anni));
    return true;
}

FrmPrecursoriTordelli::Procedura FrmPrecursoriSaruni::ProceduraPersonale(const ParametriPrecursori& p) {
    ParametriSaruni s;
    s.base = p;
    s.PosizioneDeterminata = chkPosDet_->isChecked();
    for (int u = 1; u <= 5; ++u)
        s.Posizioni[static_cast<size_t>(u)] = chkPosizione_[static_cast<size_t>(u)]->isChecked();
    s.Tipo = cboSceltaTipoPrecursori_->currentIndex() == 1 ? TipoPrecursori::Ambi : TipoPrecursori::Numeri;
    s.AmbiAdiacenti = chkAmbiAdiacenti_->isChecked();
    return [s](const FonteEstrazioni& f, const Avanzamento& av) { return AnalisiSaruni(s, f, av); };
}

void FrmPrecursoriSaruni::Previsione() {
    const int anni = Valore(txtNum_[2]);
    const std::optional<int32_t> fine = Indice(DTPickerA_, true);
    if (!fine) return;
    int32_t inizio = 1;
    if (anni > 0) {
        QDateEdit da;
        da.setDate(DTPickerA_->date().addYears(-anni));
        const std::optional<int32_t> i = Indice(&da, false);
        if (!i) return;
        inizio = *i;
    }
    const int b = txtNum_[1]->text().isEmpty() ? 0 : Valore(txtNum_[1]);
    const EsitoPrevisione e = PrevisioneSaruni(Fonte(), inizio, *fine, anni, Valore(txtNum_[0]),
                                               txtNum_[1]->text().isEmpty() ? 0 : (b == 0 ? -1 : b));
    if (!e.errore.vuoto()) {
        MostraMessaggio(this, e.errore);
        if (auto* w = findChild<QWidget*>(QString::fromStdString(e.focus))) w->setFocus();
        return;
    }
    if (!e.avviso.vuoto()) MostraMessaggio(this, e.avviso);
    lblDescrizioneNumeri_->setText(QString::fromStdString(e.descrizione));
    lstPrevisioni_->clear();
    for (const RigaCompagno& r : e.righe)
        new QTreeWidgetItem(lstPrevisioni_, {QString::fromStdString(r.testo[0]), QString::fromStdString(r.testo[1]),
                                             QString::fromStdString(r.testo[2]), QString::fromStdString(r.testo[3])});
    for (int c = 0; c < 4; ++c) lstPrevisioni_->resizeColumnToContents(c);
}

}  // namespace gorgo::screens
