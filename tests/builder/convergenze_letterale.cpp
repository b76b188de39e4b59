// The convergences, the lunghetta and the abbinamenti written out step by step, on the texts
// the lists hold. Slow and plain on purpose.
//
// Readings shared with the engines:
// - the forecast of a row is what lblCapo shows once the row is verified in the visible mode;
//   a row counts as running when its silent verification (selection mode, ColpiDaGiocare)
//   gives a running case;
// - a pair or triple with a repeated number is not counted; the terzine's line opens with
//   "Terzina/e ";
// - the lunghetta marks numbers one at a time and stops at the length asked, even inside a
//   row; a row whose forecast is empty is skipped; the chosen numbers are listed ascending;
//   the period's last draw is DataA's;
// - the abbinamenti count a case on every search wheel with the spy, and stop at ten cases.

#include "convergenze_letterale.h"

#include <fmt/format.h>
#include <algorithm>

#include "archives/record.h"
#include "builder/chiavi.h"
#include "builder/parametri.h"
#include "config/formato.h"
#include "config/restrizioni.h"
#include "verifica_letterale.h"

namespace gorgo::builder::letterale {

namespace {

int Val(const std::string& t) {
    size_t i = 0;
    while (i < t.size() && t[i] == ' ') ++i;
    int v = 0;
    while (i < t.size() && t[i] >= '0' && t[i] <= '9') v = v * 10 + (t[i++] - '0');
    return v;
}

std::vector<int> Spezza(const std::string& t) {
    std::vector<int> x;
    if (t.find_first_not_of(' ') == std::string::npos) return x;
    std::string pezzo;
    for (char c : t + "-") {
        if (c == '-') {
            x.push_back(Val(pezzo));
            pezzo.clear();
        } else {
            pezzo += c;
        }
    }
    return x;
}

std::string Verbo(const std::string& elenco) { return elenco.size() < 13 ? " previsto " : " previsti "; }

std::string Due(int n) { return fmt::format("{:>2}", n); }

// Play wheels as in the search: the flags, then box 0 sets 1..10.
std::array<bool, 12> Ruote(const std::array<bool, 12>& c) {
    std::array<bool, 12> r{};
    for (int w = 1; w <= 11; ++w) r[w] = c[w];
    if (c[0])
        for (int w = 1; w <= 10; ++w) r[w] = true;
    return r;
}

}  // namespace

Convergenze CalcolaConvergenze(const ParametriRicerca& p, const ContestoRicerca& ctx,
                               const std::vector<RigaAlgoritmo>& righe) {
    Convergenze out;
    bool almenoUna = false;
    for (const RigaAlgoritmo& r : righe) almenoUna = almenoUna || r.selezionata;
    if (!almenoUna) {
        out.messaggio = "Nessun  algoritmo selezionato!";
        return out;
    }
    for (const RigaAlgoritmo& r : righe) {
        if (!r.selezionata) continue;
        const Verifica s =
            VerificaAlgoritmo(p, ctx, r.descrizione, r.chiave, r.testoSpia, true, p.colpiDaGiocare, true);
        if (!s.errore.testo.empty() || s.inCorso <= 0) continue;
        const Verifica v =
            VerificaAlgoritmo(p, ctx, r.descrizione, r.chiave, r.testoSpia, false, p.colpiDaGiocare, false);
        out.lista.push_back({r.descrizione, v.lblCapo});
    }
    if (out.lista.empty()) {
        out.messaggio = "Nessun algoritmo con previsione in corso!";
        return out;
    }
    static int numero[91];
    static int ambo[91][91];
    static int terzina[91][91][91];
    std::fill(&numero[0], &numero[0] + 91, 0);
    std::fill(&ambo[0][0], &ambo[0][0] + 91 * 91, 0);
    std::fill(&terzina[0][0][0], &terzina[0][0][0] + 91 * 91 * 91, 0);
    int maxN = 0, maxA = 0, maxT = 0;
    for (const auto& riga : out.lista) {
        std::vector<int> x = Spezza(riga[1]);
        bool buoni = true;
        for (int n : x) buoni = buoni && n >= 1 && n <= 90;
        if (!buoni) continue;
        if (x.size() == 1) {
            numero[x[0]]++;
            if (numero[x[0]] > maxN) maxN = numero[x[0]];
        }
        if (x.size() == 2 || x.size() == 3) {
            std::sort(x.begin(), x.end());
            if (x.size() == 3 && x[0] != x[1] && x[1] != x[2]) {
                terzina[x[0]][x[1]][x[2]]++;
                if (terzina[x[0]][x[1]][x[2]] > maxT) maxT = terzina[x[0]][x[1]][x[2]];
            }
            for (size_t i = 0; i < x.size(); ++i)
                for (size_t j = i + 1; j < x.size(); ++j)
                    if (x[i] != x[j]) {
                        ambo[x[i]][x[j]]++;
                        if (ambo[x[i]][x[j]] > maxA) maxA = ambo[x[i]][x[j]];
                    }
        }
    }
    if (maxN < 2 && maxA < 2 && maxT < 2) {
        out.messaggio = "Nessuna convergenza rilevata!";
        return out;
    }
    std::string testo;
    if (maxN >= 2) {
        std::string elenco;
        for (int n = 1; n <= 90; ++n)
            if (numero[n] == maxN) elenco += (elenco.empty() ? "" : " e ") + Due(n);
        testo += "N. " + elenco + Verbo(elenco) + std::to_string(maxN) + " volte";
    }
    const int tipo = static_cast<int>(p.tipoRicerca);
    if (maxA > 1 && tipo >= 1 && tipo <= 4) {
        std::string elenco;
        for (int a = 1; a <= 90; ++a)
            for (int b = a + 1; b <= 90; ++b)
                if (ambo[a][b] == maxA) elenco += (elenco.empty() ? "" : " e ") + Due(a) + "-" + Due(b);
        if (!testo.empty()) testo += "\n";
        testo += "Ambo/i " + elenco + Verbo(elenco) + std::to_string(maxA) + " volte";
    }
    if (maxT >= 2) {
        std::string elenco;
        for (int a = 1; a <= 90; ++a)
            for (int b = a + 1; b <= 90; ++b)
                for (int c = b + 1; c <= 90; ++c)
                    if (terzina[a][b][c] == maxT)
                        elenco += (elenco.empty() ? "" : " e ") + Due(a) + "-" + Due(b) + "-" + Due(c);
        if (!testo.empty()) testo += "\n";
        testo += "Terzina/e " + elenco + Verbo(elenco) + std::to_string(maxT) + " volte";
    }
    out.messaggio = testo;
    return out;
}

Lunghetta ElaboraLunghetta(const ParametriRicerca& p, const ContestoRicerca& ctx,
                           const std::vector<RigaAlgoritmo>& righe, int lunghezza, bool ruotaMigliore) {
    Lunghetta out;
    if (righe.empty()) {
        out.errore = "Prima è necessario effettuare la ricerca!";
        return out;
    }
    const archives::StoriaLotto& s = *ctx.storia;
    const RicercaValidata v = ValidaRicerca(p, s);
    if (!v.errore.vuoto()) return out;
    const std::array<bool, 12> gioco = Ruote(p.ruoteGioco);
    int W = 0;
    for (int w = 1; w <= 11; ++w) W += p.ruoteGioco[w];
    if (p.ruoteGioco[0]) W = p.ruoteGioco[11] ? 11 : 10;
    const int L = v.ultimoPeriodo;

    // Recente: by number, or by number and wheel.
    int recente[91];
    int recenteRuota[91][12];
    for (int n = 0; n <= 90; ++n) {
        recente[n] = 50;
        for (int w = 0; w < 12; ++w) recenteRuota[n][w] = 50;
    }
    if (ruotaMigliore) {
        for (int w = 1; w <= 11; ++w) {
            if (!gioco[w]) continue;
            for (int k = 0; k <= 5; ++k) {
                if (L - k < 1) break;
                for (int i = 0; i < 5; ++i) {
                    const int n = s[L - k].Ruota[w - 1][i];
                    if (n >= 1 && n <= 90 && recenteRuota[n][w] == 50) recenteRuota[n][w] = k;
                }
            }
        }
    } else {
        int B = 2;
        if (W <= 1)
            B = 5;
        else if (W == 2)
            B = 4;
        else if (W <= 5)
            B = 3;
        for (int k = 0; k <= B; ++k) {
            if (L - k < 1) break;
            for (int w = 1; w <= 11; ++w) {
                if (!gioco[w]) continue;
                for (int i = 0; i < 5; ++i) {
                    const int n = s[L - k].Ruota[w - 1][i];
                    if (n >= 1 && n <= 90 && recente[n] == 50) recente[n] = k;
                }
            }
        }
    }

    bool scelto[91] = {};
    int marcati = 0;
    auto prevedi = [&](const RigaAlgoritmo& r, std::string& capo) {
        const Verifica x =
            VerificaAlgoritmo(p, ctx, r.descrizione, r.chiave, r.testoSpia, false, p.colpiDaGiocare, false);
        capo = x.lblCapo;
        return x.errore.testo.empty();
    };
    auto prendi = [&](const RigaAlgoritmo& r, const std::string& capo) {
        for (int n : Spezza(capo)) {
            if (marcati == lunghezza) break;
            if (n >= 1 && n <= 90 && !scelto[n]) {
                scelto[n] = true;
                marcati++;
            }
        }
        out.lista.push_back({r.descrizione, capo});
    };
    for (int giro = 0; giro < 2; ++giro) {
        if (marcati >= lunghezza) break;
        const bool spuntate = giro == 0;
        if (ruotaMigliore) {
            for (const RigaAlgoritmo& r : righe) {
                if (r.selezionata != spuntate) continue;
                if (marcati >= lunghezza) break;
                std::string capo;
                if (!prevedi(r, capo) || Spezza(capo).empty()) continue;
                prendi(r, capo);
            }
            continue;
        }
        // ListViewOrdin: the keys "SSSSRRRRRR" kept sorted as text.
        std::vector<std::string> chiavi;
        std::vector<std::string> capi(righe.size());
        int contate = 0, massimo = 0;
        for (size_t k = 0; k < righe.size(); ++k) {
            if (righe[k].selezionata != spuntate) continue;
            if (!prevedi(righe[k], capi[k])) continue;
            int S = 0;
            for (int n : Spezza(capi[k]))
                if (n >= 1 && n <= 90) S += recente[n];
            if (S > 0) {
                contate++;
                if (contate == 101) break;
                chiavi.push_back(fmt::format("{:04}{:06}", S, k));
                std::sort(chiavi.begin(), chiavi.end());
                if (S > massimo) massimo = S;
            }
        }
        for (int S = massimo; S >= 1; --S)
            for (const std::string& c : chiavi) {
                if (marcati >= lunghezza) break;
                if (std::atoi(c.substr(0, 4).c_str()) != S) continue;
                const size_t k = static_cast<size_t>(std::atoi(c.substr(4).c_str()));
                prendi(righe[k], capi[k]);
            }
    }
    for (int n = 1; n <= 90; ++n)
        if (scelto[n]) out.txtLunghetta += (out.txtLunghetta.empty() ? "" : " - ") + std::to_string(n);
    if (ruotaMigliore) {
        int migliore = -1, ruota = 0;
        for (int w = 1; w <= 11; ++w) {
            if (!gioco[w]) continue;
            int S = 0;
            for (int n = 1; n <= 90; ++n)
                if (scelto[n]) S += recenteRuota[n][w];
            if (S > migliore) {
                migliore = S;
                ruota = w;
            }
        }
        if (ruota > 0) {
            std::string nome(archives::NomiRuota[ruota]);
            while (!nome.empty() && nome.back() == ' ') nome.pop_back();
            out.txtRuotaMigliore = nome;
        }
    }
    return out;
}

Abbinamenti CalcolaAbbinamenti(const ParametriRicerca& p, const ContestoRicerca& ctx, const std::string& chiave,
                               int data, int capogioco, int quanti) {
    Abbinamenti out;
    const archives::StoriaLotto& s = *ctx.storia;
    // 1.
    if (p.colpi < 1) {
        out.errore = "Inserire il n. di colpi di gioco !";
        return out;
    }
    // 2.
    const int ultima = std::min(data, static_cast<int>(s.NumeroEstrazioni()));
    const int prima = 100;
    const std::array<bool, 12> ricerca = Ruote(p.ruoteRicerca), gioco = Ruote(p.ruoteGioco);
    // 3.
    if (chiave.size() < 13) {
        out.errore = "Impossibile calcolare gli abbinamenti: capogioco mancante.";
        return out;
    }
    const int tipo = static_cast<int>(p.tipoSpia);
    if ((tipo == 0 && chiave.size() != 18) || ((tipo == 1 || tipo == 2) && chiave.size() != 13) ||
        (tipo == 3 && chiave.size() != 21)) {
        out.errore = "Calcolo impossibile: capogioco mancante.";
        return out;
    }
    // 4.
    const int spia = std::atoi(chiave.substr(10, 2).c_str());
    const int spia2 = tipo == 3 ? std::atoi(chiave.substr(18, 2).c_str()) : 0;
    bool pos[6] = {false, true, true, true, true, true};
    if (tipo == 0 || tipo == 3)
        for (int k = 1; k <= 5; ++k) pos[k] = chiave[12 + k - 1] == '1';
    if (spia == 0 && tipo != 3) {
        out.errore = "Impossibile calcolare i numeri abbinati.";
        return out;
    }
    const NumeriCalcolati prova = CalcolaTermine(chiave, s[std::max(1, ultima)]);
    if (!prova.errore.vuoto()) {
        out.errore = prova.errore.testo;
        return out;
    }
    // 5 to 7.
    int conta[91] = {};
    int casi = 0, vincite = 0, massimo = 0;
    const bool soloIndice = tipo != 3 && p.modoSpia == ModoSpia::SoloIndiceMensile;
    for (int i = ultima; i >= prima; --i) {
        if (casi >= 10) break;
        const archives::RecordEstrazione& r = s[i];
        const config::Restrizioni& re = ctx.restrizioni;
        if ((re.Giorno || re.Mese || re.Periodo) && !config::EstrazioneAmmessa(re, r.dataCifre(), r.GiornoSettimana))
            continue;
        const int indice = p.indiceMese;
        bool passa = false;
        if (indice == 0)
            passa = ctx.indiciMensili->ultimo[i];
        else if (indice >= 1 && indice <= 16)
            passa = ctx.indiciMensili->indice[i] == indice;
        else if (indice == 17)
            passa = true;
        if (!passa) continue;
        for (int w = 1; w <= 11; ++w) {
            if (!ricerca[w]) continue;
            const uint8_t* x = r.Ruota[w - 1];
            bool spiaC = soloIndice;
            if (!soloIndice && tipo == 0)
                for (int k = 0; k < 5; ++k) spiaC = spiaC || (x[k] == spia && pos[k + 1]);
            if (!soloIndice && (tipo == 1 || tipo == 2))
                for (int a = 0; a < 5; ++a)
                    for (int b = a + 1; b < 5; ++b)
                        spiaC = spiaC || (tipo == 1 ? OperaPiu(x[a], x[b]) : OperaMeno(x[a], x[b])) == spia;
            if (tipo == 3) {
                int trovati = 0;
                bool uno = false, due = false;
                for (int k = 0; k < 5; ++k)
                    if (pos[k + 1]) {
                        if (x[k] == spia)
                            uno = true, trovati++;
                        else if (x[k] == spia2)
                            due = true, trovati++;
                    }
                spiaC = uno && due && trovati == 2;
            }
            if (!spiaC) continue;
            casi++;
            const int c = CalcolaTermine(chiave, r).numeri[0];
            for (int g = 1; g <= 11; ++g) {
                if (!gioco[g]) continue;
                for (int j = i + 1; j <= i + p.colpi && j <= s.NumeroEstrazioni(); ++j) {
                    const uint8_t* y = s[j].Ruota[g - 1];
                    bool esce = false;
                    for (int k = 0; k < 5; ++k) esce = esce || y[k] == c;
                    if (!esce) continue;
                    vincite++;
                    for (int k = 0; k < 5; ++k) {
                        conta[y[k]]++;
                        if (conta[y[k]] > massimo) massimo = conta[y[k]];
                    }
                }
            }
            if (casi >= 10) break;
        }
    }
    // 8.
    for (int m = massimo; m >= 1; --m)
        for (int n = 1; n <= 90; ++n) {
            if (static_cast<int>(out.lista.size()) == quanti) return out;
            if (n == capogioco || conta[n] != m) continue;
            out.lista.push_back(fmt::format("{:>5}%  n. {:>4}", config::Formato(m * 100.0 / vincite, "##0.0"), n));
        }
    return out;
}

}  // namespace gorgo::builder::letterale
