#pragma once
// The builder's satellite windows: the recap (frmReportGorgo), the forecasts of the
// selected algorithms (frmAlgoritmiCalcolati), the list of cases (frmListaSortite).

#include <QListWidget>
#include <QTreeWidget>
#include <QWidget>
#include <vector>

#include "builder/previsioni.h"
#include "builder/verifica.h"
#include "config/report_testo.h"
#include "screens/common/sessione.h"

namespace gorgo::screens {

class FrmReportGorgo : public QWidget {
    Q_OBJECT
public:
    FrmReportGorgo(Sessione& sessione, QWidget* parent, const std::vector<std::string>& righe);

private:
    Sessione& sessione_;
    std::vector<config::RigaTesto> righe_;
};

class FrmAlgoritmiCalcolati : public QWidget {
    Q_OBJECT
public:
    // The printed form and the file form of the table differ in one heading.
    FrmAlgoritmiCalcolati(Sessione& sessione, QWidget* parent, const builder::EsitoPrevisioni& esito,
                          config::ReportTesto stampa, config::ReportTesto file);

private:
    Sessione& sessione_;
    config::ReportTesto stampa_, file_;
};

class FrmListaSortite : public QWidget {
    Q_OBJECT
public:
    FrmListaSortite(const config::FileIni& ini, QWidget* parent, const std::vector<builder::CasoSpia>& casi,
                    const QString& testaSpia);
};

}  // namespace gorgo::screens
