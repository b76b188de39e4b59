#include "app/frm_about_me.h"

#include <fmt/format.h>
#include <QLabel>
#include <QPushButton>
#include <QSysInfo>
#include <QThread>
#include <QVBoxLayout>

#include "screens/common/messaggi.h"

namespace gorgo::screens {

QString TestoInfoSistema(const Programma& a) {
    std::string testo = fmt::format("Sistema operativo: {}\nQt: {}\nProcessori: {}\nCartella del programma: {}\n",
                                    QSysInfo::prettyProductName().toStdString(), qVersion(),
                                    QThread::idealThreadCount(), a.sessione.PercorsoProgramma.string());
    if (a.archivio) {
        testo += fmt::format(
            "Estrazioni.ind: {} estrazioni ({} byte)\nanni.ind: {} anni ({} byte)\n"
            "SuperEnalotto.ind: {} estrazioni ({} byte)",
            a.archivio->NumeroEstrazioni(), a.archivio->LunghezzaEstrazioni(), a.archivio->NumeroAnni(),
            a.archivio->LunghezzaAnni(), a.archivio->NumeroEstrazioniSuper(), a.archivio->LunghezzaSuper());
    }
    if (a.demo) testo += "\nArchivio dimostrativo: estrazioni sintetiche, non reali";
    return QString::fromStdString(testo);
}

FrmAboutMe::FrmAboutMe(const Programma& programma, QWidget* parent) : QDialog(parent) {
    setObjectName("frmAboutMe");
    setWindowTitle(QStringLiteral("Informazioni su Gorgo 2"));
    auto* l = new QVBoxLayout(this);
    auto* titolo =
        new QLabel(QStringLiteral("<b>Gorgo 2 - Tris metodologie</b><br>Versione %1").arg(GORGO_VERSIONE), this);
    titolo->setObjectName("lblTitolo");
    auto* testo =
        new QLabel(QStringLiteral("Il costruttore di algoritmi, la scia inversa dei precursori e l'ambo enucleato\n"
                                  "per Lotto, 10eLotto e SuperEnalotto."),
                   this);
    testo->setObjectName("lblDescrizione");
    auto* info = new QPushButton(QStringLiteral("Info sistema..."), this);
    info->setObjectName("cmdSysInfo");
    auto* ok = new QPushButton(QStringLiteral("OK"), this);
    ok->setObjectName("cmdOk");
    ok->setDefault(true);
    l->addWidget(titolo);
    l->addWidget(testo);
    auto* riga = new QHBoxLayout;
    riga->addWidget(info);
    riga->addStretch();
    riga->addWidget(ok);
    l->addLayout(riga);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(info, &QPushButton::clicked, this, [this, p = &programma] {
        MostraMessaggio(this, {TestoInfoSistema(*p).toStdString(), "Info sistema", archives::Icona::Informazione});
    });
}

}  // namespace gorgo::screens
