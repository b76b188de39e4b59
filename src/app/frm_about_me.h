#pragma once
// The about box and the system's facts ("Info sistema...").

#include <QDialog>

namespace gorgo::screens {

class FrmAboutMe : public QDialog {
    Q_OBJECT
public:
    explicit FrmAboutMe(QWidget* parent = nullptr);
};

// The facts shown by "Info sistema...": system, Qt, cores, program folder, archives.
QString TestoInfoSistema();

}  // namespace gorgo::screens
