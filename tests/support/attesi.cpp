#include "support/attesi.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include <fmt/format.h>

#include "support/cartelle.h"

namespace gorgo::test {

namespace fs = std::filesystem;

namespace {

std::vector<std::string_view> Linee(std::string_view s) {
    std::vector<std::string_view> v;
    while (!s.empty()) {
        const size_t a = s.find('\n');
        v.push_back(s.substr(0, a == std::string_view::npos ? s.size() : a + 1));
        s.remove_prefix(v.back().size());
    }
    return v;
}

// A line as a reader can compare it: CR, LF, tabs and bytes outside ASCII spelled out.
std::string Visibile(std::string_view linea) {
    std::string r;
    for (unsigned char c : linea) {
        if (c == '\r')
            r += "\\r";
        else if (c == '\n')
            r += "\\n";
        else if (c == '\t')
            r += "\\t";
        else if (c < 0x20 || c >= 0x7F)
            r += fmt::format("\\x{:02X}", c);
        else
            r += static_cast<char>(c);
    }
    return r;
}

}  // namespace

::testing::AssertionResult ConfrontaConAtteso(std::string_view testo, std::string_view percorso) {
    const fs::path file = fs::path(GORGO_SOURCE_DIR) / "tests" / percorso;
    const char* aggiorna = std::getenv("GORGO_AGGIORNA_ATTESI");
    if (aggiorna && std::string_view(aggiorna) == "1") {
        fs::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary | std::ios::trunc)
            .write(testo.data(), static_cast<std::streamsize>(testo.size()));
        return ::testing::AssertionSuccess() << "riscritto " << file.string();
    }
    if (!fs::exists(file))
        return ::testing::AssertionFailure() << file.string() << " non esiste (GORGO_AGGIORNA_ATTESI=1 lo crea)";
    const std::string atteso = LeggiFile(file);
    if (atteso == testo) return ::testing::AssertionSuccess();

    // Line by line, from the first difference: "-" expected, "+" obtained.
    const auto a = Linee(atteso), b = Linee(testo);
    auto esito = ::testing::AssertionFailure();
    esito << "diverso da " << file.string() << " (GORGO_AGGIORNA_ATTESI=1 lo riscrive)\n";
    size_t mostrate = 0;
    for (size_t i = 0; i < std::max(a.size(), b.size()) && mostrate < 20; ++i) {
        const std::string_view x = i < a.size() ? a[i] : std::string_view(),
                               y = i < b.size() ? b[i] : std::string_view();
        if (x == y) continue;
        ++mostrate;
        esito << "riga " << i + 1 << ":\n";
        if (i < a.size()) esito << "  - " << Visibile(x) << "\n";
        if (i < b.size()) esito << "  + " << Visibile(y) << "\n";
    }
    esito << "righe attese " << a.size() << ", ottenute " << b.size();
    return esito;
}

std::string TestoRighe(const std::vector<config::RigaTesto>& righe) {
    std::string s;
    for (const auto& r : righe) s.append(r.nuovaPagina ? "\f" : "").append(r.testo).append("\n");
    return s;
}

std::string TestoRighe(const std::vector<std::string>& righe) {
    std::string s;
    for (const auto& r : righe) s.append(r).append("\n");
    return s;
}

}  // namespace gorgo::test
