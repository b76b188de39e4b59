#pragma once
// frmUtility, "Utility somma cinquine": the eleven cinquine of a draw shifted by a constant
// fuori 90, and their convergences.

#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QWidget>
#include <array>

#include "archives/archivio.h"
#include "screens/common/sessione.h"

namespace gorgo::screens {

class FrmUtility : public QWidget {
    Q_OBJECT
public:
    FrmUtility(Sessione& sessione, const archives::Archivio& archivio, QWidget* parent = nullptr);

    void MostraEstrazione(int32_t indice);
    void Cinquina(int indice);  // cmdCinquina(1..12)
    void Somma();               // cmdSomma
    void Convergenze();         // cmdConvergenze

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    void CreaControlli();
    void Report(bool convergenze, bool stampa);

    Sessione& sessione_;
    const archives::Archivio& archivio_;
    archives::StoriaCondivisa storia_;
    int32_t indice_ = 1;
    std::string coda_;
    std::array<std::array<QLabel*, 6>, 12> lblNumero_{};
    std::array<QLineEdit*, 6> txtNumero_{};
    QDateEdit *DTPickerEstrazione_, *DTPickerDa_, *DTPickerA_;
    QLineEdit* txtSomma_;
    QLabel* lblSomma_;
    QListWidget *lstOutput_, *lstConvergenze_;
};

}  // namespace gorgo::screens
