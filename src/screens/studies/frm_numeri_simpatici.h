#pragma once
// frmNumeriSimpatici, "Ricerca simultanea per il gioco della quaterna": the companion ambi of
// a chosen ambo, and the strongest companions of all 4005 ambi.

#include <QCheckBox>
#include <QDateEdit>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QTreeWidget>
#include <QWidget>
#include <array>

#include "archives/archivio.h"
#include "screens/common/elaborazioni.h"
#include "screens/common/sessione.h"
#include "studies/numeri_simpatici.h"

namespace gorgo::screens {

class FrmNumeriSimpatici : public QWidget {
    Q_OBJECT
public:
    FrmNumeriSimpatici(Sessione& sessione, const archives::Archivio& archivio, QWidget* parent = nullptr);

    void Seleziona(int numero);  // a click on lblTabella(numero)
    void Calcola();              // cmdCalcola
    void Tutti();                // cmdTutti

signals:
    void statisticaTerminata();

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    void CreaControlli();
    bool Parametri(studies::ParametriSimultanea& p, bool conCoppia);
    void AggiornaRuote(int indice);
    void Report(int lista, bool stampa);

    Sessione& sessione_;
    const archives::Archivio& archivio_;
    archives::StoriaCondivisa storia_;
    std::array<bool, 91> scelti_{};
    studies::ParametriSimultanea parametri_, parametriTutti_;
    studies::EsitoSimultanea esito_;
    studies::EsitoGenerale esitoTutti_;
    std::array<QLabel*, 91> lblTabella_{};
    std::array<QCheckBox*, 13> chkRuota_{};
    QLabel *lblContatore_, *lblRuote_, *lblAnalizzate_, *lblRestrizioni_;
    QDateEdit *DTPickerDa_, *DTPickerA_;
    QTreeWidget *ListView1_, *ListView2_, *ListViewTutti_;
    QProgressBar* ProgressBar1_;
    QPointer<Elaborazione> elaborazione_;
};

}  // namespace gorgo::screens
