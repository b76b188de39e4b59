// The month index of every draw and the flag of the last draw of each month.

#include "builder/indice_mensile.h"

namespace gorgo::builder {

namespace {

bool GiornoEstrazione(std::string_view giorni, int giornoSettimana) {
    const size_t i = static_cast<size_t>(giornoSettimana - 1);
    return i < giorni.size() && (giorni[i] == 'Y' || giorni[i] == 'y');
}

// The first draw day after `dopo`, by the seven flags from Sunday; none set means Saturday.
archives::Data ProssimaEstrazione(const archives::Data& dopo, std::string_view giorni) {
    bool qualcuno = false;
    for (int g = 1; g <= 7; ++g) qualcuno = qualcuno || GiornoEstrazione(giorni, g);
    const int32_t base = dopo.giorni();
    for (int32_t passo = 1; passo <= 7; ++passo) {
        const archives::Data d = archives::Data::daGiorni(base + passo);
        const int g = d.giornoSettimana();
        if (qualcuno ? GiornoEstrazione(giorni, g) : g == 7) return d;
    }
    return archives::Data::daGiorni(base + 7);  // not reached: seven days hold every weekday
}

bool StessoMese(const archives::Data& a, const archives::Data& b) { return a.mese == b.mese && a.anno == b.anno; }

}  // namespace

IndiciMensili CalcolaIndiciMensili(const archives::StoriaLotto& storia, std::string_view giorniEstrazione) {
    const int32_t n = storia.NumeroEstrazioni();
    IndiciMensili r;
    r.indice.assign(static_cast<size_t>(n) + 1, 0);
    r.ultimo.assign(static_cast<size_t>(n) + 1, false);
    if (n < 1) return r;

    archives::Data precedente = storia[1].data();
    int conta = 0;
    for (int32_t i = 1; i <= n; ++i) {
        const archives::Data d = storia[i].data();
        if (i > 1 && !StessoMese(d, precedente)) {
            r.ultimo[static_cast<size_t>(i - 1)] = true;
            conta = 0;
        }
        ++conta;
        r.indice[static_cast<size_t>(i)] = static_cast<uint8_t>(conta < 255 ? conta : 255);
        precedente = d;
    }
    r.ultimo[static_cast<size_t>(n)] = !StessoMese(ProssimaEstrazione(precedente, giorniEstrazione), precedente);
    return r;
}

}  // namespace gorgo::builder
