#include "archives/superenalotto.h"

#include "archives/archivio.h"

namespace gorgo::archives {

EstrazioneSuper LeggiEstrazioneSuper(const RecordSuperEnalotto& r) {
    EstrazioneSuper e;
    e.numeroAnno = std::to_string(r.NumeroAnno);
    e.data = r.dataTesto();
    for (int i = 0; i < 6; ++i) {
        if (r.Sestina[i] == 0) return e;
        e.numeri[static_cast<size_t>(i)] = r.Sestina[i];
    }
    e.numeri[6] = r.Jolly;
    e.numeri[7] = r.SuperStar;
    if (r.Jolly != 0 && r.SuperStar != 0)
        e.esito = SuperConJollySuperStar;
    else if (r.SuperStar != 0)
        e.esito = SuperConSuperStar;
    else if (r.Jolly != 0)
        e.esito = SuperConJolly;
    else
        e.esito = SuperSoloSei;
    return e;
}

EstrazioneSuper LeggiEstrazioneSuper(const Archivio& archivio, int32_t indice) {
    return LeggiEstrazioneSuper(archivio.LeggiRecordSuper(indice));
}

}  // namespace gorgo::archives
