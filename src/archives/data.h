#pragma once
// Calendar dates of the draws: proleptic Gregorian, weekday 1 = Sunday.

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace gorgo::archives {

struct Data {
    int giorno = 0;
    int mese = 0;
    int anno = 0;

    bool operator==(const Data&) const = default;
    // Calendar order: year, then month, then day.
    std::strong_ordering operator<=>(const Data& o) const {
        if (anno != o.anno) return anno <=> o.anno;
        if (mese != o.mese) return mese <=> o.mese;
        return giorno <=> o.giorno;
    }

    // "dd/mm/yyyy", always ten characters for years 1000..9999.
    std::string testo() const;
    // The eight digits ddmmyyyy of the archive records.
    std::string cifre() const;
    // Days since 01/01/1970 (negative before).
    int32_t giorni() const;
    static Data daGiorni(int32_t giorni);
    // 1 = Sunday ... 7 = Saturday.
    int giornoSettimana() const;
    bool valida() const;
    // Day of year from 0 (1 January).
    int giornoAnno() const;

    // Rolls an out-of-range day or month over, as a date serial does: 31/02 is 3 March.
    static Data componi(int anno, int mese, int giorno);
    // Reads eight ASCII digits ddmmyyyy; no calendar check.
    static std::optional<Data> daCifre(std::string_view otto);
    // Reads exactly "dd/mm/yyyy" (also '-' or '.' as separators) as a real calendar date.
    static std::optional<Data> daTesto(std::string_view testo);
};

bool AnnoBisestile(int anno);
int GiorniNelMese(int mese, int anno);

// Italian names of months (1..12) and weekdays (1 = Sunday), lower case as the host gives them.
std::string_view NomeMese(int mese);
std::string_view NomeGiorno(int giorno);
// The month whose Italian name this is, without regard to case; 0 for none.
int NumeroMese(std::string_view nome);

}  // namespace gorgo::archives
