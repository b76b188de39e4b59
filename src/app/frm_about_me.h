#pragma once
// The about box and the system's facts ("Info sistema...").

#include <QDialog>

#include "app/programma.h"

namespace gorgo::screens {

class FrmAboutMe : public QDialog {
    Q_OBJECT
public:
    explicit FrmAboutMe(const Programma& programma, QWidget* parent = nullptr);
};

// The facts shown by "Info sistema...": system, Qt, cores, program folder, archives.
QString TestoInfoSistema(const Programma& programma);

}  // namespace gorgo::screens
