#pragma once
// frmMultiRuota: the rows of the automatic search of wheels, one for each run that found
// an algorithm, added while the search runs.

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTreeWidget>
#include <QWidget>

#include "builder/automatica.h"
#include "screens/common/sessione.h"

namespace gorgo::screens {

class FrmMultiRuota : public QWidget {
    Q_OBJECT
public:
    FrmMultiRuota(Sessione& sessione, QWidget* parent, const QString& testaSpia);

    // A new search: the list emptied, print and file off until it ends.
    void Inizia(const builder::ParametriRicerca& p, const archives::StoriaLotto* storia);
    void AggiungiRiga(const builder::RigaAutomatica& riga);
    void Avanzamento(int fatte, int corse);
    void Termina(bool fermata);
    int Righe() const { return ListViewMultiruote_->topLevelItemCount(); }

private:
    Sessione& sessione_;
    builder::ParametriRicerca parametri_;
    const archives::StoriaLotto* storia_ = nullptr;
    builder::EsitoAutomatica righe_;
    QTreeWidget* ListViewMultiruote_ = nullptr;
    QLabel* lblTotaleAlgoritmi_ = nullptr;
    QProgressBar* prgAvanzamento_ = nullptr;
    QPushButton* cmdStampa_ = nullptr;
    QPushButton* cmdPrintToFile_ = nullptr;
    bool ordineCrescente_ = true;
};

}  // namespace gorgo::screens
