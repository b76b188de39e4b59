#pragma once
// Text inside the program is UTF-8; text reports on disk are Windows-1252, the
// single-byte Western code page of the hosts the reports are read on.

#include <cstddef>
#include <string>
#include <string_view>

namespace gorgo::config {

// A character with no Windows-1252 byte, or a byte that is not valid UTF-8, becomes "?".
std::string Utf8InCp1252(std::string_view utf8);

// Every byte has a character: the five holes of the code page (0x81, 0x8D, 0x8F, 0x90,
// 0x9D) stand for the control characters of the same value, as the host reads them.
std::string Cp1252InUtf8(std::string_view cp1252);

// Characters, not bytes: report columns are character cells, and "°", "à" take two bytes.
// A byte that is not valid UTF-8 counts as one character, as it will be one "?" on disk.
std::size_t NumeroCaratteri(std::string_view utf8);

// The text as code points; invalid bytes become U+FFFD one by one.
std::u32string Utf8InCodici(std::string_view utf8);
std::string CodiciInUtf8(std::u32string_view codici);

}  // namespace gorgo::config
