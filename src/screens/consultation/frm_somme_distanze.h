#pragma once
// frmSommeDistanze: the sums and distances of the ten pairs of positions of every wheel of
// the draw in view, with the equal values of a row or a column, its chart and its report.
// The consultation rewrites it at every refresh.

#include <QCheckBox>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QWidget>
#include <array>

#include "archives/record.h"
#include "config/report_testo.h"
#include "consultation/somme_distanze.h"
#include "screens/common/sessione.h"

namespace gorgo::screens {

class FrmGraficoSomme;

class FrmSommeDistanze : public QWidget {
    Q_OBJECT
public:
    FrmSommeDistanze(Sessione& sessione, QWidget* parent = nullptr);
    // The draw in view; the chart, drawn for another draw, closes.
    void Aggiorna(const archives::RecordEstrazione& estrazione);
    const consultation::TabellaSommeDistanze& tabella() const { return tabella_; }
    FrmGraficoSomme* grafico() const;
    void ApriGraficoColonna(int colonna);
    void ApriGraficoRiga(int ruota);
    void Stampa();
    void SalvaSuFile();

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    void Ridisegna();
    void ApriGrafico(consultation::SerieGrafico serie);
    std::vector<config::RigaTesto> Righe() const;

    Sessione& sessione_;
    archives::RecordEstrazione estrazione_;
    consultation::TabellaSommeDistanze tabella_;
    QCheckBox* chkRighe_ = nullptr;
    QCheckBox* chkColonne_ = nullptr;
    std::array<std::array<QLabel*, 10>, 11> somme_{};
    std::array<std::array<QLabel*, 10>, 11> distanze_{};
    QPointer<FrmGraficoSomme> grafico_;
};

}  // namespace gorgo::screens
