#pragma once
// fraRicercaAutomatica, the frame of frmCostruttore that sets and starts the automatic
// search of wheels: how many search and play wheels go together.

#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <array>

namespace gorgo::screens {

class FraRicercaAutomatica : public QGroupBox {
    Q_OBJECT
public:
    explicit FraRicercaAutomatica(QWidget* parent);

    int RuoteRicerca() const;  // optRicerca: 1 or 2
    int RuoteGioco() const;    // optGioco: 1 to 5
    // The choices the wheels allow: optRicerca(2) needs two search wheels, optGioco(k) k play
    // wheels; an option no longer possible moves to the highest possible one.
    void AggiornaScelte(int ruoteRicerca, int ruoteGioco);
    void InCorso(bool inCorso);

signals:
    void avvia();
    void annulla();

private:
    std::array<QRadioButton*, 3> optRicerca_{};
    std::array<QRadioButton*, 6> optGioco_{};
    QPushButton* cmdAvviaRicercaAutomatica_ = nullptr;
    QPushButton* cmdAnnulla_ = nullptr;
    QPushButton* cmdEsci_ = nullptr;
};

}  // namespace gorgo::screens
