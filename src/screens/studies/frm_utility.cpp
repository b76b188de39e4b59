#include "screens/studies/frm_utility.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

#include "config/report_testo.h"
#include "screens/common/aiuto.h"
#include "screens/common/messaggi.h"
#include "screens/common/stile.h"
#include "screens/common/twips.h"
#include "screens/studies/liste_studi.h"
#include "studies/punti_incogniti.h"
#include "studies/somma_cinquine.h"

namespace gorgo::screens {

using namespace gorgo::studies;

namespace {

std::vector<std::string> Righe(const QListWidget* l) {
    std::vector<std::string> r;
    for (int k = 0; k < l->count(); ++k) r.push_back(l->item(k)->text().toStdString());
    return r;
}

void Riempi(QListWidget* l, const std::vector<std::string>& righe) {
    l->clear();
    for (const std::string& r : righe) l->addItem(Q(r));
}

}  // namespace

FrmUtility::FrmUtility(Sessione& sessione, const archives::Archivio& archivio, QWidget* parent)
    : QWidget(parent, Qt::Window), sessione_(sessione), archivio_(archivio), storia_(archivio.Storia()) {
    setObjectName("frmUtility");
    setWindowTitle(QStringLiteral("Utility somma cinquine"));
    setAttribute(Qt::WA_DeleteOnClose);
    CreaControlli();
    ApplicaStile(this, sessione_.ini);
    RipristinaPosizione(this, sessione_.ini, "UtilityLeft", "UtilityTop");
    MostraEstrazione(storia_->NumeroEstrazioni());
}

void FrmUtility::CreaControlli() {
    auto* principale = new QHBoxLayout(this);
    auto* sinistra = new QVBoxLayout;
    auto* riga = new QHBoxLayout;
    DTPickerEstrazione_ = CreaDataEstrazione(this, "DTPickerEstrazione");
    connect(DTPickerEstrazione_, &QDateEdit::editingFinished, this, [this] {
        const auto r = storia_->CercaIndice(*archives::Data::daTesto(TestoData(DTPickerEstrazione_)), false);
        MostraEstrazione(r ? r->IndiceTrovato : storia_->NumeroEstrazioni());
    });
    auto* cmdPrecedente = new QPushButton(QStringLiteral("-1 Estrazione"), this);
    cmdPrecedente->setObjectName("cmdPrecedente");
    auto* cmdSuccessiva = new QPushButton(QStringLiteral("+1 Estrazione"), this);
    cmdSuccessiva->setObjectName("cmdSuccessiva");
    auto* cmdUltima = new QPushButton(QStringLiteral("Ultima estrazione"), this);
    cmdUltima->setObjectName("cmdUltima");
    connect(cmdPrecedente, &QPushButton::clicked, this, [this] { MostraEstrazione(indice_ - 1); });
    connect(cmdSuccessiva, &QPushButton::clicked, this, [this] { MostraEstrazione(indice_ + 1); });
    connect(cmdUltima, &QPushButton::clicked, this, [this] { MostraEstrazione(storia_->NumeroEstrazioni()); });
    for (QWidget* w : std::initializer_list<QWidget*>{DTPickerEstrazione_, cmdPrecedente, cmdSuccessiva, cmdUltima})
        riga->addWidget(w);
    sinistra->addLayout(riga);

    auto* fraGriglia = new QGroupBox(this);
    auto* g = new QGridLayout(fraGriglia);
    for (int w = 1; w <= 12; ++w) {
        if (w <= 11) {
            auto* sigla = new QLabel(Q(archives::SigleRuota[static_cast<size_t>(w)]), fraGriglia);
            sigla->setObjectName(QStringLiteral("lblSiglaRuota_%1").arg(w));
            g->addWidget(sigla, w, 0);
            for (int k = 1; k <= 5; ++k) {
                auto* l = new QLabel(fraGriglia);
                l->setObjectName(QStringLiteral("lblNumero_%1").arg((w - 1) * 5 + k));
                l->setFrameShape(QFrame::Box);
                l->setAlignment(Qt::AlignCenter);
                l->setMinimumWidth(30);
                g->addWidget(l, w, k);
                lblNumero_[static_cast<size_t>(w)][static_cast<size_t>(k)] = l;
            }
        } else {
            g->addWidget(new QLabel(QStringLiteral("Cinquina"), fraGriglia), w, 0);
            for (int k = 1; k <= 5; ++k) {
                auto* t = new QLineEdit(fraGriglia);
                t->setObjectName(QStringLiteral("txtNumero_%1").arg(k));
                t->setMaxLength(2);
                t->setFixedWidth(34);
                t->setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9]*"), t));
                g->addWidget(t, w, k);
                txtNumero_[static_cast<size_t>(k)] = t;
            }
        }
        auto* b = new QPushButton(QStringLiteral(">"), fraGriglia);
        b->setObjectName(QStringLiteral("cmdCinquina_%1").arg(w));
        b->setFixedWidth(28);
        connect(b, &QPushButton::clicked, this, [this, w] { Cinquina(w); });
        g->addWidget(b, w, 6);
    }
    sinistra->addWidget(fraGriglia);
    auto* rigaSomma = new QHBoxLayout;
    lblSomma_ = new QLabel(QStringLiteral("Somma (0 = tutte)"), this);
    lblSomma_->setObjectName("lblSomma");
    txtSomma_ = new QLineEdit(QStringLiteral("0"), this);
    txtSomma_->setObjectName("txtSomma");
    txtSomma_->setMaxLength(2);
    txtSomma_->setFixedWidth(40);
    txtSomma_->setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9]*"), txtSomma_));
    auto* cmdSomma = new QPushButton(QStringLiteral("Somma"), this);
    cmdSomma->setObjectName("cmdSomma");
    connect(cmdSomma, &QPushButton::clicked, this, &FrmUtility::Somma);
    rigaSomma->addWidget(lblSomma_);
    rigaSomma->addWidget(txtSomma_);
    rigaSomma->addWidget(cmdSomma);
    rigaSomma->addStretch();
    sinistra->addLayout(rigaSomma);
    // The frame of the verification period stands on the screen; no procedure reads it.
    auto* fraPeriodo = new QGroupBox(QStringLiteral("Periodo di verifica"), this);
    auto* gp = new QHBoxLayout(fraPeriodo);
    DTPickerDa_ = CreaDataEstrazione(fraPeriodo, "DTPickerDa");
    DTPickerA_ = CreaDataEstrazione(fraPeriodo, "DTPickerA");
    gp->addWidget(DTPickerDa_);
    gp->addWidget(DTPickerA_);
    sinistra->addWidget(fraPeriodo);
    sinistra->addStretch();
    principale->addLayout(sinistra);

    auto* destra = new QGridLayout;
    lstOutput_ = new QListWidget(this);
    lstOutput_->setObjectName("lstOutput");
    lstConvergenze_ = new QListWidget(this);
    lstConvergenze_->setObjectName("lstConvergenze");
    QFont f = lstOutput_->font();
    f.setFamily(QStringLiteral("Courier New"));
    f.setStyleHint(QFont::Monospace);
    lstOutput_->setFont(f);
    lstConvergenze_->setFont(f);
    destra->addWidget(lstOutput_, 0, 0);
    destra->addWidget(lstConvergenze_, 0, 1);
    auto* cmdConvergenze = new QPushButton(QStringLiteral("Convergenze"), this);
    cmdConvergenze->setObjectName("cmdConvergenze");
    connect(cmdConvergenze, &QPushButton::clicked, this, &FrmUtility::Convergenze);
    destra->addWidget(cmdConvergenze, 1, 1);
    auto* pulsanti = new QHBoxLayout;
    const auto pulsante = [&](const char* nome, const QString& testo, bool conv, bool stampa) {
        auto* b = new QPushButton(testo, this);
        b->setObjectName(nome);
        connect(b, &QPushButton::clicked, this, [this, conv, stampa] { Report(conv, stampa); });
        pulsanti->addWidget(b);
    };
    pulsante("cmdStampaCinquine", QStringLiteral("Stampa cinquine"), false, true);
    pulsante("cmdPrintToFileCinquine", QStringLiteral("Cinquine su file"), false, false);
    pulsante("cmdStampa", QStringLiteral("Stampa convergenze"), true, true);
    pulsante("cmdPrintToFile", QStringLiteral("Convergenze su file"), true, false);
    auto* cmdAiuto = new QPushButton(QStringLiteral("Aiuto"), this);
    cmdAiuto->setObjectName("cmdAiuto");
    connect(cmdAiuto, &QPushButton::clicked, this,
            [this] { MostraAiuto(this, sessione_, QStringLiteral("[Utility somma cinquine]")); });
    pulsanti->addWidget(cmdAiuto);
    destra->addLayout(pulsanti, 2, 0, 1, 2);
    principale->addLayout(destra, 1);
}

void FrmUtility::MostraEstrazione(int32_t indice) {
    storia_ = archivio_.Storia();
    indice_ = std::clamp(indice, 1, storia_->NumeroEstrazioni());
    DTPickerEstrazione_->setDate(DataQt(storia_->DataEstrazione(indice_)));
    DTPickerA_->setDate(DTPickerEstrazione_->date());
    const archives::RecordEstrazione& r = (*storia_)[indice_];
    for (int w = 1; w <= 11; ++w)
        for (int k = 1; k <= 5; ++k) {
            const int n = r.Numero(w, k);
            lblNumero_[static_cast<size_t>(w)][static_cast<size_t>(k)]->setText(
                n >= 1 && n <= 90 ? QStringLiteral("%1").arg(n, 2, 10, QChar('0')) : QStringLiteral("--"));
        }
}

void FrmUtility::Cinquina(int indice) {
    std::array<int, 5> n{};
    for (int k = 1; k <= 5; ++k)
        n[static_cast<size_t>(k - 1)] =
            indice <= 11 ? (*storia_)[indice_].Numero(indice, k) : txtNumero_[static_cast<size_t>(k)]->text().toInt();
    const EsitoCinquine e = CinquineSpostate(n);
    if (!e.errore.vuoto()) {
        MostraMessaggio(this, e.errore);
        return;
    }
    coda_ = indice <= 11 ? CodaTitolo(0, indice) : " (+1 <--> +90)";
    Riempi(lstOutput_, e.righe);
}

void FrmUtility::Somma() {
    const int s = txtSomma_->text().toInt();
    const EsitoCinquine e = CinquineSomma((*storia_)[indice_], s);
    if (!e.errore.vuoto()) {
        MostraMessaggio(this, e.errore);
        txtSomma_->setFocus();
        return;
    }
    coda_ = CodaTitolo(s, 0);
    lblSomma_->setStyleSheet("color: #800000;");  // 0x000080, red in the low byte
    Riempi(lstOutput_, e.righe);
}

void FrmUtility::Convergenze() {
    if (lstOutput_->count() == 0) return;
    Riempi(lstConvergenze_, studies::Convergenze(Righe(lstOutput_)));
}

void FrmUtility::Report(bool convergenze, bool stampa) {
    const QListWidget* l = convergenze ? lstConvergenze_ : lstOutput_;
    const std::string titolo = stampa ? (convergenze ? "Converg. su cinquine " : "Stampa cinquine ")
                                      : (convergenze ? "Convergenze su cinquine " : "Cinquine ");
    const config::ReportTesto r = ReportUtility(titolo, storia_->DataEstrazione(indice_), coda_, Righe(l));
    OpzioniStampa o;
    o.punti = 12;
    if (stampa)
        StampaStudio(this, r, l->count() == 0, o);
    else
        SalvaStudio(this, sessione_, r, l->count() == 0,
                    convergenze ? QStringLiteral("Convergenze_Utility") : QStringLiteral("Cinquine_Utility"),
                    DomandaFile::InCalce, Q(config::FiltroFileTesto), config::NullaDaStampare);
}

void FrmUtility::closeEvent(QCloseEvent* e) {
    SalvaPosizione(this, sessione_.ini, "UtilityLeft", "UtilityTop");
    QWidget::closeEvent(e);
}

}  // namespace gorgo::screens
