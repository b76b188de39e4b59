#include "config/formato.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>

#include "config/cp1252.h"

namespace gorgo::config {

namespace {

// A value as decimal digits: 0.cifre x 10^punto, so `punto` digits stand before the point.
// Working on the digits, not on the double, is what makes 1.005 round to 1,01.
struct Decimale {
    bool negativo = false;
    std::string cifre = "0";
    int punto = 1;
};

Decimale DaDouble(double valore) {
    // The shortest form that reads back as the same double, in scientific notation so
    // that very large and very small values come out in one shape: "d.ddde+XX".
    char buf[64];
    const auto r = std::to_chars(buf, buf + sizeof buf, std::fabs(valore), std::chars_format::scientific);
    const std::string_view testo(buf, static_cast<std::size_t>(r.ptr - buf));
    const auto e = testo.find('e');
    Decimale d;
    d.negativo = valore < 0;
    d.cifre.clear();
    for (char c : testo.substr(0, e))
        if (c != '.') d.cifre += c;
    int esponente = 0;
    const auto es = testo.substr(e + 1);
    std::from_chars(es.data() + (es.front() == '+' ? 1 : 0), es.data() + es.size(), esponente);
    d.punto = esponente + 1;
    return d;
}

Decimale DaIntero(long long valore) {
    Decimale d;
    d.negativo = valore < 0;
    // Through unsigned, so that the most negative value has a magnitude too.
    const unsigned long long modulo =
        d.negativo ? 0ULL - static_cast<unsigned long long>(valore) : static_cast<unsigned long long>(valore);
    d.cifre = std::to_string(modulo);
    d.punto = static_cast<int>(d.cifre.size());
    return d;
}

struct Figura {
    std::string prima;     // literal text before the digits
    std::string dopo;      // literal text after them, "%" included
    int minimoInteri = 0;  // placeholders from the first "0" to the point
    bool punto = false;
    std::string decimali;  // the "0" and "#" after the point
    bool percento = false;
};

bool Segnaposto(char c) { return c == '0' || c == '#'; }

Figura Leggi(std::string_view formato) {
    Figura f;
    const auto inizio = formato.find_first_of("0#.");
    const auto fine = formato.find_last_of("0#.");
    f.percento = formato.find('%') != std::string_view::npos;
    if (inizio == std::string_view::npos) {
        f.dopo = std::string(formato);
        return f;
    }
    f.prima = std::string(formato.substr(0, inizio));
    f.dopo = std::string(formato.substr(fine + 1));
    bool primoZero = false;
    for (char c : formato.substr(inizio, fine - inizio + 1)) {
        if (c == '.' && !f.punto) {
            f.punto = true;
        } else if (Segnaposto(c) && f.punto) {
            f.decimali += c;
        } else if (Segnaposto(c)) {
            primoZero = primoZero || c == '0';
            if (primoZero) ++f.minimoInteri;
        }
    }
    return f;
}

// Adds one to a string of digits; "" counts as 0.
std::string PiuUno(std::string cifre) {
    for (auto i = cifre.size(); i-- > 0;) {
        if (cifre[i] != '9') {
            ++cifre[i];
            return cifre;
        }
        cifre[i] = '0';
    }
    return '1' + cifre;
}

std::string Componi(Decimale d, const Figura& f) {
    if (f.percento) d.punto += 2;
    const int k = static_cast<int>(f.decimali.size());
    const int len = static_cast<int>(d.cifre.size());
    const int tenute = d.punto + k;

    // The value times 10^k, rounded half away from zero: only the first dropped digit
    // decides, a 5 there being at least half.
    std::string r;
    if (tenute >= len) {
        r = d.cifre + std::string(static_cast<std::size_t>(tenute - len), '0');
    } else {
        if (tenute > 0) r = d.cifre.substr(0, static_cast<std::size_t>(tenute));
        const char primaScartata = tenute >= 0 ? d.cifre[static_cast<std::size_t>(tenute)] : '0';
        if (primaScartata >= '5') r = PiuUno(std::move(r));
    }
    if (static_cast<int>(r.size()) < k) r.insert(0, static_cast<std::size_t>(k) - r.size(), '0');

    std::string interi = r.substr(0, r.size() - static_cast<std::size_t>(k));
    std::string decimali = r.substr(r.size() - static_cast<std::size_t>(k));
    interi.erase(0, std::min(interi.find_first_not_of('0'), interi.size()));
    if (static_cast<int>(interi.size()) < f.minimoInteri)
        interi.insert(0, static_cast<std::size_t>(f.minimoInteri) - interi.size(), '0');
    // Trailing zeros go where their placeholder is "#".
    while (!decimali.empty() && decimali.back() == '0' && f.decimali[decimali.size() - 1] == '#') decimali.pop_back();

    std::string out;
    if (d.negativo) out += '-';
    out += f.prima;
    out += interi;
    if (f.punto) {
        out += SeparatoreDecimale;
        out += decimali;
    }
    out += f.dopo;
    return out;
}

bool FormatoTesto(std::string_view formato) { return formato.find('@') != std::string_view::npos; }

int LarghezzaTesto(std::string_view formato) {
    return static_cast<int>(std::count(formato.begin(), formato.end(), '@'));
}

std::string TestoDecimale(const Decimale& d) {
    const int len = static_cast<int>(d.cifre.size());
    std::string out = d.negativo ? "-" : "";
    if (d.punto <= 0) {
        out += "0";
        out += SeparatoreDecimale;
        out += std::string(static_cast<std::size_t>(-d.punto), '0');
        out += d.cifre;
    } else if (d.punto >= len) {
        out += d.cifre + std::string(static_cast<std::size_t>(d.punto - len), '0');
    } else {
        out += d.cifre.substr(0, static_cast<std::size_t>(d.punto));
        out += SeparatoreDecimale;
        out += d.cifre.substr(static_cast<std::size_t>(d.punto));
    }
    return out;
}

std::string NonFinito(double valore) {
    if (std::isnan(valore)) return "NaN";
    return valore < 0 ? "-Inf" : "Inf";
}

}  // namespace

std::string Formato(double valore, std::string_view formato) {
    if (!std::isfinite(valore)) return NonFinito(valore);
    if (FormatoTesto(formato)) return AllineaDestra(TestoNumero(valore), LarghezzaTesto(formato));
    if (formato.empty()) return TestoNumero(valore);
    return Componi(DaDouble(valore), Leggi(formato));
}

std::string FormatoIntero(long long valore, std::string_view formato) {
    if (FormatoTesto(formato)) return AllineaDestra(std::to_string(valore), LarghezzaTesto(formato));
    if (formato.empty()) return std::to_string(valore);
    return Componi(DaIntero(valore), Leggi(formato));
}

std::string Formato(std::string_view testo, std::string_view formato) {
    if (FormatoTesto(formato)) return AllineaDestra(testo, LarghezzaTesto(formato));
    const auto a = testo.find_first_not_of(' ');
    if (a == std::string_view::npos) return std::string(testo);
    std::string numero(testo.substr(a, testo.find_last_not_of(' ') - a + 1));
    std::replace(numero.begin(), numero.end(), ',', '.');
    double valore = 0;
    const auto r = std::from_chars(numero.data(), numero.data() + numero.size(), valore);
    if (r.ec != std::errc() || r.ptr != numero.data() + numero.size() || !std::isfinite(valore))
        return std::string(testo);
    return Formato(valore, formato);
}

std::string TestoNumero(double valore) {
    if (!std::isfinite(valore)) return NonFinito(valore);
    if (valore == 0) return "0";
    return TestoDecimale(DaDouble(valore));
}

std::string AllineaDestra(std::string_view testo, int larghezza) {
    const auto n = static_cast<int>(NumeroCaratteri(testo));
    if (n >= larghezza) return std::string(testo);
    return std::string(static_cast<std::size_t>(larghezza - n), ' ') + std::string(testo);
}

std::string AllineaSinistra(std::string_view testo, int larghezza) {
    const auto n = static_cast<int>(NumeroCaratteri(testo));
    if (n >= larghezza) return std::string(testo);
    return std::string(testo) + std::string(static_cast<std::size_t>(larghezza - n), ' ');
}

}  // namespace gorgo::config
