#include "screens/config/frm_colori.h"

#include <QApplication>
#include <QColorDialog>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <charconv>
#include <string>

#include "archives/archivio.h"
#include "config/impostazioni.h"
#include "screens/common/messaggi.h"
#include "screens/common/stile.h"

namespace gorgo::screens {

namespace {

constexpr std::array<std::string_view, 3> ChiaviColori = {"ColoreForm", "ColoreEtichette", "ColoreListe"};
const QString TestiEtichette[] = {QStringLiteral("Colore del form"), QStringLiteral("Colore etichette"),
                                  QStringLiteral("Colore liste")};

QColor ColoreDaTesto(std::string_view testo, bool& ok) {
    long long v = 0;
    const auto [fine, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), v);
    ok = errore == std::errc{} && fine == testo.data() + testo.size() && v >= 0 && v <= 0xFFFFFF;
    return ColoreDaImpostazione(v);
}

QColor Predefinito(std::size_t indice) {
    bool ok = false;
    return ColoreDaTesto(config::Predefinito(config::sezioni::Settings, ChiaviColori[indice]), ok);
}

}  // namespace

FrmColori::FrmColori(Sessione& sessione, const archives::Archivio* archivio, QWidget* parent)
    : QDialog(parent), sessione_(sessione), archivio_(archivio) {
    setObjectName("frmColori");
    setWindowTitle(QStringLiteral("Colori"));
    sceltaColore = [](QWidget* genitore, const QColor& iniziale) { return QColorDialog::getColor(iniziale, genitore); };

    auto* principale = new QVBoxLayout(this);
    auto* griglia = new QGridLayout;
    for (std::size_t i = 0; i < 3; ++i) {
        const int riga = static_cast<int>(i);
        cmdColore_[i] = new QPushButton(this);
        cmdColore_[i]->setObjectName(QStringLiteral("cmdColore_%1").arg(riga));
        cmdColore_[i]->setToolTip(QStringLiteral("Un click per cambiare il colore"));
        cmdColore_[i]->setFixedSize(48, 24);
        cmdColore_[i]->setAutoDefault(false);
        lblColore_[i] = new QLabel(TestiEtichette[i], this);
        lblColore_[i]->setObjectName(QStringLiteral("lblColore_%1").arg(riga));
        lblColore_[i]->installEventFilter(this);
        griglia->addWidget(cmdColore_[i], riga, 0);
        griglia->addWidget(lblColore_[i], riga, 1);
        connect(cmdColore_[i], &QPushButton::clicked, this, [this, i] {
            const QColor scelto = sceltaColore ? sceltaColore(this, colori_[i]) : QColor();
            if (scelto.isValid()) ImpostaColore(i, scelto);
        });
    }
    principale->addLayout(griglia);

    auto* cmdDefault = new QPushButton(QStringLiteral("Ripristina i colori di default di tutte le voci"), this);
    cmdDefault->setObjectName("cmdDefault");
    cmdDefault->setAutoDefault(false);
    principale->addWidget(cmdDefault);

    auto* pulsanti = new QHBoxLayout;
    auto* cmdOk = new QPushButton(QStringLiteral("Ok"), this);
    cmdOk->setObjectName("cmdOk");
    auto* cmdEsci = new QPushButton(QStringLiteral("Esci"), this);
    cmdEsci->setObjectName("cmdEsci");
    pulsanti->addStretch();
    pulsanti->addWidget(cmdOk);
    pulsanti->addWidget(cmdEsci);
    principale->addLayout(pulsanti);

    connect(cmdDefault, &QPushButton::clicked, this, [this] {
        for (std::size_t i = 0; i < 3; ++i) ImpostaColore(i, Predefinito(i));
    });
    connect(cmdOk, &QPushButton::clicked, this, &FrmColori::Conferma);
    connect(cmdEsci, &QPushButton::clicked, this, &FrmColori::reject);

    for (std::size_t i = 0; i < 3; ++i) {
        bool ok = false;
        const QColor c =
            ColoreDaTesto(config::LeggiImpostazione(sessione_.ini, config::sezioni::Settings, ChiaviColori[i],
                                                    config::Predefinito(config::sezioni::Settings, ChiaviColori[i])),
                          ok);
        ImpostaColore(i, ok ? c : Predefinito(i));
    }
    ApplicaStile(this, sessione_.ini);
}

void FrmColori::ImpostaColore(std::size_t indice, const QColor& c) {
    colori_[indice] = c;
    // A style sheet shows the colour on a button whatever the style draws.
    cmdColore_[indice]->setStyleSheet(
        QStringLiteral("QPushButton#%1 { background-color: %2; border: 1px solid black; }")
            .arg(cmdColore_[indice]->objectName(), c.name()));
}

void FrmColori::Conferma() {
    std::array<std::string, 3> testi;
    for (std::size_t i = 0; i < 3; ++i) testi[i] = std::to_string(ImpostazioneDaColore(colori_[i]));
    const config::CoppiaChiaveValore valori[] = {
        {ChiaviColori[0], testi[0]}, {ChiaviColori[1], testi[1]}, {ChiaviColori[2], testi[2]}};
    sessione_.ini.Scrivi(config::sezioni::Settings, valori);
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->isVisible() && (w->windowType() == Qt::Window || w->windowType() == Qt::Dialog))
            ApplicaStile(w, sessione_.ini);
    emit coloriCambiati();
    accept();
}

bool FrmColori::eventFilter(QObject* oggetto, QEvent* evento) {
    if (evento->type() == QEvent::MouseButtonDblClick) {
        if (oggetto == lblColore_[1] && archivio_) {
            const int32_t n = archivio_->NumeroEstrazioni();
            MostraMessaggio(this,
                            {archivio_->DataEstrazione(n) + " - " + std::to_string(n), "", archives::Icona::Nessuna});
            return true;
        }
        if (oggetto == lblColore_[2]) {
            MostraMessaggio(
                this, {"Path applicazione = " + sessione_.PercorsoProgramma.string(), "", archives::Icona::Nessuna});
            return true;
        }
    }
    return QDialog::eventFilter(oggetto, evento);
}

}  // namespace gorgo::screens
