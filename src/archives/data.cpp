#include "archives/data.h"

#include <fmt/format.h>
#include <algorithm>
#include <array>

namespace gorgo::archives {

namespace {

// Days from civil, after H. Hinnant's public-domain algorithm.
int32_t GiorniDaCivile(int y, unsigned m, unsigned d) {
    y -= m <= 2;
    const int era = (y >= 0 ? y : y - 399) / 400;
    const unsigned yoe = static_cast<unsigned>(y - era * 400);
    const unsigned doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
    const unsigned doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
    return era * 146097 + static_cast<int>(doe) - 719468;
}

bool Cifre(std::string_view s) {
    for (char c : s)
        if (c < '0' || c > '9') return false;
    return true;
}

int Numero(std::string_view s) {
    int n = 0;
    for (char c : s) n = n * 10 + (c - '0');
    return n;
}

constexpr std::array<std::string_view, 13> kMesi = {"",        "gennaio",  "febbraio", "marzo",  "aprile",
                                                    "maggio",  "giugno",   "luglio",   "agosto", "settembre",
                                                    "ottobre", "novembre", "dicembre"};
constexpr std::array<std::string_view, 8> kGiorni = {"",          "domenica", "lunedì",  "martedì",
                                                     "mercoledì", "giovedì",  "venerdì", "sabato"};

}  // namespace

bool AnnoBisestile(int anno) { return (anno % 4 == 0 && anno % 100 != 0) || anno % 400 == 0; }

int GiorniNelMese(int mese, int anno) {
    static constexpr int kLunghezze[] = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (mese < 1 || mese > 12) return 0;
    return mese == 2 && AnnoBisestile(anno) ? 29 : kLunghezze[mese];
}

std::string_view NomeMese(int mese) { return mese >= 1 && mese <= 12 ? kMesi[mese] : ""; }
int NumeroMese(std::string_view nome) {
    for (int m = 1; m <= 12; ++m) {
        const std::string_view n = kMesi[static_cast<size_t>(m)];
        if (n.size() == nome.size() &&
            std::equal(n.begin(), n.end(), nome.begin(), [](char a, char b) { return a == (b | 0x20); }))
            return m;
    }
    return 0;
}

std::string_view NomeGiorno(int giorno) { return giorno >= 1 && giorno <= 7 ? kGiorni[giorno] : ""; }

std::string Data::testo() const { return fmt::format("{:02}/{:02}/{:04}", giorno, mese, anno); }
std::string Data::cifre() const { return fmt::format("{:02}{:02}{:04}", giorno, mese, anno); }

int32_t Data::giorni() const {
    return GiorniDaCivile(anno, static_cast<unsigned>(mese), static_cast<unsigned>(giorno));
}

Data Data::daGiorni(int32_t z) {
    z += 719468;
    const int era = (z >= 0 ? z : z - 146096) / 146097;
    const unsigned doe = static_cast<unsigned>(z - era * 146097);
    const unsigned yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
    const int y = static_cast<int>(yoe) + era * 400;
    const unsigned doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
    const unsigned mp = (5 * doy + 2) / 153;
    const unsigned d = doy - (153 * mp + 2) / 5 + 1;
    const unsigned m = mp < 10 ? mp + 3 : mp - 9;
    return Data{static_cast<int>(d), static_cast<int>(m), y + (m <= 2)};
}

int Data::giornoSettimana() const {
    // 01/01/1970 was a Thursday (5).
    const int32_t g = giorni();
    const int r = static_cast<int>(((g % 7) + 7) % 7);
    return (r + 4) % 7 + 1;
}

bool Data::valida() const {
    return anno >= 1 && anno <= 9999 && mese >= 1 && mese <= 12 && giorno >= 1 && giorno <= GiorniNelMese(mese, anno);
}

int Data::giornoAnno() const { return giorni() - Data{1, 1, anno}.giorni(); }

Data Data::componi(int anno, int mese, int giorno) {
    // Months roll into years first, then days roll from the first of that month.
    int m0 = mese - 1;
    anno += m0 >= 0 ? m0 / 12 : -((11 - m0) / 12);
    m0 = ((m0 % 12) + 12) % 12;
    return daGiorni(Data{1, m0 + 1, anno}.giorni() + giorno - 1);
}

std::optional<Data> Data::daCifre(std::string_view otto) {
    if (otto.size() != 8 || !Cifre(otto)) return std::nullopt;
    return Data{Numero(otto.substr(0, 2)), Numero(otto.substr(2, 2)), Numero(otto.substr(4, 4))};
}

std::optional<Data> Data::daTesto(std::string_view t) {
    if (t.size() != 10) return std::nullopt;
    const char s1 = t[2], s2 = t[5];
    auto separatore = [](char c) { return c == '/' || c == '-' || c == '.'; };
    if (!separatore(s1) || s1 != s2) return std::nullopt;
    if (!Cifre(t.substr(0, 2)) || !Cifre(t.substr(3, 2)) || !Cifre(t.substr(6, 4))) return std::nullopt;
    Data d{Numero(t.substr(0, 2)), Numero(t.substr(3, 2)), Numero(t.substr(6, 4))};
    if (!d.valida()) return std::nullopt;
    return d;
}

}  // namespace gorgo::archives
