// Operations, vertibili and cell names of the algorithm model.

#include "builder/modello.h"

#include "archives/record.h"

namespace gorgo::builder {

int Opera(Operazione op, int a, int b) {
    switch (op) {
        case Operazione::Piu: return OperaPiu(a, b);
        case Operazione::Meno: return OperaMeno(a, b);
        case Operazione::Per: return OperaPer(a, b);
    }
    return 0;
}

std::optional<Operazione> OperazioneDaSegno(char segno) {
    switch (segno) {
        case '+': return Operazione::Piu;
        case '-': return Operazione::Meno;
        case 'x': return Operazione::Per;
        default: return std::nullopt;
    }
}

namespace {

constexpr std::array<int16_t, 91> CostruisciVertibili() {
    std::array<int16_t, 91> t{};
    for (int n = 1; n <= 90; ++n) {
        const int decine = n / 10, unita = n % 10;
        int v;
        if (decine == unita)
            v = decine * 10 + 9;  // 11 -> 19
        else if (unita == 9 && decine >= 1)
            v = decine * 11;  // 19 -> 11: the swap would leave 1..90
        else
            v = unita * 10 + decine;  // 12 -> 21, 1 -> 10, 90 -> 9
        t[static_cast<size_t>(n)] = static_cast<int16_t>(v);
    }
    return t;
}

}  // namespace

const std::array<int16_t, 91> TabellaVertibili = CostruisciVertibili();

const std::array<std::array<std::array<uint8_t, 91>, 91>, 3> TabellaOperazioni = [] {
    std::array<std::array<std::array<uint8_t, 91>, 91>, 3> t{};
    for (int a = 0; a <= 90; ++a)
        for (int b = 0; b <= 90; ++b) {
            t[0][static_cast<size_t>(a)][static_cast<size_t>(b)] = static_cast<uint8_t>(OperaPiu(a, b));
            t[1][static_cast<size_t>(a)][static_cast<size_t>(b)] = static_cast<uint8_t>(OperaMeno(a, b));
            t[2][static_cast<size_t>(a)][static_cast<size_t>(b)] = static_cast<uint8_t>(OperaPer(a, b));
        }
    return t;
}();

const std::string& NomeCella(int c) {
    static const std::array<std::string, NumeroCelle + 1> nomi = [] {
        std::array<std::string, NumeroCelle + 1> t{};
        for (int w = 1; w <= archives::NumeroRuote; ++w)
            for (int p = 1; p <= 5; ++p)
                t[static_cast<size_t>(Cella(w, p))] =
                    std::to_string(p) + "' su " + std::string(archives::NomiRuota[static_cast<size_t>(w)]);
        return t;
    }();
    if (c < 1 || c > NumeroCelle) return nomi[0];
    return nomi[static_cast<size_t>(c)];
}

}  // namespace gorgo::builder
