#pragma once
// frmGraficoSomme: the sums and distances of one pair over the wheels, or of one wheel over
// the pairs, as bars or lines.

#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include "consultation/somme_distanze.h"
#include "screens/common/sessione.h"

QT_BEGIN_NAMESPACE
class QChartView;
QT_END_NAMESPACE

namespace gorgo::screens {

class FrmGraficoSomme : public QWidget {
    Q_OBJECT
public:
    FrmGraficoSomme(Sessione& sessione, consultation::SerieGrafico serie, QWidget* parent = nullptr);
    bool Barre() const { return barre_; }
    void CambiaTipo();
    void Stampa();

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    void Disegna();

    Sessione& sessione_;
    consultation::SerieGrafico serie_;
    bool barre_ = true;
    QChartView* vista_ = nullptr;
    QPushButton* cmdTipoGrafico_ = nullptr;
};

}  // namespace gorgo::screens
