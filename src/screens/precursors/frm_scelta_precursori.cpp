#include "screens/precursors/frm_scelta_precursori.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "screens/common/stile.h"
#include "screens/precursors/frm_precursori_saruni.h"
#include "screens/precursors/frm_precursori_tordelli.h"
#include "screens/precursors/frm_precursori_tordelli_gruppi.h"

namespace gorgo::screens {

FrmSceltaPrecursori::FrmSceltaPrecursori(Sessione& sessione, const archives::Archivio& archivio, QWidget* parent)
    : QWidget(parent, Qt::Window), sessione_(sessione), archivio_(archivio) {
    setObjectName("frmSceltaPrecursori");
    setWindowTitle(QStringLiteral("La scia inversa dei precursori"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* v = new QVBoxLayout(this);
    const char* classici[] = {"Precursori classici (Lotto)", "Precursori classici (10eLotto)",
                              "Precursori classici (Superenalotto)"};
    for (int k = 0; k < 3; ++k) {
        auto* b = new QPushButton(QString::fromUtf8(classici[k]), this);
        b->setObjectName(QStringLiteral("cmdClassici_%1").arg(k));
        connect(b, &QPushButton::clicked, this, [this, k] { ApriClassici(k); });
        v->addWidget(b);
    }
    auto* saruni = new QPushButton(QStringLiteral("Precursori Saruni"), this);
    saruni->setObjectName("cmdClassiciSaruni");
    connect(saruni, &QPushButton::clicked, this, [this] { ApriClassici(3); });
    v->addWidget(saruni);
    auto* gruppi = new QPushButton(QStringLiteral("Formazioni numeriche"), this);
    gruppi->setObjectName("cmdFormazioniNumeriche");
    connect(gruppi, &QPushButton::clicked, this, [this] { ApriClassici(4); });
    v->addWidget(gruppi);
    ApplicaStile(this, sessione_.ini);
}

QWidget* FrmSceltaPrecursori::ApriClassici(int indice) {
    QPointer<QWidget>& aperta = aperte_[static_cast<size_t>(indice)];
    if (aperta) {
        aperta->showNormal();
        aperta->raise();
        aperta->activateWindow();
        return aperta;
    }
    // The windows belong to the main window's family, not to the chooser: closing the chooser
    // leaves them open.
    QWidget* padre = parentWidget();
    QWidget* f = nullptr;
    if (indice == 0)
        f = new FrmPrecursoriTordelli(sessione_, archivio_, padre);
    else if (indice == 1)
        f = new FrmPrecursoriTordelli10eLotto(sessione_, archivio_, padre);
    else if (indice == 2)
        f = new FrmPrecursoriTordelliSuper(sessione_, archivio_, padre);
    else if (indice == 3)
        f = new FrmPrecursoriSaruni(sessione_, archivio_, padre);
    else
        f = new FrmPrecursoriTordelliGruppi(sessione_, archivio_, padre);
    aperta = f;
    f->show();
    return f;
}

}  // namespace gorgo::screens
