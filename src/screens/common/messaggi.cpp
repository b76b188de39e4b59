#include "screens/common/messaggi.h"

#include <QAbstractButton>

#include <utility>

namespace gorgo::screens {

namespace {

QMessageBox::Icon IconaQt(archives::Icona i) {
    switch (i) {
        case archives::Icona::Informazione: return QMessageBox::Information;
        case archives::Icona::Esclamazione: return QMessageBox::Warning;
        case archives::Icona::Domanda: return QMessageBox::Question;
        case archives::Icona::Stop: return QMessageBox::Critical;
        case archives::Icona::Nessuna: break;
    }
    return QMessageBox::NoIcon;
}

GestoreMessaggi& Gestore() {
    static GestoreMessaggi g;
    return g;
}

QString Titolo(const archives::Messaggio& m) {
    return m.titolo.empty() ? QStringLiteral("Gorgo 2") : QString::fromStdString(m.titolo);
}

}  // namespace

GestoreMessaggi ImpostaGestoreMessaggi(GestoreMessaggi gestore) { return std::exchange(Gestore(), std::move(gestore)); }

void MostraMessaggio(QWidget* parent, const archives::Messaggio& m) {
    if (Gestore()) {
        Gestore()(m, QMessageBox::Ok);
        return;
    }
    QMessageBox box(IconaQt(m.icona), Titolo(m), QString::fromStdString(m.testo), QMessageBox::Ok, parent);
    box.setObjectName("frmMessaggio");
    box.exec();
}

QMessageBox::StandardButton Chiedi(QWidget* parent, const archives::Messaggio& domanda,
                                   QMessageBox::StandardButtons pulsanti, QMessageBox::StandardButton predefinito) {
    if (Gestore()) return Gestore()(domanda, pulsanti);
    QMessageBox box(IconaQt(domanda.icona == archives::Icona::Nessuna ? archives::Icona::Domanda : domanda.icona),
                    Titolo(domanda), QString::fromStdString(domanda.testo), pulsanti, parent);
    box.setObjectName("frmDomanda");
    box.setDefaultButton(predefinito);
    // Italian captions whatever the host's language.
    if (QAbstractButton* b = box.button(QMessageBox::Yes)) b->setText(QStringLiteral("&Sì"));
    if (QAbstractButton* b = box.button(QMessageBox::No)) b->setText(QStringLiteral("&No"));
    if (QAbstractButton* b = box.button(QMessageBox::Cancel)) b->setText(QStringLiteral("Annulla"));
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

}  // namespace gorgo::screens
