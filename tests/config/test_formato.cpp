#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "config/cp1252.h"
#include "config/formato.h"

using namespace gorgo::config;

namespace {

struct Caso {
    double valore;
    const char* formato;
    const char* atteso;
};

// Worked out by hand, one by one; the ties are the ones binary doubles get wrong.
// clang-format off
const Caso kCasi[] = {
    {0, "00", "00"}, {5, "00", "05"}, {90, "00", "90"}, {123, "00", "123"}, {-5, "00", "-05"},
    {9.5, "00", "10"}, {2.5, "00", "03"}, {0.49, "00", "00"}, {-0.5, "00", "-01"},
    {7, "000", "007"}, {1000, "000", "1000"},
    {42, "0000", "0042"},
    {3, "00000", "00003"}, {123456, "00000", "123456"},
    {12, "000000", "000012"},
    {0, "#0", "0"}, {7, "#0", "7"}, {-3, "#0", "-3"}, {0.5, "#0", "1"}, {1.5, "#0", "2"}, {2.5, "#0", "3"},
    {-2.5, "#0", "-3"},
    {0, "###0", "0"}, {12345, "###0", "12345"},
    {17, "####0", "17"},
    {0, "0.0", "0,0"}, {0.05, "0.0", "0,1"}, {0.25, "0.0", "0,3"}, {0.15, "0.0", "0,2"},
    {-0.04, "0.0", "-0,0"}, {99.95, "0.0", "100,0"},
    {5.25, "00.0", "05,3"}, {123.4, "00.0", "123,4"},
    {0, "#0.0", "0,0"}, {12.345, "#0.0", "12,3"}, {9.95, "#0.0", "10,0"},
    {100, "##0.0", "100,0"},
    {1.25, "#00.0", "01,3"},
    {7.5, "000.0", "007,5"},
    {0.125, "0.00", "0,13"}, {1.005, "0.00", "1,01"}, {2.675, "0.00", "2,68"}, {-0.125, "0.00", "-0,13"},
    {0.001, "0.00", "0,00"}, {0.005, "0.00", "0,01"},
    {0.5, "##0.00", "0,50"}, {123.456, "##0.00", "123,46"},
    {1234.5, "###0.00", "1234,50"},
    {0.0005, "#0.000", "0,001"}, {1.0005, "#0.000", "1,001"},
    {3.14159265, "#0.0000", "3,1416"}, {0.00005, "#0.0000", "0,0001"},
    {0.1234, "#0.0%", "12,3%"}, {0.5, "#0.0%", "50,0%"}, {1, "#0.0%", "100,0%"}, {0.00125, "#0.0%", "0,1%"},
    {0.0005, "#0.0%", "0,1%"}, {-0.25, "#0.0%", "-25,0%"}, {0, "#0.0%", "0,0%"},
    {0.00125, "#0.00%", "0,13%"}, {0.123456, "#0.00%", "12,35%"}, {1.005, "#0.00%", "100,50%"},
    {0.011115, "#0.00%", "1,11%"}, {0.00005, "#0.00%", "0,01%"},
    {0.145, "#0.0%", "14,5%"}, {0.0145, "#0.0%", "1,5%"},
    {1e15, "0", "1000000000000000"}, {123456789012.5, "0", "123456789013"},
    {1e20, "#0.0", "100000000000000000000,0"},
    {1e-20, "0.00", "0,00"},
    {5, "@@", " 5"}, {123, "@@", "123"},
    {7, "@@@", "  7"},
    {1, "@@@@", "   1"}, {12345, "@@@@", "12345"}, {2.5, "@@@@", " 2,5"}, {-3, "@@@@", "  -3"},
};
// clang-format on

TEST(Formato, CasiScrittiAMano) {
    for (const auto& c : kCasi)
        EXPECT_EQ(Formato(c.valore, c.formato), c.atteso) << c.valore << " con \"" << c.formato << "\"";
}

TEST(Formato, InteriComeDouble) {
    EXPECT_EQ(Formato(7, "00"), "07");
    EXPECT_EQ(Formato(-7, "000"), "-007");
    EXPECT_EQ(Formato(3, "0.00"), "3,00");
    EXPECT_EQ(Formato(1, "#0.00%"), "100,00%");
    EXPECT_EQ(Formato(0, "#0.0%"), "0,0%");
    EXPECT_EQ(Formato(LLONG_MIN, "0"), "-9223372036854775808");
    EXPECT_EQ(Formato(LLONG_MAX, "#0.0"), "9223372036854775807,0");
    EXPECT_EQ(Formato(7u, "@@@"), "  7");
    EXPECT_EQ(Formato(static_cast<short>(-12), "@@@@"), " -12");
    for (int n = -1000; n <= 1000; n += 7)
        for (const char* f : {"00", "###0", "#0.0", "0.00", "#0.0%", "@@@@"})
            EXPECT_EQ(Formato(n, f), Formato(static_cast<double>(n), f)) << n << " " << f;
}

TEST(Formato, TestiEAllineamento) {
    EXPECT_EQ(Formato("è", "@@"), " è");
    EXPECT_EQ(Formato("più", "@@@@"), " più");
    EXPECT_EQ(Formato("Venezia", "@@@"), "Venezia");
    EXPECT_EQ(Formato(std::string("--"), "@@@@"), "  --");
    // A number as text is a number; anything else is left as it is.
    EXPECT_EQ(Formato("12,25", "#0.0"), "12,3");
    EXPECT_EQ(Formato(" 7 ", "00"), "07");
    EXPECT_EQ(Formato("--", "00"), "--");
    EXPECT_EQ(Formato("", "00"), "");

    EXPECT_EQ(AllineaDestra("°C", 4), "  °C");
    EXPECT_EQ(AllineaDestra("Torino", 3), "Torino");
    EXPECT_EQ(AllineaSinistra("à", 3), "à  ");

    EXPECT_EQ(TestoNumero(1e-7), "0,0000001");
    EXPECT_EQ(TestoNumero(-1.5e17), "-150000000000000000");
}

TEST(Formato, FormatiFuoriDalComune) {
    // "#" after the point: trailing zeros go, the point stays.
    EXPECT_EQ(Formato(1.5, "0.0#"), "1,5");
    EXPECT_EQ(Formato(1.25, "0.0#"), "1,25");
    EXPECT_EQ(Formato(1, "0.##"), "1,");
    EXPECT_EQ(Formato(0, "#"), "");
    EXPECT_EQ(Formato(0.5, "#.00"), ",50");
    EXPECT_EQ(Formato(3.25, ""), "3,25");
    EXPECT_EQ(Formato(std::nan(""), "0.0"), "NaN");
    EXPECT_EQ(Formato(-INFINITY, "0.0"), "-Inf");
}

// ---- the reference: shortest form by printf and strtod, rounding by 128-bit integers.

struct Figura {
    const char* formato;
    int minimoInteri;
    int decimali;
    bool percento;
};

const Figura kFigure[] = {
    {"00", 2, 0, false},      {"000", 3, 0, false},    {"0000", 4, 0, false},    {"00000", 5, 0, false},
    {"000000", 6, 0, false},  {"#0", 1, 0, false},     {"###0", 1, 0, false},    {"####0", 1, 0, false},
    {"0.0", 1, 1, false},     {"00.0", 2, 1, false},   {"#0.0", 1, 1, false},    {"##0.0", 1, 1, false},
    {"#00.0", 2, 1, false},   {"000.0", 3, 1, false},  {"0.00", 1, 2, false},    {"##0.00", 1, 2, false},
    {"###0.00", 1, 2, false}, {"#0.000", 1, 3, false}, {"#0.0000", 1, 4, false}, {"#0.0%", 1, 1, true},
    {"#0.00%", 1, 2, true},
};

__extension__ typedef unsigned __int128 u128;

u128 Potenza10(int n) {
    u128 p = 1;
    while (n-- > 0) p *= 10;
    return p;
}

std::string Cifre(u128 v) {
    std::string s;
    do {
        s.insert(s.begin(), static_cast<char>('0' + static_cast<int>(v % 10)));
        v /= 10;
    } while (v);
    return s;
}

std::string Riferimento(double v, const Figura& f) {
    // The fewest significant digits that read back as v.
    char buf[64];
    for (int p = 1; p <= 17; ++p) {
        std::snprintf(buf, sizeof buf, "%.*e", p - 1, std::fabs(v));
        if (std::strtod(buf, nullptr) == std::fabs(v)) break;
    }
    // buf is "d.ddde+XX": |v| = M x 10^E exactly.
    u128 m = 0;
    int cifreDopo = 0;
    bool dopo = false;
    char* c = buf;
    for (; *c != 'e'; ++c) {
        if (*c == '.') {
            dopo = true;
            continue;
        }
        m = m * 10 + static_cast<unsigned>(*c - '0');
        cifreDopo += dopo;
    }
    int e = std::atoi(c + 1) - cifreDopo + (f.percento ? 2 : 0) + f.decimali;
    u128 r;
    if (e >= 0) {
        r = m * Potenza10(e);
    } else if (-e > 30) {
        r = 0;
    } else {
        const u128 d = Potenza10(-e);
        r = m / d + (2 * (m % d) >= d ? 1 : 0);
    }
    const u128 scala = Potenza10(f.decimali);
    std::string interi = Cifre(r / scala);
    if (interi == "0") interi.clear();
    if (static_cast<int>(interi.size()) < f.minimoInteri)
        interi.insert(0, static_cast<std::size_t>(f.minimoInteri) - interi.size(), '0');
    std::string out = v < 0 ? "-" : "";
    out += interi;
    if (f.decimali > 0) {
        std::string dec = Cifre(r % scala);
        dec.insert(0, static_cast<std::size_t>(f.decimali) - dec.size(), '0');
        out += "," + dec;
    }
    if (f.percento) out += "%";
    return out;
}

std::string Esatto(double v) {
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.17g", v);
    return buf;
}

TEST(Formato, ControRiferimentoSuValoriCasuali) {
    std::mt19937_64 gen(20240611);
    std::vector<double> valori = {0.0, -0.0, 1.0, -1.0, 0.5, 0.05, 0.005, 0.0005, 0.00005};
    std::uniform_int_distribution<long long> intero(-2'000'000, 2'000'000);
    std::uniform_int_distribution<int> scala(0, 7);
    std::uniform_real_distribution<double> reale(-1.0, 1.0);
    std::uniform_int_distribution<int> esponente(-6, 11);
    for (int i = 0; i < 4000; ++i) {
        // Short decimals (ties among them), exact ties, and plain doubles of all sizes.
        valori.push_back(static_cast<double>(intero(gen)) / std::pow(10.0, scala(gen)));
        const int k = scala(gen) % 5;
        valori.push_back(static_cast<double>(2 * (intero(gen) / 10) + 1) * 5 / std::pow(10.0, k + 1));
        valori.push_back(reale(gen) * std::pow(10.0, esponente(gen)));
    }
    int errori = 0;
    for (double v : valori)
        for (const auto& f : kFigure) {
            const auto atteso = Riferimento(v, f);
            const auto ottenuto = Formato(v, f.formato);
            if (ottenuto != atteso && ++errori <= 20)
                ADD_FAILURE() << Esatto(v) << " con \"" << f.formato << "\": " << ottenuto << " invece di " << atteso;
        }
    EXPECT_EQ(errori, 0);
}

}  // namespace
