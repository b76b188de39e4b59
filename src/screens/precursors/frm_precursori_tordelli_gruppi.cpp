#include "screens/precursors/frm_precursori_tordelli_gruppi.h"

#include <QCloseEvent>
#include <QFileDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QMenuBar>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>
#include <filesystem>
#include <fstream>
#include <utility>

#include "archives/archivio.h"
#include "archives/regole.h"
#include "config/impostazioni.h"
#include "config/ini.h"
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

QLineEdit* Casella(QWidget* parent, const char* nome, const char* testo, int cifre) {
    auto* t = new QLineEdit(QString::fromUtf8(testo), parent);
    t->setObjectName(nome);
    t->setMaxLength(cifre);
    t->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), t));
    t->setMaximumWidth(40);
    return t;
}

int Valore(const QLineEdit* t) { return t->text().isEmpty() ? 0 : t->text().toInt(); }

QTreeWidget* Lista(QWidget* parent, const char* nome, const QString& tag, const QStringList& teste) {
    auto* l = new QTreeWidget(parent);
    l->setObjectName(nome);
    l->setAccessibleName(tag);
    l->setRootIsDecorated(false);
    l->setUniformRowHeights(true);
    l->setEditTriggers(QAbstractItemView::NoEditTriggers);
    l->setHeaderLabels(teste);
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

const QColor GialloChiaro(0xFF, 0xFF, 0xC0);

}  // namespace

FrmPrecursoriTordelliGruppi::FrmPrecursoriTordelliGruppi(Sessione& sessione, const archives::Archivio& archivio,
                                                         QWidget* parent)
    : QWidget(parent, Qt::Window), sessione_(sessione), archivio_(archivio) {
    setObjectName("frmPrecursoriTordelliGruppi");
    setWindowTitle(
        QStringLiteral("   La scia inversa dei precursori (formazioni numeriche) - Ideato da Sergio Tordelli"));
    setAttribute(Qt::WA_DeleteOnClose);

    auto* principale = new QVBoxLayout(this);
    auto* menu = new QMenuBar(this);
    auto* mnuFile = menu->addMenu(QStringLiteral("File"));
    QAction* mnuFileFormazioni = mnuFile->addAction(QStringLiteral("File Formazioni numeriche..."));
    mnuFileFormazioni->setObjectName("mnuFileFormazioni");
    connect(mnuFileFormazioni, &QAction::triggered, this, [this] {
        // Clears the setting, so that the load asks for a file.
        config::ScriviImpostazione(sessione_.ini, config::sezioni::Options, "FileFormazioni", "");
        chiediFile_ = true;
        CaricaLibreria();
    });
    QAction* mnuEliminaGruppo = mnuFile->addAction(QStringLiteral("Elimina la formazione numerica selezionata..."));
    mnuEliminaGruppo->setObjectName("mnuEliminaGruppo");
    connect(mnuEliminaGruppo, &QAction::triggered, this, &FrmPrecursoriTordelliGruppi::EliminaGruppo);
    principale->setMenuBar(menu);

    auto* corpo = new QHBoxLayout;
    principale->addLayout(corpo);
    auto* sinistra = new QVBoxLayout;
    corpo->addLayout(sinistra, 0);
    sinistra->addWidget(CreaParametri());
    sinistra->addWidget(CreaNumeri());
    sinistra->addStretch();
    auto* centro = new QVBoxLayout;
    corpo->addLayout(centro, 0);
    centro->addWidget(CreaGruppi());

    auto* destra = new QVBoxLayout;
    corpo->addLayout(destra, 1);
    lblDescrizioneStatistica_ = new QLabel(this);
    lblDescrizioneStatistica_->setObjectName("lblDescrizioneStatistica");
    lblDescrizioneVerifica_ = new QLabel(this);
    lblDescrizioneVerifica_->setObjectName("lblDescrizioneVerifica");
    ListView_[0] = Lista(this, "ListView_0", QStringLiteral("Lista precursori"),
                         {"Ambata", "Presenze", "Formazione numerica", "Elemento", "Ricorrenze", "% presenze"});
    ListView_[1] = Lista(this, "ListView_1", QStringLiteral("Formazioni numeriche attualmente presenti"),
                         {"Presenze", "Formazione numerica", "Elemento", "Ambate/ambi"});
    ListView_[3] = Lista(this, "ListView_3", QStringLiteral("Precursori attualmente presenti"),
                         {"Ambata", "Presenze", "Formazione numerica", "Elemento", "Ricorrenze", "% presenze"});
    destra->addWidget(lblDescrizioneStatistica_);
    destra->addWidget(ListView_[0], 3);
    destra->addWidget(lblDescrizioneVerifica_);
    destra->addWidget(new QLabel(QStringLiteral("Formazioni numeriche attualmente presenti"), this));
    destra->addWidget(ListView_[1], 2);
    destra->addWidget(new QLabel(QStringLiteral("Precursori attualmente presenti"), this));
    destra->addWidget(ListView_[3], 2);
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
    connect(cmdCalcola_, &QPushButton::clicked, this, &FrmPrecursoriTordelliGruppi::Calcola);
    connect(cmdStampa_, &QPushButton::clicked, this, &FrmPrecursoriTordelliGruppi::Stampa);
    connect(cmdPrintToFile_, &QPushButton::clicked, this, &FrmPrecursoriTordelliGruppi::PrintToFile);

    resize(1400, 760);
    ApplicaStile(this, sessione_.ini);
    RipristinaPosizione(this, sessione_.ini, "PrecursoriLeft", "PrecursoriTop");
    CaricaLibreria();
}

FrmPrecursoriTordelliGruppi::~FrmPrecursoriTordelliGruppi() = default;

QGroupBox* FrmPrecursoriTordelliGruppi::CreaParametri() {
    auto* fra = new QGroupBox(QStringLiteral("Parametri"), this);
    fra->setObjectName("fraParametri");
    auto* g = new QGridLayout(fra);
    int riga = 0;
    QStringList nomi;
    for (int w = 1; w <= archives::NumeroRuote; ++w) nomi << Q(archives::SigleRuota[static_cast<size_t>(w)]);
    auto* ruote = new QGridLayout;
    CreaCaselle<QCheckBox>(fra, ruote, {.perRiga = 6}, QStringLiteral("chkRuota"), 1, nomi,
                           std::span<QCheckBox*>(chkRuota_.data() + 1, 11));
    const config::CaselleRuote c = config::CaricaRuote(config::LeggiImpostazione(
        sessione_.ini, config::sezioni::Settings, "Ruota", config::Predefinito(config::sezioni::Settings, "Ruota")));
    int scelta = 1;
    for (int w = 11; w >= 1; --w)
        if (c[static_cast<size_t>(w)]) scelta = w;
    chkRuota_[static_cast<size_t>(scelta)]->setChecked(true);
    for (int w = 1; w <= 11; ++w)
        connect(chkRuota_[static_cast<size_t>(w)], &QCheckBox::clicked, this, [this, w] {
            // Exactly one wheel at all times.
            for (int x = 1; x <= 11; ++x) chkRuota_[static_cast<size_t>(x)]->setChecked(x == w);
            config::CaselleRuote r{};
            r[static_cast<size_t>(w)] = true;
            config::ScriviImpostazione(sessione_.ini, config::sezioni::Settings, "Ruota", config::LettereRuote(r));
            PulisciRisultati();
        });
    g->addLayout(ruote, riga++, 0, 1, 4);
    const int32_t N = archivio_.NumeroEstrazioni();
    const QDate a = DataQt(archivio_.DataEstrazione(N - 6, 1));
    DTPickerDa_ = new QDateEdit(a.addYears(-15), fra);
    DTPickerDa_->setObjectName("DTPickerDa");
    DTPickerA_ = new QDateEdit(a, fra);
    DTPickerA_->setObjectName("DTPickerA");
    DTPickerVerifica_ = new QDateEdit(
        DataQt(archivio_.DataEstrazione(config::LeggiIndiciRicerca(sessione_.ini, N).IndiceFine, 1)), fra);
    DTPickerVerifica_->setObjectName("DTPickerVerifica");
    for (QDateEdit* d : {DTPickerDa_, DTPickerA_, DTPickerVerifica_}) {
        d->setDisplayFormat("dd/MM/yyyy");
        d->setCalendarPopup(true);
    }
    for (QDateEdit* d : {DTPickerDa_, DTPickerA_})
        connect(d, &QDateEdit::dateChanged, this, &FrmPrecursoriTordelliGruppi::PulisciRisultati);
    g->addWidget(new QLabel(QStringLiteral("Dal"), fra), riga, 0);
    g->addWidget(DTPickerDa_, riga, 1);
    g->addWidget(new QLabel(QStringLiteral("al"), fra), riga, 2);
    g->addWidget(DTPickerA_, riga++, 3);
    g->addWidget(new QLabel(QStringLiteral("Verifica al"), fra), riga, 0);
    g->addWidget(DTPickerVerifica_, riga++, 1);
    cboQuanti_ = new QComboBox(fra);
    cboQuanti_->setObjectName("cboQuanti");
    cboQuanti_->addItems({"Ambi", "Terni"});
    g->addWidget(new QLabel(QStringLiteral("Ricerca di"), fra), riga, 0);
    g->addWidget(cboQuanti_, riga++, 1);
    txtPrecedenti_ = Casella(fra, "txtPrecedenti", "6", 2);
    txtPresenzeMinime_ = Casella(fra, "txtPresenzeMinime", "2", 2);
    auto* rigaPrec = new QHBoxLayout;
    rigaPrec->addWidget(txtPrecedenti_);
    rigaPrec->addWidget(new QLabel(QStringLiteral("colpi precedenti e considera come minimo"), fra));
    rigaPrec->addWidget(txtPresenzeMinime_);
    rigaPrec->addWidget(new QLabel(QStringLiteral("ricorrenze"), fra));
    g->addLayout(rigaPrec, riga++, 0, 1, 4);
    cboRisultati_ = new QComboBox(fra);
    cboRisultati_->setObjectName("cboRisultati");
    for (int k = 1; k <= MassimoRisultati; ++k) cboRisultati_->addItem(QString::number(k));
    auto* rigaRis = new QHBoxLayout;
    rigaRis->addWidget(new QLabel(QStringLiteral("Considera"), fra));
    rigaRis->addWidget(cboRisultati_);
    rigaRis->addWidget(new QLabel(QStringLiteral("migliori risultati per ogni ambata/ambo"), fra));
    g->addLayout(rigaRis, riga++, 0, 1, 4);
    txtSuccessivi_ = Casella(fra, "txtSuccessivi", "6", 2);
    g->addWidget(new QLabel(QStringLiteral("Colpi successivi"), fra), riga, 0);
    g->addWidget(txtSuccessivi_, riga++, 1);
    cboSceltaelaborazione_ = new QComboBox(fra);
    cboSceltaelaborazione_->setObjectName("cboSceltaelaborazione");
    cboSceltaelaborazione_->addItems({"Analizza precursori delle ambate", "Analizza precursori degli ambi"});
    g->addWidget(cboSceltaelaborazione_, riga++, 0, 1, 4);
    for (QLineEdit* t : {txtPrecedenti_, txtPresenzeMinime_, txtSuccessivi_})
        connect(t, &QLineEdit::returnPressed, this, &FrmPrecursoriTordelliGruppi::Calcola);
    return fra;
}

QGroupBox* FrmPrecursoriTordelliGruppi::CreaNumeri() {
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
    lblSelezionati_ = new QLabel(fra);
    lblSelezionati_->setObjectName("lblSelezionati");
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
    g->addWidget(lblSelezionati_, 9, 0, 1, 10);
    return fra;
}

QGroupBox* FrmPrecursoriTordelliGruppi::CreaGruppi() {
    auto* fra = new QGroupBox(QStringLiteral("Lista formazioni numeriche"), this);
    fra->setObjectName("fraGruppi");
    auto* v = new QVBoxLayout(fra);
    ListView_[2] = Lista(fra, "ListView_2", QStringLiteral("Lista formazioni numeriche"),
                         {"Formazione numerica", "N.", "Elementi", "elementi"});
    ListView_[2]->setMinimumWidth(330);
    v->addWidget(ListView_[2], 1);
    lblFormazioniSelezionate_ = new QLabel(fra);
    lblFormazioniSelezionate_->setObjectName("lblFormazioniSelezionate");
    v->addWidget(lblFormazioniSelezionate_);
    auto* riga = new QHBoxLayout;
    txtElementi_ = Casella(fra, "txtElementi", "", 2);
    auto* cmdAggiorna = new QPushButton(QStringLiteral("Aggiorna"), fra);
    cmdAggiorna->setObjectName("cmdAggiorna");
    riga->addWidget(new QLabel(QStringLiteral("Seleziona formazioni composte da"), fra));
    riga->addWidget(txtElementi_);
    riga->addWidget(new QLabel(QStringLiteral("numeri"), fra));
    riga->addWidget(cmdAggiorna);
    v->addLayout(riga);
    auto* cmdSelezionaTutto = new QPushButton(QStringLiteral("Selez./deselez.tutto"), fra);
    cmdSelezionaTutto->setObjectName("cmdSelezionaTutto");
    v->addWidget(cmdSelezionaTutto);
    connect(cmdAggiorna, &QPushButton::clicked, this, [this] {
        // Ticks the groups of that size.
        const int n = Valore(txtElementi_);
        for (int r = 0; r < ListView_[2]->topLevelItemCount(); ++r) {
            QTreeWidgetItem* it = ListView_[2]->topLevelItem(r);
            const int g = it->data(0, Qt::UserRole).toInt();
            if ((*libreria_)[static_cast<size_t>(g)].dimensione == n) it->setCheckState(0, Qt::Checked);
        }
    });
    connect(cmdSelezionaTutto, &QPushButton::clicked, this, [this] {
        for (int r = 0; r < ListView_[2]->topLevelItemCount(); ++r) {
            QTreeWidgetItem* it = ListView_[2]->topLevelItem(r);
            it->setCheckState(0, it->checkState(0) == Qt::Checked ? Qt::Unchecked : Qt::Checked);
        }
    });
    connect(ListView_[2], &QTreeWidget::itemChanged, this, [this] { AggiornaSelezionate(); });

    // The browser of one group's elements, opened by a double click on its row.
    fraTag_ = new QGroupBox(fra);
    fraTag_->setObjectName("fraTag");
    auto* t = new QGridLayout(fraTag_);
    lblNomeFormazione_ = new QLabel(fraTag_);
    lblNomeFormazione_->setObjectName("lblNomeFormazione");
    lblnElemento_ = new QLabel(fraTag_);
    lblnElemento_->setObjectName("lblnElemento");
    txtTag_ = new QLineEdit(fraTag_);
    txtTag_->setObjectName("txtTag");
    txtTag_->setReadOnly(true);
    auto* cmdProx = new QPushButton(QStringLiteral(">"), fraTag_);
    cmdProx->setObjectName("cmdProx");
    t->addWidget(lblNomeFormazione_, 0, 0, 1, 2);
    t->addWidget(new QLabel(QStringLiteral("Elem. n."), fraTag_), 1, 0);
    t->addWidget(lblnElemento_, 1, 1);
    t->addWidget(txtTag_, 2, 0);
    t->addWidget(cmdProx, 2, 1);
    fraTag_->setVisible(false);
    v->addWidget(fraTag_);
    connect(ListView_[2], &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* it) {
        gruppoAperto_ = it->data(0, Qt::UserRole).toInt();
        elementoAperto_ = 0;
        fraTag_->setVisible(true);
        MostraElemento();
    });
    connect(cmdProx, &QPushButton::clicked, this, [this] {
        if (gruppoAperto_ < 0) return;
        const auto& el = (*libreria_)[static_cast<size_t>(gruppoAperto_)].Elementi;
        elementoAperto_ = el.empty() ? 0 : (elementoAperto_ + 1) % static_cast<int>(el.size());
        MostraElemento();
    });

    // The formation file as text.
    auto* cmdVediFormazioni = new QPushButton(QStringLiteral("Vedi file formazioni"), fra);
    cmdVediFormazioni->setObjectName("cmdVediFormazioni");
    v->addWidget(cmdVediFormazioni);
    fraVediFormazioni_ = new QGroupBox(fra);
    fraVediFormazioni_->setObjectName("fraVediFormazioni");
    auto* vf = new QVBoxLayout(fraVediFormazioni_);
    txtFormazioni_ = new QPlainTextEdit(fraVediFormazioni_);
    txtFormazioni_->setObjectName("txtFormazioni");
    txtFormazioni_->setReadOnly(true);
    auto* cmdEsc = new QPushButton(QStringLiteral("Chiudi"), fraVediFormazioni_);
    cmdEsc->setObjectName("cmdEscVediiFormazioni");
    vf->addWidget(txtFormazioni_);
    vf->addWidget(cmdEsc);
    fraVediFormazioni_->setVisible(false);
    v->addWidget(fraVediFormazioni_);
    connect(cmdVediFormazioni, &QPushButton::clicked, this, [this] {
        std::ifstream in(fileLibreria_, std::ios::binary);
        txtFormazioni_->setPlainText(Q(std::string((std::istreambuf_iterator<char>(in)), {})));
        fraVediFormazioni_->setVisible(true);
    });
    connect(cmdEsc, &QPushButton::clicked, fraVediFormazioni_, &QWidget::hide);
    return fra;
}

void FrmPrecursoriTordelliGruppi::MostraElemento() {
    const GruppoFormazioni& g = (*libreria_)[static_cast<size_t>(gruppoAperto_)];
    lblNomeFormazione_->setText(Q(g.Nome));
    lblnElemento_->setText(QString::number(elementoAperto_ + 1));
    txtTag_->setText(g.Elementi.empty() ? QString()
                                        : Q(TestoElemento(g.Elementi[static_cast<size_t>(elementoAperto_)])));
}

void FrmPrecursoriTordelliGruppi::CaricaLibreria() {
    std::string file = config::LeggiImpostazione(sessione_.ini, config::sezioni::Options, "FileFormazioni", "");
    const bool chiesto = std::exchange(chiediFile_, false);
    if (file.empty() && !chiesto) file = (sessione_.PercorsoProgramma / "Formazioni.txt").string();
    if (file.empty() || !std::filesystem::is_regular_file(file)) {
        const QString scelto = QFileDialog::getOpenFileName(this, QStringLiteral("Apri il file formazioni numeriche"),
                                                            Q(sessione_.PercorsoProgramma.string()),
                                                            QStringLiteral("File di testo (*.Txt *.txt)"));
        file = scelto.toStdString();
        if (!file.empty()) config::ScriviImpostazione(sessione_.ini, config::sezioni::Options, "FileFormazioni", file);
    }
    EsitoLibreria l;
    if (file.empty()) {
        l.gruppi = GruppiPredefiniti();
    } else {
        std::ifstream in(file, std::ios::binary);
        l = precursors::CaricaLibreria(std::string((std::istreambuf_iterator<char>(in)), {}));
    }
    fileLibreria_ = file;
    libreria_ = std::make_shared<const std::vector<GruppoFormazioni>>(std::move(l.gruppi));
    const QSignalBlocker blocca(ListView_[2]);
    ListView_[2]->clear();
    for (size_t g = 0; g < libreria_->size(); ++g) {
        const auto t = (*libreria_)[g].testo(static_cast<int>(g + 1));
        auto* it = new QTreeWidgetItem(ListView_[2], {Q(t[0]), Q(t[1]), Q(t[2]), Q(t[3])});
        it->setCheckState(0, Qt::Unchecked);
        it->setData(0, Qt::UserRole, static_cast<int>(g));
        it->setToolTip(0, Q((*libreria_)[g].campione));
    }
    for (int c = 0; c < 4; ++c) ListView_[2]->resizeColumnToContents(c);
    fraTag_->setVisible(false);
    gruppoAperto_ = -1;
    AggiornaSelezionate();
    if (!l.errore.vuoto()) MostraMessaggio(this, l.errore);
}

void FrmPrecursoriTordelliGruppi::EliminaGruppo() {
    QTreeWidgetItem* it = ListView_[2]->currentItem();
    if (!it || fileLibreria_.empty()) return;
    const std::string nome = (*libreria_)[static_cast<size_t>(it->data(0, Qt::UserRole).toInt())].Nome;
    std::string testo;
    {
        std::ifstream in(fileLibreria_, std::ios::binary);
        testo.assign(std::istreambuf_iterator<char>(in), {});
    }
    EsitoFileGruppi e = precursors::EliminaGruppo(testo, nome);
    if (!e.domanda.vuoto()) {
        if (Chiedi(this, e.domanda, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) != QMessageBox::Yes) return;
        e = precursors::EliminaGruppo(testo, nome, true);
    }
    if (!e.errore.vuoto()) {
        MostraMessaggio(this, e.errore);
        return;
    }
    {
        std::ofstream out(fileLibreria_, std::ios::binary | std::ios::trunc);
        out << e.testo;
    }
    MostraMessaggio(this, e.esito);
    CaricaLibreria();
}

void FrmPrecursoriTordelliGruppi::AggiornaSelezionate() {
    int quante = 0;
    for (int r = 0; r < ListView_[2]->topLevelItemCount(); ++r)
        quante += ListView_[2]->topLevelItem(r)->checkState(0) == Qt::Checked;
    lblFormazioniSelezionate_->setText(QStringLiteral("Formazioni selezionate: %1").arg(quante));
}

void FrmPrecursoriTordelliGruppi::AggiornaNumero(int n) {
    QCheckBox* c = chkNumero_[static_cast<size_t>(n)];
    QPalette p = c->palette();
    p.setColor(QPalette::Window, c->isChecked() ? GialloChiaro : palette().color(QPalette::Window));
    c->setPalette(p);
    int quanti = 0;
    for (int x = 1; x <= 90; ++x)
        quanti += chkNumero_[static_cast<size_t>(x)] && chkNumero_[static_cast<size_t>(x)]->isChecked();
    lblSelezionati_->setText(QStringLiteral("Selezionati: %1").arg(quanti));
}

void FrmPrecursoriTordelliGruppi::PulisciRisultati() {
    for (size_t l : {0u, 1u, 3u}) ListView_[l]->clear();
    lblDescrizioneStatistica_->clear();
    lblDescrizioneVerifica_->clear();
}

std::optional<int32_t> FrmPrecursoriTordelliGruppi::Indice(QDateEdit* data, bool precedente) {
    const archives::RisultatoData d =
        archives::ControllaData(data->date().toString("dd/MM/yyyy").toStdString(), archivio_, precedente);
    if (d.ErroreData) {
        MostraMessaggio(this, d.messaggio);
        return std::nullopt;
    }
    const QSignalBlocker blocca(data);
    data->setDate(DataQt(d.DataTrovata.empty() ? archivio_.DataEstrazione(d.IndiceTrovato, 1) : d.DataTrovata));
    return d.IndiceTrovato;
}

void FrmPrecursoriTordelliGruppi::Calcola() {
    if (elaborazione_) return;
    PulisciRisultati();
    ParametriGruppi p;
    const std::optional<int32_t> da = Indice(DTPickerDa_, false);
    if (!da) return;
    const std::optional<int32_t> a = Indice(DTPickerA_, true);
    if (!a) return;
    const std::optional<int32_t> v = Indice(DTPickerVerifica_, true);
    if (!v) return;
    p.Inizio = *da;
    p.Fine = *a;
    p.IndiceVerifica = *v;
    p.Precedenti = Valore(txtPrecedenti_);
    p.Successivi = Valore(txtSuccessivi_);
    p.PresenzeMinime = Valore(txtPresenzeMinime_);
    p.Risultati = cboRisultati_->currentIndex() + 1;
    p.sorte = cboSceltaelaborazione_->currentIndex() == 1 ? Sorte::Ambi : Sorte::Ambate;
    for (int n = 1; n <= 90; ++n)
        p.Considerato[static_cast<size_t>(n)] = chkNumero_[static_cast<size_t>(n)]->isChecked();
    for (int r = 0; r < ListView_[2]->topLevelItemCount(); ++r)
        if (ListView_[2]->topLevelItem(r)->checkState(0) == Qt::Checked)
            p.Gruppi.push_back(ListView_[2]->topLevelItem(r)->data(0, Qt::UserRole).toInt());
    std::sort(p.Gruppi.begin(), p.Gruppi.end());
    int ruota = 1;
    for (int w = 1; w <= 11; ++w)
        if (chkRuota_[static_cast<size_t>(w)]->isChecked()) ruota = w;
    auto fonte = std::make_shared<FonteEstrazioni>(FonteEstrazioni::Lotto(*archivio_.Storia(), ruota));
    auto libreria = libreria_;
    auto risultato = std::make_shared<EsitoGruppi>();
    elaborazione_ = true;
    Elaborazione::Avvia(
        this, sessione_, QStringLiteral("Analisi formazioni numeriche..."),
        [p, fonte, libreria, risultato](std::stop_token stop, const Progresso& progresso) {
            Avanzamento av{stop, [&progresso](int v, int m) { progresso("Analisi formazioni numeriche...", v, m); }};
            *risultato = AnalisiGruppi(p, *fonte, *libreria, av);
        },
        [this, risultato, fonte, p](bool fermato) {
            elaborazione_ = false;
            if (!fermato) {
                successiviEsito_ = p.Successivi;
                MostraEsito(*risultato, *fonte);
            }
            emit analisiTerminata();
        });
}

void FrmPrecursoriTordelliGruppi::MostraEsito(const EsitoGruppi& e, const FonteEstrazioni& fonte) {
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
    QStringList teste;
    for (const std::string& t : e.titoli) teste << Q(t);
    ListView_[0]->setHeaderLabels(teste);
    ListView_[3]->setHeaderLabels(teste);
    auto riempi = [](QTreeWidget* l, const std::vector<RigaGruppi>& righe) {
        for (const RigaGruppi& r : righe) {
            QStringList t;
            for (const std::string& x : r.testo) t << Q(x);
            new QTreeWidgetItem(l, t);
        }
    };
    riempi(ListView_[0], e.lista);
    riempi(ListView_[3], e.presenti);
    for (const RigaFormazionePresente& r : e.formazioni)
        new QTreeWidgetItem(ListView_[1], {Q(r.testo[0]), Q(r.testo[1]), Q(r.testo[2]), Q(r.testo[3])});
    for (size_t l : {0u, 1u, 3u})
        for (int c = 0; c < ListView_[l]->columnCount(); ++c) ListView_[l]->resizeColumnToContents(c);
    lblDescrizioneStatistica_->setText(Q(e.descrizioneStatistica));
    lblDescrizioneVerifica_->setText(Q(e.descrizioneVerifica));
    ProgressBar1_->setValue(ProgressBar1_->maximum());
    cmdStampa_->setEnabled(true);
    cmdPrintToFile_->setEnabled(true);
}

void FrmPrecursoriTordelliGruppi::Stampa() {
    if (ListView_[0]->topLevelItemCount() == 0 || !fonteEsito_) return;
    std::vector<config::RigaTesto> righe;
    for (std::string& r : ReportGruppi(esito_, *fonteEsito_, successiviEsito_)) righe.push_back({std::move(r)});
    OpzioniStampa o;
    StampaReport(this, righe, o);
}

void FrmPrecursoriTordelliGruppi::PrintToFile() {
    if (ListView_[0]->topLevelItemCount() == 0 || !fonteEsito_) return;
    std::vector<config::RigaTesto> righe;
    for (std::string& r : ReportGruppi(esito_, *fonteEsito_, successiviEsito_)) righe.push_back({std::move(r)});
    SalvaReportSuFile(this, sessione_, righe, Q(NomeFileReportGruppi(*fonteEsito_)), DomandaFile::Sovrascrivi);
}

void FrmPrecursoriTordelliGruppi::closeEvent(QCloseEvent* e) {
    if (elaborazione_) {
        e->ignore();
        return;
    }
    SalvaPosizione(this, sessione_.ini, "PrecursoriLeft", "PrecursoriTop");
    std::string numeri;
    for (int n = 1; n <= 90; ++n) numeri += chkNumero_[static_cast<size_t>(n)]->isChecked() ? '1' : '0';
    config::ScriviImpostazione(sessione_.ini, config::sezioni::Restrizioni, "NumeriTordelli", numeri);
    e->accept();
}

}  // namespace gorgo::screens
