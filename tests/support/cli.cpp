#include "support/cli.h"

#include <sys/wait.h>
#include <array>
#include <cstdio>
#include <cstdlib>

#include "support/cartelle.h"

namespace gorgo::test {

namespace {

// Single quotes for the shell, with a quote inside closed and reopened.
std::string Quota(const std::string& s) {
    std::string q(1, '\'');
    for (char c : s) {
        if (c == '\'')
            q.append("'\\''");
        else
            q.push_back(c);
    }
    q.push_back('\'');
    return q;
}

}  // namespace

Esito Esegui(const std::vector<std::string>& argomenti) {
    const char* cli = std::getenv("GORGO_CLI");
    CartellaTemporanea tmp;
    std::string comando = Quota(cli ? cli : "gorgo-cli");
    for (const auto& a : argomenti) comando.append(" ").append(Quota(a));
    comando.append(" 2>").append(Quota((tmp / "err").string()));
    Esito e;
    FILE* p = ::popen(comando.c_str(), "r");
    if (!p) return e;
    std::array<char, 4096> buf{};
    size_t n;
    while ((n = std::fread(buf.data(), 1, buf.size(), p)) > 0) e.out.append(buf.data(), n);
    const int stato = ::pclose(p);
    e.codice = WIFEXITED(stato) ? WEXITSTATUS(stato) : -1;
    e.err = LeggiFile(tmp / "err");
    return e;
}

}  // namespace gorgo::test
