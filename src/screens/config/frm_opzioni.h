#pragma once
// frmOpzioni, "Restrizioni di ricerca": weekdays, months and part of the year that the
// searches look at. Writes section Restrizioni on cmdOk only.

#include <QDialog>
#include <QPoint>
#include <array>
#include <optional>

#include "config/restrizioni.h"

class QCheckBox;
class QComboBox;

namespace gorgo::config {
class FileIni;
}

namespace gorgo::screens {

class FrmOpzioni : public QDialog {
    Q_OBJECT
public:
    explicit FrmOpzioni(config::FileIni& ini, QWidget* parent = nullptr);

    // What the controls show, in the record of the core.
    config::ScelteRestrizioni Scelte() const;

signals:
    // The keys were written: the main window reads the restrictions again.
    void restrizioniCambiate();

public slots:
    void done(int risultato) override;

private:
    void Carica(const config::ScelteRestrizioni& s);
    void AggiornaGruppi();
    void Conferma();

    config::FileIni& ini_;
    QCheckBox* chkGiorni_;
    QCheckBox* chkMesi_;
    QCheckBox* chkPeriodo_;
    std::array<QCheckBox*, 8> chkDay_{};
    std::array<QCheckBox*, 13> chkMese_{};
    std::array<QComboBox*, 2> cboGiorno_{};
    std::array<QComboBox*, 2> cboMese_{};
};

}  // namespace gorgo::screens
