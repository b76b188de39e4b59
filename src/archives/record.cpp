#include "archives/record.h"

#include <fmt/format.h>
#include <cstring>

namespace gorgo::archives {

const std::array<std::string_view, 12> NomiRuota = {"Tutte     ", "Bari      ", "Cagliari  ", "Firenze   ",
                                                    "Genova    ", "Milano    ", "Napoli    ", "Palermo   ",
                                                    "Roma      ", "Torino    ", "Venezia   ", "Nazionale "};

const std::array<std::string_view, 12> SigleRuota = {"Tu", "BA", "CA", "FI", "GE", "MI",
                                                     "NA", "PA", "RO", "TO", "VE", "NZ"};

const std::array<int32_t, 12> PrimaEstrazioneRuota = {0, 174, 3575, 1, 3575, 1, 1, 1, 1, 1, 1, 7341};

namespace {

std::string TestoData(const char* d) {
    std::string s;
    s.reserve(10);
    s.append(d, 2).append("/").append(d + 2, 2).append("/").append(d + 4, 4);
    return s;
}

int Campo(std::string_view s) {
    int n = 0;
    for (char c : s) {
        if (c < '0' || c > '9') return 0;
        n = n * 10 + (c - '0');
    }
    return n;
}

gorgo::archives::Data DataDaCifre(const char* d) {
    return gorgo::archives::Data{Campo({d, 2}), Campo({d + 2, 2}), Campo({d + 4, 4})};
}

}  // namespace

std::string RecordEstrazione::dataTesto() const { return TestoData(Data); }
gorgo::archives::Data RecordEstrazione::data() const { return DataDaCifre(Data); }

// Both records keep the date as eight digits and the weekday twice.
template <typename Record>
void ImpostaData(Record& r, const gorgo::archives::Data& d) {
    const std::string c = d.cifre();
    std::memcpy(r.Data, c.data(), 8);
    r.GiornoSettimana = r.GiornoSettimanaCopia = static_cast<char>('0' + d.giornoSettimana());
}

void RecordEstrazione::impostaData(const gorgo::archives::Data& d) { ImpostaData(*this, d); }

std::string RecordSuperEnalotto::dataTesto() const { return TestoData(Data); }
gorgo::archives::Data RecordSuperEnalotto::data() const { return DataDaCifre(Data); }

void RecordSuperEnalotto::impostaData(const gorgo::archives::Data& d) { ImpostaData(*this, d); }

RecordAnno RecordAnno::Crea(int anno, int32_t primaEstrazione) {
    RecordAnno r;
    const std::string a = fmt::format("{:04}", anno);
    const std::string p = fmt::format("{:<7}", primaEstrazione);
    std::memcpy(r.Anno, a.data(), 4);
    std::memcpy(r.PrimaEstrazione, p.data(), 7);
    r.FineRiga = 13;
    return r;
}

int RecordAnno::anno() const {
    for (char c : Anno)
        if (c < '0' || c > '9') return -1;
    return Campo({Anno, 4});
}

int32_t RecordAnno::primaEstrazione() const {
    // Left-justified digits padded with blanks; trimmed as the reader trims.
    std::string_view s(PrimaEstrazione, 7);
    while (!s.empty() && s.front() == ' ') s.remove_prefix(1);
    while (!s.empty() && s.back() == ' ') s.remove_suffix(1);
    if (s.empty() || s.size() > 7) return -1;
    int32_t n = 0;
    for (char c : s) {
        if (c < '0' || c > '9') return -1;
        n = n * 10 + (c - '0');
    }
    return n;
}

}  // namespace gorgo::archives
