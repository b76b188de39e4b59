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

}  // namespace gorgo::screens
