#include "config/ini.h"

#include "config/cp1252.h"

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <random>
#include <system_error>
#include <vector>

#include <fmt/format.h>

namespace gorgo::config {

namespace {

namespace fs = std::filesystem;

// The reader's buffer: a longer value comes back cut there.
constexpr std::size_t kCaratteriBuffer = 1000;

std::string_view TogliBianchi(std::string_view s) {
    const auto bianco = [](char c) { return c == ' ' || c == '\t'; };
    while (!s.empty() && bianco(s.front())) s.remove_prefix(1);
    while (!s.empty() && bianco(s.back())) s.remove_suffix(1);
    return s;
}

std::string_view TogliSpazi(std::string_view s) {
    while (!s.empty() && s.front() == ' ') s.remove_prefix(1);
    while (!s.empty() && s.back() == ' ') s.remove_suffix(1);
    return s;
}

bool Utf8Valido(std::string_view s) {
    const auto* p = reinterpret_cast<const unsigned char*>(s.data());
    const auto* fine = p + s.size();
    while (p < fine) {
        const unsigned c = *p;
        if (c < 0x80) {
            ++p;
            continue;
        }
        int seguito = 0;
        unsigned minimo = 0, cp = 0;
        if ((c & 0xE0) == 0xC0) {
            seguito = 1, minimo = 0x80, cp = c & 0x1F;
        } else if ((c & 0xF0) == 0xE0) {
            seguito = 2, minimo = 0x800, cp = c & 0x0F;
        } else if ((c & 0xF8) == 0xF0) {
            seguito = 3, minimo = 0x10000, cp = c & 0x07;
        } else {
            return false;
        }
        if (fine - p <= seguito) return false;
        for (int i = 1; i <= seguito; ++i) {
            if ((p[i] & 0xC0) != 0x80) return false;
            cp = (cp << 6) | (p[i] & 0x3F);
        }
        if (cp < minimo || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF)) return false;
        p += seguito + 1;
    }
    return true;
}

// The first n characters (not bytes) of a UTF-8 text.
std::string_view PrimiCaratteri(std::string_view s, std::size_t n) {
    std::size_t contati = 0;
    for (std::size_t i = 0; i < s.size(); ++i) {
        if ((static_cast<unsigned char>(s[i]) & 0xC0) == 0x80) continue;
        if (contati == n) return s.substr(0, i);
        ++contati;
    }
    return s;
}

struct Riga {
    std::string testo;
    std::string fine;  // "\n", "\r\n", or empty for a last line without one
};

struct Documento {
    bool esiste = false;
    bool illeggibile = false;  // there, but not to be read: never write over it
    std::string bom;
    std::string eol = "\n";
    std::vector<Riga> righe;
};

enum class Tipo { Altro, Sezione, Chiave };

struct Classe {
    Tipo tipo = Tipo::Altro;
    std::string_view nome;
    std::string_view valore;
};

Classe Classifica(std::string_view riga) {
    const std::string_view t = TogliBianchi(riga);
    if (t.empty() || t.front() == ';') return {};
    if (t.front() == '[') {
        const auto chiusa = t.find(']');
        if (chiusa == std::string_view::npos) return {};
        return {Tipo::Sezione, TogliBianchi(t.substr(1, chiusa - 1)), {}};
    }
    const auto uguale = t.find('=');
    if (uguale == std::string_view::npos) return {};
    const std::string_view nome = TogliBianchi(t.substr(0, uguale));
    if (nome.empty()) return {};
    std::string_view valore = TogliBianchi(t.substr(uguale + 1));
    if (valore.size() >= 2 && valore.front() == '"' && valore.back() == '"')
        valore = valore.substr(1, valore.size() - 2);
    return {Tipo::Chiave, nome, valore};
}

// Unreadable and absent files read alike: as empty. Writers check `esiste` themselves.
Documento Carica(const std::string& nome) {
    Documento doc;
    std::error_code ec;
    if (nome.empty() || !fs::is_regular_file(nome, ec)) return doc;
    doc.esiste = true;
    std::ifstream in(nome, std::ios::binary);
    std::string byte;
    if (in) byte.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    if (!in || in.bad()) {
        doc.illeggibile = true;
        return doc;
    }

    std::string_view resto = byte;
    if (resto.substr(0, 3) == "\xEF\xBB\xBF") {
        doc.bom = resto.substr(0, 3);
        resto.remove_prefix(3);
    }
    // Files written by the old program on Windows are in the Western code page.
    const std::string testo = Utf8Valido(resto) ? std::string(resto) : Cp1252InUtf8(resto);

    const auto primo = testo.find('\n');
    if (primo != std::string::npos && primo > 0 && testo[primo - 1] == '\r') doc.eol = "\r\n";

    std::size_t inizio = 0;
    while (inizio < testo.size()) {
        const auto a_capo = testo.find('\n', inizio);
        if (a_capo == std::string::npos) {
            doc.righe.push_back({testo.substr(inizio), ""});
            break;
        }
        const bool cr = a_capo > inizio && testo[a_capo - 1] == '\r';
        doc.righe.push_back({testo.substr(inizio, a_capo - inizio - (cr ? 1 : 0)), cr ? "\r\n" : "\n"});
        inizio = a_capo + 1;
    }
    return doc;
}

std::optional<std::size_t> TrovaSezione(const Documento& doc, std::string_view sezione) {
    for (std::size_t i = 0; i < doc.righe.size(); ++i) {
        const Classe c = Classifica(doc.righe[i].testo);
        if (c.tipo == Tipo::Sezione && UgualiSenzaMaiuscole(c.nome, sezione)) return i;
    }
    return std::nullopt;
}

// The raw value as the profile reader finds it: first section of that name, first key in it.
std::optional<std::string> ValoreGrezzo(const Documento& doc, std::string_view sezione, std::string_view chiave) {
    const auto intestazione = TrovaSezione(doc, sezione);
    if (!intestazione) return std::nullopt;
    for (std::size_t i = *intestazione + 1; i < doc.righe.size(); ++i) {
        const Classe c = Classifica(doc.righe[i].testo);
        if (c.tipo == Tipo::Sezione) break;
        if (c.tipo == Tipo::Chiave && UgualiSenzaMaiuscole(c.nome, chiave)) return std::string(c.valore);
    }
    return std::nullopt;
}

// Line breaks in a value would split its line in two.
std::string ValoreScrivibile(std::string_view valore) {
    std::string v;
    v.reserve(valore.size());
    for (char c : valore)
        if (c != '\r' && c != '\n' && c != '\0') v += c;
    return v;
}

bool NomeScrivibile(std::string_view nome, bool sezione) {
    if (nome.empty()) return false;
    if (nome.find_first_of(std::string_view("\r\n\0", 3)) != std::string_view::npos) return false;
    if (sezione) return nome.find(']') == std::string_view::npos;
    return nome.find('=') == std::string_view::npos && nome.front() != '[' && nome.front() != ';';
}

void Imposta(Documento& doc, std::string_view sezione, std::string_view chiave, const std::string& valore) {
    const auto intestazione = TrovaSezione(doc, sezione);
    if (!intestazione) {
        if (!doc.righe.empty()) {
            if (doc.righe.back().fine.empty()) doc.righe.back().fine = doc.eol;
            if (!TogliBianchi(doc.righe.back().testo).empty()) doc.righe.push_back({"", doc.eol});
        }
        doc.righe.push_back({fmt::format("[{}]", sezione), doc.eol});
        doc.righe.push_back({fmt::format("{}={}", chiave, valore), doc.eol});
        return;
    }
    std::size_t ultima = *intestazione;
    for (std::size_t i = *intestazione + 1; i < doc.righe.size(); ++i) {
        const Classe c = Classifica(doc.righe[i].testo);
        if (c.tipo == Tipo::Sezione) break;
        if (c.tipo != Tipo::Chiave) continue;
        if (UgualiSenzaMaiuscole(c.nome, chiave)) {
            doc.righe[i].testo = fmt::format("{}={}", c.nome, valore);
            return;
        }
        ultima = i;
    }
    // After the last key, so that comments and blank lines closing the section stay below it.
    if (doc.righe[ultima].fine.empty()) doc.righe[ultima].fine = doc.eol;
    doc.righe.insert(doc.righe.begin() + static_cast<std::ptrdiff_t>(ultima) + 1,
                     Riga{fmt::format("{}={}", chiave, valore), doc.eol});
}

std::string Serializza(const Documento& doc) {
    std::string out = doc.bom;
    for (const Riga& r : doc.righe) {
        out += r.testo;
        out += r.fine;
    }
    return out;
}

// Write beside the target and rename over it, so that a reader never sees half a file.
bool ScriviAtomico(const std::string& nome, const std::string& contenuto) {
    static std::atomic<unsigned> progressivo{0};
    thread_local std::mt19937 casuale{std::random_device{}()};
    const std::string temporaneo =
        fmt::format("{}.{:08x}{:04x}.tmp", nome, static_cast<unsigned>(casuale()), progressivo++ & 0xFFFFu);
    std::error_code ec;
    {
        std::ofstream out(temporaneo, std::ios::binary | std::ios::trunc);
        if (!out) return false;
        out.write(contenuto.data(), static_cast<std::streamsize>(contenuto.size()));
        out.close();
        if (!out) {
            fs::remove(temporaneo, ec);
            return false;
        }
    }
    fs::rename(temporaneo, nome, ec);
    if (ec) {
        fs::remove(temporaneo, ec);
        return false;
    }
    return true;
}

}  // namespace

void FileIni::SetFileName(std::string_view fileName) { fileName_ = TogliSpazi(fileName); }

void FileIni::SetApplicationKey(std::string_view sezione) { applicationKey_ = TogliSpazi(sezione); }

std::string FileIni::GetValue(std::string_view chiave, std::string_view predefinito) const {
    return Leggi(applicationKey_, chiave, predefinito);
}

bool FileIni::SetValue(std::string_view chiave, std::string_view valore) {
    return Scrivi(applicationKey_, chiave, valore);
}

std::string FileIni::Leggi(std::string_view sezione, std::string_view chiave, std::string_view predefinito) const {
    const Documento doc = Carica(fileName_);
    const auto trovato = ValoreGrezzo(doc, TogliBianchi(sezione), TogliBianchi(chiave));
    // The profile reader drops trailing blanks from the default it hands back.
    std::string_view grezzo = trovato ? std::string_view(*trovato) : predefinito;
    if (!trovato)
        while (!grezzo.empty() && grezzo.back() == ' ') grezzo.remove_suffix(1);
    grezzo = PrimiCaratteri(grezzo, kCaratteriBuffer);
    if (grezzo.empty()) return {};

    std::string pulito;
    for (char c : TogliSpazi(grezzo))
        if (static_cast<unsigned char>(c) >= 32) pulito += c;
    return pulito;
}

bool FileIni::Scrivi(std::string_view sezione, std::string_view chiave, std::string_view valore) {
    const CoppiaChiaveValore una{chiave, valore};
    return Scrivi(sezione, std::span<const CoppiaChiaveValore>(&una, 1));
}

bool FileIni::Scrivi(std::string_view sezione, std::span<const CoppiaChiaveValore> valori) {
    sezione = TogliBianchi(sezione);
    if (fileName_.empty() || !NomeScrivibile(sezione, true)) return false;
    for (const auto& [chiave, valore] : valori)
        if (!NomeScrivibile(TogliBianchi(chiave), false)) return false;
    if (valori.empty()) return true;

    std::error_code ec;
    if (fs::exists(fileName_, ec) && !fs::is_regular_file(fileName_, ec)) return false;
    Documento doc = Carica(fileName_);
    if (doc.illeggibile) return false;
    const std::string prima = Serializza(doc);
    for (const auto& [chiave, valore] : valori) Imposta(doc, sezione, TogliBianchi(chiave), ValoreScrivibile(valore));
    const std::string dopo = Serializza(doc);
    if (doc.esiste && dopo == prima) return true;
    return ScriviAtomico(fileName_, dopo);
}

std::string LeggiImpostazione(const FileIni& ini, std::string_view sezione, std::string_view chiave,
                              std::string_view predefinito) {
    return ini.Leggi(sezione, chiave, predefinito);
}

bool ScriviImpostazione(FileIni& ini, std::string_view sezione, std::string_view chiave, std::string_view valore) {
    return ini.Scrivi(sezione, chiave, valore);
}

namespace {
char Minuscola(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

}  // namespace

bool UgualiSenzaMaiuscole(std::string_view a, std::string_view b) {
    return a.size() == b.size() &&
           std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return Minuscola(x) == Minuscola(y); });
}

}  // namespace gorgo::config
