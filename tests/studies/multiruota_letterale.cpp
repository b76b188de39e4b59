#include "studies/multiruota_letterale.h"

#include <algorithm>
#include <cstdlib>
#include <map>

#include "config/formato.h"

namespace gorgo::test {

namespace {

// The formation is out on wheel w of draw i.
bool Uscita(const archives::StoriaLotto& st, int i, int w, const std::vector<int>& f, int richiesti) {
    int presenti = 0;
    for (int n : f)
        for (int k = 1; k <= 5; ++k)
            if (st[i].Numero(w, k) == n) presenti++;
    return presenti >= richiesti;
}

}  // namespace

studies::EsitoMultiruota RicercaMultiruotaLetterale(const archives::StoriaLotto& st,
                                                    const studies::ParametriMultiruota& p) {
    studies::EsitoMultiruota e;
    if (p.Volte < 1) {
        e.errore = {std::string(studies::MessaggioVolte), "Errore", archives::Icona::Esclamazione};
        return e;
    }
    e.formazioni = studies::Formazioni(st[p.Base], p.RuotaRicerca, p.TipoRicerca);
    const int richiesti = studies::NumeriRichiesti(p.TipoRicerca);
    const int n = st.NumeroEstrazioni();
    for (const auto& f : e.formazioni) {
        // Presenze[ciclo][ruota]
        std::vector<std::array<int, 12>> presenze;
        std::array<int, 12> sortite{};
        int cicli = 0;
        for (int i = p.Base; i >= 1; --i) {
            if (!Uscita(st, i, p.RuotaRicerca, f, richiesti)) continue;
            std::array<int, 12> presenza{};
            bool colpito = false;
            int colpo = 1, j = i + 1;
            while (j <= n && (p.Estrazioni == 0 || colpo <= p.Estrazioni)) {
                bool qui = false;
                for (int w = 1; w <= 11; ++w)
                    if (Uscita(st, j, w, f, richiesti)) {
                        presenza[static_cast<size_t>(w)] = 1;
                        sortite[static_cast<size_t>(w)]++;
                        qui = colpito = true;
                    }
                if (p.Estrazioni == 0 && qui) break;
                colpo++;
                j++;
            }
            if (p.Estrazioni > 0 || colpito) {
                presenze.push_back(presenza);
                cicli++;
            }
            if (cicli == p.Volte) break;
        }
        std::array<int, 12> perCiclo{};
        for (const auto& c : presenze)
            for (int w = 1; w <= 11; ++w) perCiclo[static_cast<size_t>(w)] += c[static_cast<size_t>(w)];
        e.cicli.push_back(cicli);
        e.sortite.push_back(sortite);
        e.cicliRuota.push_back(perCiclo);
    }
    if (!e.formazioni.empty()) studies::ClassificaMultiruota(e, p.Classifica);
    return e;
}

std::vector<std::string> ConvergenzeLetterale(const std::vector<std::string>& righe) {
    static std::vector<int> terni(91 * 91 * 91);
    std::fill(terni.begin(), terni.end(), 0);
    std::vector<int> ambi(91 * 91);
    // The hidden work list: texts and their counts, searched one by one.
    std::vector<std::pair<std::string, int>> quaterne, cinquine;
    const auto conta = [](std::vector<std::pair<std::string, int>>& lista, const std::string& testo) {
        for (auto& [t, c] : lista)
            if (t == testo) {
                c++;
                return;
            }
        lista.push_back({testo, 1});
    };
    int maxA = 0, maxT = 0, maxQ = 0, maxC = 0;
    for (const std::string& riga : righe) {
        if (riga.size() != 14) continue;
        int n[5];
        for (int k = 0; k < 5; ++k) n[k] = std::atoi(riga.substr(static_cast<size_t>(3 * k), 2).c_str());
        std::sort(n, n + 5);
        const auto dd = [](int v) { return config::Formato(v, "00"); };
        for (int a = 0; a < 5; ++a)
            for (int b = a + 1; b < 5; ++b) {
                maxA = std::max(maxA, ++ambi[static_cast<size_t>(n[a] * 91 + n[b])]);
                for (int c = b + 1; c < 5; ++c)
                    maxT = std::max(maxT, ++terni[static_cast<size_t>((n[a] * 91 + n[b]) * 91 + n[c])]);
            }
        for (int fuori = 0; fuori < 5; ++fuori) {
            std::string t;
            for (int k = 0; k < 5; ++k)
                if (k != fuori) t += (t.empty() ? "" : " ") + dd(n[k]);
            conta(quaterne, t);
        }
        conta(cinquine, dd(n[0]) + " " + dd(n[1]) + " " + dd(n[2]) + " " + dd(n[3]) + " " + dd(n[4]));
    }
    for (const auto& [t, c] : quaterne) maxQ = std::max(maxQ, c);
    for (const auto& [t, c] : cinquine) maxC = std::max(maxC, c);
    std::sort(quaterne.begin(), quaterne.end());
    std::sort(cinquine.begin(), cinquine.end());
    std::vector<std::string> out;
    const auto at = [](int v) { return config::Formato(v, "@@"); };
    for (int c = maxA; c >= 2; --c)
        for (int a = 1; a <= 90; ++a)
            for (int b = a + 1; b <= 90; ++b)
                if (ambi[static_cast<size_t>(a * 91 + b)] == c)
                    out.push_back("Ambo " + at(a) + "-" + at(b) + " : " + std::to_string(c) + " presenze");
    for (int c = maxT; c >= 2; --c)
        for (int a = 1; a <= 90; ++a)
            for (int b = a + 1; b <= 90; ++b)
                for (int d = b + 1; d <= 90; ++d)
                    if (terni[static_cast<size_t>((a * 91 + b) * 91 + d)] == c)
                        out.push_back("Terno " + at(a) + "-" + at(b) + "-" + at(d) + " : " + std::to_string(c) +
                                      " presenze");
    const auto lista = [&](const std::vector<std::pair<std::string, int>>& l, int massimo, const char* nome) {
        for (int c = massimo; c >= 2; --c)
            for (const auto& [t, conteggio] : l) {
                if (conteggio != c) continue;
                std::string numeri;
                for (size_t k = 0; k < t.size(); k += 3)
                    numeri += (k ? "-" : "") + at(std::atoi(t.substr(k, 2).c_str()));
                out.push_back(std::string(nome) + " " + numeri + " : " + std::to_string(c) + " pres.");
            }
    };
    lista(quaterne, maxQ, "Quat.");
    lista(cinquine, maxC, "Cin.");
    if (out.empty()) out.emplace_back(studies::NessunaConvergenza);
    return out;
}

}  // namespace gorgo::test
