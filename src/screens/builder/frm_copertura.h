#pragma once
// frmCopertura: the detail of a coverage per ambata (one, two or three groups of columns),
// with the recap of the algorithms and the totals. frmCoperturaAmbi shares its shape.

#include <QLabel>
#include <QTreeWidget>
#include <QWidget>

#include "builder/copertura.h"
#include "config/report_testo.h"
#include "screens/common/sessione.h"

namespace gorgo::screens {

// What the two coverage windows have in common: the lists, the labels, print and file.
class FinestraCopertura : public QWidget {
    Q_OBJECT
protected:
    FinestraCopertura(Sessione& sessione, QWidget* parent, const char* nome, const builder::EsitoCopertura& esito,
                      const QStringList& teste, config::ReportTesto stampa, config::ReportTesto file);

    Sessione& sessione_;
    config::ReportTesto stampa_, file_;
    QTreeWidget* lvListaFinale_ = nullptr;
    QTreeWidget* lvRiepilogoCoperture_ = nullptr;
    QLabel* lblTotaleCopertura_ = nullptr;
    QLabel* lblAttesaMedia_ = nullptr;
};

class FrmCopertura : public FinestraCopertura {
    Q_OBJECT
public:
    FrmCopertura(Sessione& sessione, QWidget* parent, const builder::EsitoCopertura& esito, config::ReportTesto stampa,
                 config::ReportTesto file);
};

}  // namespace gorgo::screens
