#include "precursors/fonte.h"

#include <algorithm>

#include "archives/dieci_e_lotto.h"
#include "archives/superenalotto.h"

namespace gorgo::precursors {

FonteEstrazioni FonteEstrazioni::Lotto(const archives::StoriaLotto& storia, int ruota) {
    FonteEstrazioni f;
    f.gioco_ = Gioco::Lotto;
    f.ruota_ = ruota;
    f.quanti_ = 5;
    f.numero_ = storia.NumeroEstrazioni();
    f.numeri_.resize(static_cast<size_t>(f.numero_) * 5);
    f.vuote_.resize(static_cast<size_t>(f.numero_));
    f.date_.reserve(static_cast<size_t>(f.numero_));
    for (int32_t i = 1; i <= f.numero_; ++i) {
        const archives::RecordEstrazione& r = storia[i];
        for (int k = 0; k < 5; ++k)
            f.numeri_[static_cast<size_t>(i - 1) * 5 + static_cast<size_t>(k)] = r.Numero(ruota, k + 1);
        f.vuote_[static_cast<size_t>(i - 1)] = r.Numero(ruota, 1) == 0;
        f.date_.push_back(r.dataTesto());
    }
    return f;
}

FonteEstrazioni FonteEstrazioni::SuperEnalotto(std::span<const archives::RecordSuperEnalotto> record) {
    FonteEstrazioni f;
    f.gioco_ = Gioco::SuperEnalotto;
    f.quanti_ = 6;
    f.numero_ = static_cast<int32_t>(record.size());
    f.numeri_.resize(record.size() * 6);
    f.vuote_.resize(record.size());
    for (size_t i = 0; i < record.size(); ++i) {
        const archives::EstrazioneSuper e = archives::LeggiEstrazioneSuper(record[i]);
        for (size_t k = 0; k < 6; ++k) f.numeri_[i * 6 + k] = static_cast<uint8_t>(e.numeri[k]);
        f.vuote_[i] = e.esito < 1;
        f.date_.push_back(e.data);
    }
    return f;
}

FonteEstrazioni FonteEstrazioni::DieciELotto(const archives::StoriaLotto& storia) {
    FonteEstrazioni f;
    f.gioco_ = Gioco::DieciELotto;
    f.quanti_ = 20;
    f.numero_ = storia.NumeroEstrazioni();
    f.numeri_.resize(static_cast<size_t>(f.numero_) * 20);
    f.vuote_.resize(static_cast<size_t>(f.numero_));
    for (int32_t i = 1; i <= f.numero_; ++i) {
        const archives::Risultato10eLotto e = archives::Estrazione10eLotto(storia, i);
        // A failed derivation holds no numbers.
        const bool vuota = e.esito < 0;
        for (size_t k = 0; k < 20; ++k)
            f.numeri_[static_cast<size_t>(i - 1) * 20 + k] = vuota ? 0 : static_cast<uint8_t>(e.numeri[k]);
        f.vuote_[static_cast<size_t>(i - 1)] = vuota;
        f.date_.push_back(storia[i].dataTesto());
    }
    return f;
}

std::string FonteEstrazioni::DataEstrazione(int32_t indice) const {
    if (date_.empty()) return {};
    indice = std::clamp(indice, 1, numero_);
    return date_[static_cast<size_t>(indice - 1)];
}

}  // namespace gorgo::precursors
