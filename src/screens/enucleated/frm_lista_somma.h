#pragma once
// What frmCoppie and frmTerzine share: the list of the pairs or triples whose delays add up
// to a sum at the end of the period, read from the tables of the last statistics.

#include <QLabel>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QWidget>

#include "enucleated/statistica.h"

namespace gorgo::screens {

class FrmAmboEnucleato;

class FrmListaSomma : public QWidget {
    Q_OBJECT
public:
    void Mostra(int ruota, int somma);
    void Svuota();
    const enucleated::ListaCoppie& lista() const { return lista_; }

protected:
    FrmListaSomma(FrmAmboEnucleato& padre, QWidget* parent, enucleated::TipoAnalisi tipo);
    // The buttons row, for the subclasses to add their own.
    QHBoxLayout* comandi() const { return comandi_; }

    FrmAmboEnucleato& padre_;
    int ruota_ = 0, somma_ = 0;

private:
    void Stampa();
    void FileReport();

    enucleated::TipoAnalisi tipo_;
    enucleated::ListaCoppie lista_;
    QLabel* lblDescrizione_ = nullptr;
    QLabel* lblTotCoppie_ = nullptr;
    QTreeWidget* ListView1_ = nullptr;
    QHBoxLayout* comandi_ = nullptr;
};

}  // namespace gorgo::screens
