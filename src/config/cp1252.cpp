#include "config/cp1252.h"

#include <array>
#include <cstdint>

namespace gorgo::config {

namespace {

constexpr char32_t kSostituto = 0xFFFD;

// 0x80..0x9F; the rest of the code page is Latin-1.
constexpr std::array<char32_t, 32> kAlti = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                            0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                            0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                            0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t CodiceDiByte(unsigned char b) { return b >= 0x80 && b <= 0x9F ? kAlti[b - 0x80] : char32_t{b}; }

// -1 when the character has no byte.
int ByteDiCodice(char32_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return static_cast<int>(c);
    for (std::size_t i = 0; i < kAlti.size(); ++i)
        if (kAlti[i] == c) return static_cast<int>(0x80 + i);
    return -1;
}

// Strict decoding of one character at s[i]: overlong forms, surrogates and values past
// U+10FFFF are refused. Returns the bytes used (1 for a refused byte, with U+FFFD).
std::size_t Decodifica(std::string_view s, std::size_t i, char32_t& codice) {
    const auto b0 = static_cast<unsigned char>(s[i]);
    if (b0 < 0x80) {
        codice = b0;
        return 1;
    }
    std::size_t lunghezza = 0;
    unsigned char min1 = 0x80, max1 = 0xBF;
    char32_t valore = 0;
    if (b0 >= 0xC2 && b0 <= 0xDF) {
        lunghezza = 2;
        valore = b0 & 0x1F;
    } else if (b0 >= 0xE0 && b0 <= 0xEF) {
        lunghezza = 3;
        valore = b0 & 0x0F;
        if (b0 == 0xE0) min1 = 0xA0;
        if (b0 == 0xED) max1 = 0x9F;
    } else if (b0 >= 0xF0 && b0 <= 0xF4) {
        lunghezza = 4;
        valore = b0 & 0x07;
        if (b0 == 0xF0) min1 = 0x90;
        if (b0 == 0xF4) max1 = 0x8F;
    } else {
        codice = kSostituto;
        return 1;
    }
    if (i + lunghezza > s.size()) {
        codice = kSostituto;
        return 1;
    }
    for (std::size_t k = 1; k < lunghezza; ++k) {
        const auto b = static_cast<unsigned char>(s[i + k]);
        const unsigned char lo = k == 1 ? min1 : 0x80;
        const unsigned char hi = k == 1 ? max1 : 0xBF;
        if (b < lo || b > hi) {
            codice = kSostituto;
            return 1;
        }
        valore = (valore << 6) | (b & 0x3F);
    }
    codice = valore;
    return lunghezza;
}

void Codifica(char32_t c, std::string& out) {
    if (c >= 0xD800 && c <= 0xDFFF) c = kSostituto;
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c <= 0x10FFFF) {
        out += static_cast<char>(0xF0 | (c >> 18));
        out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        Codifica(kSostituto, out);
    }
}

}  // namespace

std::string Utf8InCp1252(std::string_view utf8) {
    std::string out;
    out.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) {
        char32_t c;
        i += Decodifica(utf8, i, c);
        const int b = ByteDiCodice(c);
        out += b < 0 ? '?' : static_cast<char>(b);
    }
    return out;
}

std::string Cp1252InUtf8(std::string_view cp1252) {
    std::string out;
    out.reserve(cp1252.size() * 2);
    for (char b : cp1252) Codifica(CodiceDiByte(static_cast<unsigned char>(b)), out);
    return out;
}

std::size_t NumeroCaratteri(std::string_view utf8) {
    std::size_t n = 0;
    for (std::size_t i = 0; i < utf8.size(); ++n) {
        char32_t c;
        i += Decodifica(utf8, i, c);
    }
    return n;
}

std::u32string Utf8InCodici(std::string_view utf8) {
    std::u32string out;
    out.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) {
        char32_t c;
        i += Decodifica(utf8, i, c);
        out += c;
    }
    return out;
}

std::string CodiciInUtf8(std::u32string_view codici) {
    std::string out;
    out.reserve(codici.size());
    for (char32_t c : codici) Codifica(c, out);
    return out;
}

}  // namespace gorgo::config
