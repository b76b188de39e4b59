#pragma once
// The one number formatter of the program. Formats are the usual picture formats, in
// the subset the program uses:
//   "0"  a digit, always shown;   "#"  a digit, shown only when significant;
//   "."  the decimal point, shown as the Italian decimal comma;
//   "%"  at the end: the value times 100, followed by "%";
//   "@"  a character of a text field: the text right-aligned in as many characters
//        as there are "@", never cut when longer.
// The integer part always shows all its digits, at least as many as there are "0"
// from the first "0" to the point. Decimals are rounded half away from zero on the
// shortest decimal form of the value, so 1.005 with "0.00" gives "1,01" although its
// binary value lies just below. A negative value keeps its "-" even when it rounds to
// zero ("-0,0"), as picture formats have always done.

#include <concepts>
#include <string>
#include <string_view>

namespace gorgo::config {

// The Italian hosts the reports are made for write decimals with a comma.
inline constexpr char SeparatoreDecimale = ',';

std::string Formato(double valore, std::string_view formato);
std::string FormatoIntero(long long valore, std::string_view formato);

template <std::integral T>
std::string Formato(T valore, std::string_view formato) {
    return FormatoIntero(static_cast<long long>(valore), formato);
}

// A text with an "@" format is aligned; with a number format it is read as a number
// ("." or "," as the point) and formatted, and left as it is when it is not one.
std::string Formato(std::string_view testo, std::string_view formato);
inline std::string Formato(const char* testo, std::string_view formato) {
    return Formato(std::string_view(testo), formato);
}

// The text of a number as the host writes it with no format: all its significant
// digits, the decimal comma, no exponent ("2,5", "-3", "0,125").
std::string TestoNumero(double valore);

// Blanks in front up to `larghezza` characters (not bytes); a longer text is left whole.
std::string AllineaDestra(std::string_view testo, int larghezza);
// Blanks behind up to `larghezza` characters; a longer text is left whole.
std::string AllineaSinistra(std::string_view testo, int larghezza);

}  // namespace gorgo::config
