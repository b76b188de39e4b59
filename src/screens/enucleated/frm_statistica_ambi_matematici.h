#pragma once
// frmStatisticaAmbiMatematici: how the delay of the group of the 90 mathematical pairs
// behaves on the wheel (or all wheels) and period of frmAmboEnucleato.

#include <QLabel>
#include <QPlainTextEdit>
#include <QTreeWidget>
#include <QWidget>

#include "enucleated/gruppo.h"

namespace gorgo::screens {

class FrmAmboEnucleato;

class FrmStatisticaAmbiMatematici : public QWidget {
    Q_OBJECT
public:
    explicit FrmStatisticaAmbiMatematici(FrmAmboEnucleato& padre);
    void StatisticaGruppo(int indice);  // cmdStatistica: 0 the chosen wheel, 1 all wheels

signals:
    void statisticaTerminata();

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    void Stampa();
    void FileReport();

    FrmAmboEnucleato& padre_;
    enucleated::EsitoGruppo esito_;
    bool tutte_ = false;
    bool elaborazione_ = false;
    int ruota_ = 1;
    QPlainTextEdit* txtResult_ = nullptr;
    QLabel* lblRuota_ = nullptr;
    QTreeWidget* ListView1_ = nullptr;
};

}  // namespace gorgo::screens
