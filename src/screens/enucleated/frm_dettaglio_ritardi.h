#pragma once
// frmDettaglioRitardi: a delay sum opened up into the pairs of delays that made it, with
// the ambo to play for each today.

#include <QLabel>
#include <QLineEdit>
#include <QTreeWidget>
#include <QWidget>

#include "enucleated/statistica.h"

namespace gorgo::screens {

class FrmAmboEnucleato;

class FrmDettaglioRitardi : public QWidget {
    Q_OBJECT
public:
    FrmDettaglioRitardi(FrmAmboEnucleato& padre, QWidget* parent);
    void Apri(int ruota, int somma);
    void Ricerca();  // cmdRicerca

private:
    void Stampa();
    void FileReport();

    FrmAmboEnucleato& padre_;
    int ruota_ = 0, somma_ = 0;
    enucleated::EsitoDettaglio esito_;
    QLineEdit* txtSommaRitardi_ = nullptr;
    QLabel* lblRuota_ = nullptr;
    QTreeWidget* ListView1_ = nullptr;
    QTreeWidget* ListView2_ = nullptr;
};

}  // namespace gorgo::screens
