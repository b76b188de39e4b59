#include "screens/common/caselle.h"

namespace gorgo::screens {

const QStringList& NomiGiorniCaselle() {
    static const QStringList n = {QStringLiteral("Domenica"),  QStringLiteral("Lunedì"),  QStringLiteral("Martedì"),
                                  QStringLiteral("Mercoledì"), QStringLiteral("Giovedì"), QStringLiteral("Venerdì"),
                                  QStringLiteral("Sabato")};
    return n;
}

const QStringList& NomiMesiCaselle() {
    static const QStringList n = {QStringLiteral("Gennaio"), QStringLiteral("Febbraio"), QStringLiteral("Marzo"),
                                  QStringLiteral("Aprile"),  QStringLiteral("Maggio"),   QStringLiteral("Giugno"),
                                  QStringLiteral("Luglio"),  QStringLiteral("Agosto"),   QStringLiteral("Settembre"),
                                  QStringLiteral("Ottobre"), QStringLiteral("Novembre"), QStringLiteral("Dicembre")};
    return n;
}

QGridLayout* CreaCaselle(QWidget* parent, const QString& prefisso, const QStringList& nomi, int perRiga,
                         std::span<QCheckBox*> caselle) {
    auto* griglia = new QGridLayout;
    for (int i = 1; i <= nomi.size(); ++i) {
        auto* c = new QCheckBox(nomi[i - 1], parent);
        c->setObjectName(QStringLiteral("%1_%2").arg(prefisso).arg(i));
        griglia->addWidget(c, (i - 1) / perRiga, (i - 1) % perRiga);
        caselle[static_cast<size_t>(i)] = c;
    }
    return griglia;
}

}  // namespace gorgo::screens
