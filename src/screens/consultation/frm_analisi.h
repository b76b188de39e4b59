#pragma once
// frmAnalisi: the report of an analysis of the consultation, with its print.

#include <QListWidget>
#include <QWidget>
#include <string>
#include <vector>

#include "screens/common/sessione.h"

namespace gorgo::screens {

class FrmAnalisi : public QWidget {
    Q_OBJECT
public:
    FrmAnalisi(Sessione& sessione, QWidget* parent = nullptr);
    // Clears the list and writes the lines.
    void Mostra(const std::vector<std::string>& righe);
    void Stampa();

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    Sessione& sessione_;
    QListWidget* lstAnalisi_ = nullptr;
};

}  // namespace gorgo::screens
