#include "studies/numeri_simpatici_letterale.h"

#include <algorithm>
#include <vector>

#include "config/formato.h"

namespace gorgo::test {

namespace {

bool Ammessa(const config::Restrizioni& r, const archives::RecordEstrazione& e) {
    if (!r.Giorno && !r.Mese && !r.Periodo) return true;
    return config::EstrazioneAmmessa(r, e.dataCifre(), e.GiornoSettimana);
}

}  // namespace

studies::EsitoGenerale StatisticaGeneraleLetterale(const archives::StoriaLotto& st,
                                                   const studies::ParametriSimultanea& p, int ultimoAmbo) {
    studies::EsitoGenerale e;
    e.errore = studies::ControllaSimultanea(p, false);
    if (!e.errore.vuoto()) return e;
    const int N = 90 * 91 + 91;
    std::vector<int> Abbinamenti(N), UltimaSimultanea(N), Frequenza(N), UltimaUscita(N), Ritardo(N), RitardoMax(N);
    std::vector<std::array<int, 12>> FrequenzaRuota(N);
    int contatore = 0, numero = 0;
    for (int x = 1; x <= 89; ++x)
        for (int y = x + 1; y <= 90; ++y) {
            if (contatore == ultimoAmbo) {
                e.fermato = true;
                goto fine;
            }
            std::fill(Abbinamenti.begin(), Abbinamenti.end(), 0);
            std::fill(UltimaSimultanea.begin(), UltimaSimultanea.end(), 0);
            std::fill(Frequenza.begin(), Frequenza.end(), 0);
            std::fill(UltimaUscita.begin(), UltimaUscita.end(), 0);
            std::fill(Ritardo.begin(), Ritardo.end(), 0);
            std::fill(RitardoMax.begin(), RitardoMax.end(), 0);
            std::fill(FrequenzaRuota.begin(), FrequenzaRuota.end(), std::array<int, 12>{});
            contatore++;
            int EstrazioniAnalizzate = 0;
            // Pass 1.
            for (int i = p.Dal; i <= p.Al; ++i) {
                if (!Ammessa(p.restrizioni, st[i])) continue;
                bool contata = false;
                for (int w = 1; w <= 11; ++w) {
                    if (!p.RuoteScelte[static_cast<size_t>(w)]) continue;
                    int n[5];
                    bool finita = false;
                    for (int k = 0; k < 5 && !finita; ++k) {
                        n[k] = st[i].Numero(w, k + 1);
                        if (n[k] < 1) {
                            finita = true;
                            break;
                        }
                        if (k == 0 && !contata) {
                            EstrazioniAnalizzate++;
                            contata = true;
                        }
                    }
                    if (finita) continue;
                    bool cx = false, cy = false;
                    for (int k = 0; k < 5; ++k) cx = cx || n[k] == x, cy = cy || n[k] == y;
                    if (!(cx && cy)) continue;
                    Abbinamenti[y * 91 + x]++;
                    int altri[3], h = 0;
                    for (int k = 0; k < 5; ++k)
                        if (n[k] != x && n[k] != y) altri[h++] = n[k];
                    std::sort(altri, altri + 3);
                    for (int u = 0; u < 3; ++u)
                        for (int v = u + 1; v < 3; ++v) {
                            Abbinamenti[altri[v] * 91 + altri[u]]++;
                            UltimaSimultanea[altri[v] * 91 + altri[u]] = i;
                        }
                }
            }
            // Pass 2.
            for (int i = p.Al; i >= p.Dal; --i) {
                if (!Ammessa(p.restrizioni, st[i])) continue;
                for (int w = 1; w <= 11; ++w) {
                    if (!p.RuoteScelte[static_cast<size_t>(w)]) continue;
                    int n[5];
                    for (int k = 0; k < 5; ++k) n[k] = st[i].Numero(w, k + 1);
                    std::sort(n, n + 5);
                    for (int u = 0; u < 5; ++u)
                        for (int v = u + 1; v < 5; ++v)
                            if (Abbinamenti[n[v] * 91 + n[u]] > 0) {
                                Frequenza[n[v] * 91 + n[u]]++;
                                FrequenzaRuota[n[v] * 91 + n[u]][static_cast<size_t>(w)]++;
                            }
                }
            }
            int MassimoAbbinato = 0;
            for (int a = 1; a <= 89; ++a)
                for (int b = a + 1; b <= 90; ++b)
                    if (a != x && b != y && Abbinamenti[b * 91 + a] > MassimoAbbinato)
                        MassimoAbbinato = Abbinamenti[b * 91 + a];
            if (MassimoAbbinato == 0) continue;
            // Pass 3, for the ambi at the greatest count only.
            for (int k = 0; k < N; ++k) UltimaUscita[k] = p.Dal;
            for (int i = p.Dal; i <= p.Al; ++i)
                for (int w = 1; w <= 11; ++w) {
                    if (!p.RuoteScelte[static_cast<size_t>(w)]) continue;
                    int n[5];
                    for (int k = 0; k < 5; ++k) n[k] = st[i].Numero(w, k + 1);
                    std::sort(n, n + 5);
                    for (int u = 0; u < 5; ++u)
                        for (int v = u + 1; v < 5; ++v) {
                            const int k = n[v] * 91 + n[u];
                            if (n[u] == x && n[v] == y) continue;
                            if (Abbinamenti[k] != MassimoAbbinato) continue;
                            Ritardo[k] = i - UltimaUscita[k] - 1;
                            UltimaUscita[k] = i;
                            if (Ritardo[k] > RitardoMax[k]) RitardoMax[k] = Ritardo[k];
                        }
                }
            bool prima = true;
            for (int a = 1; a <= 89; ++a)
                for (int b = a + 1; b <= 90; ++b) {
                    const int k = b * 91 + a;
                    if (a == x || b == y || Abbinamenti[k] != MassimoAbbinato) continue;
                    Ritardo[k] = p.Al - UltimaUscita[k];
                    if (Ritardo[k] > RitardoMax[k]) RitardoMax[k] = Ritardo[k];
                    studies::StatisticaAmbo s{a, b, Abbinamenti[k], Ritardo[k], RitardoMax[k], Frequenza[k]};
                    s.IC = EstrazioniAnalizzate ? static_cast<double>(Frequenza[k]) / EstrazioniAnalizzate * Ritardo[k]
                                                : 0.0;
                    // Ruota migliore: count and wheel as text, sorted, the last one.
                    std::vector<std::string> testi;
                    for (int w = 1; w <= 11; ++w)
                        testi.push_back(config::AllineaDestra(
                                            config::Formato(FrequenzaRuota[k][static_cast<size_t>(w)], "####0"), 5) +
                                        config::Formato(w, "00"));
                    std::sort(testi.begin(), testi.end());
                    s.FrequenzaMigliore = std::stoi(testi.back().substr(0, 5));
                    s.RuotaMigliore = std::stoi(testi.back().substr(5));
                    s.RitardoSimultaneo = p.Al - UltimaSimultanea[k];
                    studies::Riga r;
                    r.testo(prima ? studies::TestoAmbo(x, y) : "", studies::colori::Rosso, true);
                    r.testo(studies::TestoAmbo(a, b), studies::colori::Blu, true);
                    studies::ColonneStatistica(r, s, true);
                    r.valore("x", x).valore("y", y);
                    r.chiave = config::Formato(++numero, "00000");
                    e.righe.push_back(std::move(r));
                    prima = false;
                }
        }
fine:
    e.AmbiAnalizzati = contatore;
    e.analizzati = studies::TestoAnalizzati(contatore);
    return e;
}

}  // namespace gorgo::test
