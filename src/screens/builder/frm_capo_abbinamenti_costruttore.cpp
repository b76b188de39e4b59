#include "screens/builder/frm_capo_abbinamenti_costruttore.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "screens/common/stampa.h"
#include "screens/common/stile.h"

namespace gorgo::screens {

namespace {

QLineEdit* Campo(QWidget* parent, const char* nome, const std::string& testo) {
    auto* t = new QLineEdit(QString::fromStdString(testo), parent);
    t->setObjectName(nome);
    t->setReadOnly(true);
    t->setMinimumWidth(420);
    return t;
}

}  // namespace

FrmCapoAbbinamentiCostruttore::FrmCapoAbbinamentiCostruttore(Sessione& sessione, QWidget* parent,
                                                             builder::NumeriDaGiocare numeri)
    : QWidget(parent, Qt::Window), sessione_(sessione), numeri_(std::move(numeri)) {
    setObjectName("frmCapoAbbinamentiCostruttore");
    setWindowTitle(QString::fromUtf8(builder::TitoloCapoAbbinamenti.data(),
                                     static_cast<qsizetype>(builder::TitoloCapoAbbinamenti.size())));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* l = new QVBoxLayout(this);
    auto* campi = new QFormLayout;
    campi->addRow(QStringLiteral("Numeri da giocare su"),
                  Campo(this, "txtRuote", numeri_.ruote + " dopo il " + numeri_.data));
    campi->addRow(QStringLiteral("Capogioco :"), Campo(this, "txtCapoGioco", numeri_.capogioco));
    campi->addRow(QStringLiteral("Abbinamenti ricavati da algoritmi :"),
                  Campo(this, "txtAbbinamentiAlgoritmi", numeri_.abbinamentiAlgoritmi));
    campi->addRow(QStringLiteral("Abbinamenti ricavati dal capogioco :"),
                  Campo(this, "txtAbbinamentiCapogioco", numeri_.abbinamentiCapogioco));
    l->addLayout(campi);
    auto* segnalazione = new QLabel(QString::fromStdString(numeri_.multiSegnalazione), this);
    segnalazione->setObjectName("lblMultiSegnalazione");
    l->addWidget(segnalazione);
    auto* pulsanti = new QHBoxLayout;
    auto* file = new QPushButton(QStringLiteral("Su file"), this);
    file->setObjectName("cmdPrintToFile");
    auto* esci = new QPushButton(QStringLiteral("Esci"), this);
    esci->setObjectName("cmdEsci");
    pulsanti->addWidget(file);
    pulsanti->addStretch();
    pulsanti->addWidget(esci);
    l->addLayout(pulsanti);
    connect(esci, &QPushButton::clicked, this, &QWidget::close);
    connect(file, &QPushButton::clicked, this, [this] {
        std::vector<config::RigaTesto> righe;
        for (const std::string& r : numeri_.righe) righe.push_back({r, false, false});
        SalvaReportSuFile(this, sessione_, righe, QStringLiteral("NumeriGorgo"), DomandaFile::Sovrascrivi);
    });
    ApplicaStile(this, sessione_.ini);
}

}  // namespace gorgo::screens
