#pragma once
// frmStatisticaGenerale: the most frequent delay sums of a wheel over the period of
// frmAmboEnucleato, computed there; a double click opens the pairs or triples of a sum.

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QRadioButton>
#include <QTreeWidget>
#include <QWidget>
#include <array>

#include "enucleated/statistica.h"

namespace gorgo::screens {

class FrmAmboEnucleato;
class FrmCoppie;
class FrmTerzine;

class FrmStatisticaGenerale : public QWidget {
    Q_OBJECT
public:
    explicit FrmStatisticaGenerale(FrmAmboEnucleato& padre);

    // cmdStatistica: 0 pairs, 1 triples.
    void Verifica(int tipo);
    void Svuota();

private:
    void ApriLista(QTreeWidgetItem* riga);
    void Stampa();
    void FileReport();

    FrmAmboEnucleato& padre_;
    std::vector<enucleated::RigaStatistica> righe_;
    enucleated::Periodo periodo_;
    int ruota_ = 0;

    QComboBox* cboTipoRicerca_ = nullptr;
    std::array<QRadioButton*, 2> optQuante_{};
    QLineEdit* txtPresenze_ = nullptr;
    QLineEdit* txtQuante_ = nullptr;
    QLabel* lblRuota_ = nullptr;
    QTreeWidget* ListView2_ = nullptr;
    QPointer<FrmCoppie> coppie_;
    QPointer<FrmTerzine> terzine_;
};

}  // namespace gorgo::screens
