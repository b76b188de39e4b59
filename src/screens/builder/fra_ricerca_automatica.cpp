#include "screens/builder/fra_ricerca_automatica.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>

namespace gorgo::screens {

FraRicercaAutomatica::FraRicercaAutomatica(QWidget* parent) : QGroupBox(QStringLiteral("Ricerca automatica"), parent) {
    setObjectName("fraRicercaAutomatica");
    auto* l = new QGridLayout(this);
    auto* gruppoR = new QButtonGroup(this);
    auto* gruppoG = new QButtonGroup(this);
    l->addWidget(new QLabel(QStringLiteral("Ruote di ricerca in simultanea"), this), 0, 0);
    for (int i = 1; i <= 2; ++i) {
        optRicerca_[static_cast<size_t>(i)] = new QRadioButton(QString::number(i), this);
        optRicerca_[static_cast<size_t>(i)]->setObjectName(QStringLiteral("optRicerca_%1").arg(i));
        gruppoR->addButton(optRicerca_[static_cast<size_t>(i)]);
        l->addWidget(optRicerca_[static_cast<size_t>(i)], 0, i);
    }
    l->addWidget(new QLabel(QStringLiteral("Ruote di gioco in simultanea"), this), 1, 0);
    for (int i = 1; i <= 5; ++i) {
        optGioco_[static_cast<size_t>(i)] = new QRadioButton(QString::number(i), this);
        optGioco_[static_cast<size_t>(i)]->setObjectName(QStringLiteral("optGioco_%1").arg(i));
        gruppoG->addButton(optGioco_[static_cast<size_t>(i)]);
        l->addWidget(optGioco_[static_cast<size_t>(i)], 1, i);
    }
    optRicerca_[1]->setChecked(true);
    optGioco_[1]->setChecked(true);
    cmdAvviaRicercaAutomatica_ = new QPushButton(QStringLiteral("Avvia ricerca automatica"), this);
    cmdAvviaRicercaAutomatica_->setObjectName("cmdAvviaRicercaAutomatica");
    cmdAnnulla_ = new QPushButton(QStringLiteral("Annulla ricerca aut."), this);
    cmdAnnulla_->setObjectName("cmdAnnulla");
    cmdAnnulla_->setVisible(false);
    cmdEsci_ = new QPushButton(QStringLiteral("Esci"), this);
    cmdEsci_->setObjectName("cmdEsci");
    l->addWidget(cmdAvviaRicercaAutomatica_, 2, 0);
    l->addWidget(cmdAnnulla_, 2, 1, 1, 3);
    l->addWidget(cmdEsci_, 2, 4, 1, 2);
    connect(cmdAvviaRicercaAutomatica_, &QPushButton::clicked, this, &FraRicercaAutomatica::avvia);
    connect(cmdAnnulla_, &QPushButton::clicked, this, &FraRicercaAutomatica::annulla);
    connect(cmdEsci_, &QPushButton::clicked, this, &QWidget::hide);
}

int FraRicercaAutomatica::RuoteRicerca() const { return optRicerca_[2]->isChecked() ? 2 : 1; }

int FraRicercaAutomatica::RuoteGioco() const {
    for (int i = 5; i >= 1; --i)
        if (optGioco_[static_cast<size_t>(i)]->isChecked()) return i;
    return 1;
}

void FraRicercaAutomatica::AggiornaScelte(int ruoteRicerca, int ruoteGioco) {
    optRicerca_[2]->setEnabled(ruoteRicerca >= 2);
    if (optRicerca_[2]->isChecked() && ruoteRicerca < 2) optRicerca_[1]->setChecked(true);
    for (int k = 1; k <= 5; ++k) optGioco_[static_cast<size_t>(k)]->setEnabled(k == 1 || ruoteGioco >= k);
    const int scelta = RuoteGioco();
    if (scelta > std::max(1, ruoteGioco))
        optGioco_[static_cast<size_t>(std::clamp(ruoteGioco, 1, 5))]->setChecked(true);
}

void FraRicercaAutomatica::InCorso(bool inCorso) {
    cmdAnnulla_->setVisible(inCorso);
    cmdAvviaRicercaAutomatica_->setEnabled(!inCorso);
    cmdEsci_->setEnabled(!inCorso);
}

}  // namespace gorgo::screens
