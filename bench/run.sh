#!/usr/bin/env bash
# Runs the benchmarks on the real archive (../shared/dati, or $GORGO_SHARED/dati) and
# prints the figures the README's table reports.
set -euo pipefail
source "$(dirname "$0")/../scripts/common.sh"
GORGO_PACKAGES+=(hyperfine time)
gorgo_install_deps
BUILD="${GORGO_BUILD:-$GORGO_ROOT/build/bench}"
gorgo_build "$BUILD" -DGORGO_TESTS=OFF
export GORGO_SHARED="${GORGO_SHARED:-$GORGO_ROOT/../shared}"
DATI="$GORGO_SHARED/dati"
[ -f "$DATI/Archivi/Estrazioni.ind" ] || { echo "Archivi reali assenti in $DATI"; exit 1; }

echo "== Motore (Google Benchmark, mediana di 5 ripetizioni)"
"$BUILD/bench/gorgo_bench" --benchmark_repetitions=5 --benchmark_report_aggregates_only=true \
    --benchmark_filter="${1:-.}"

echo "== A1: gorgo-cli info come processo intero"
hyperfine -N --warmup 5 --runs 50 "$BUILD/gorgo-cli --cartella $DATI info" 2>/dev/null ||
    hyperfine --warmup 5 --runs 50 "$BUILD/gorgo-cli --cartella $DATI info"

echo "== Memoria di picco di gorgo-cli info"
/usr/bin/time -f "%M KB" "$BUILD/gorgo-cli" --cartella "$DATI" info >/dev/null

echo "== Costruttore S1-S6: gorgo-cli come processo intero (tempo, memoria di picco)"
TERZINE="$BUILD/Terzine-bench.txt"
python3 - "$TERZINE" <<'PY'
import random, sys
r = random.Random(1002)
with open(sys.argv[1], "w") as f:
    for _ in range(1002):
        f.write("%02d %02d %02d\n" % tuple(sorted(r.sample(range(1, 91), 3))))
PY
BASE=(--cartella "$DATI" costruttore --valore 27 --ruote-ricerca tutte --ruote-gioco tutte --colpi 9
      --indice-mese tutti --da 30/12/2015 --a 30/12/2025)
misura() { local nome="$1"; shift; /usr/bin/time -f "$nome: %e s, %M KB" "$BUILD/gorgo-cli" "$@" >/dev/null; }
misura S1 "${BASE[@]}"
misura S2 "${BASE[@]}" --modo tutti
misura S3 "${BASE[@]}" --tipo ambi
misura S4-ambo "${BASE[@]}" --tipo terzine-ambo
misura S4-terno "${BASE[@]}" --tipo terzine-terno
misura S5 "${BASE[@]}" --tipo codici --sorte 2 --operazioni +-x --terzine "$TERZINE"
misura S6 "${BASE[@]/30\/12\/2015/30/12/2020}" --spia ambo --tutti-gli-ambi

echo "== Costruttore B4-B6: convergenze, lunghetta, abbinamenti come processo intero (tempo, memoria di picco)"
CONV=(--cartella "$DATI" costruttore --valore 27 --ruote-ricerca tutte --ruote-gioco MI --colpi 9
      --indice-mese tutti --da 30/12/2015 --a 30/12/2025 --seleziona)
misura B4 "${CONV[@]}" --convergenze
misura B5 "${CONV[@]}" --lunghetta 10
CHIAVE=$("$BUILD/gorgo-cli" --json "${CONV[@]:2}" --cartella "$DATI" | python3 -c 'import json,sys; print(json.load(sys.stdin)["righe"][0]["chiave"])')
misura B6 --cartella "$DATI" abbinamenti --chiave "$CHIAVE" --ruote-ricerca tutte --ruote-gioco MI --indice-mese 17

echo "== Utilità di studio U1-U4: gorgo-cli come processo intero (tempo, memoria di picco)"
misura U1 --cartella "$DATI" punti-incogniti 10779 --ruota BA --storica --da 01/01/1946 --tutte-le-vincite --riepilogo
misura U2 --cartella "$DATI" quaterna --statistica-generale --ruote tutte+nz --da 01/01/1946
misura U3 --cartella "$DATI" multiruota 10779 --ruota BA --tipo terni --volte 18 --estrazioni 10
misura U4 --cartella "$DATI" somma-cinquine 10779 --tutte

echo "== Costruttore B1-B3: copertura e ricerca automatica, gorgo-cli come processo intero"
TUTTE=(--cartella "$DATI" costruttore --valore 27 --ruote-ricerca tutte+nz --ruote-gioco tutte+nz --colpi 9
       --indice-mese tutti --da 30/12/2015 --a 30/12/2025)
misura B1-righe-S1 "${BASE[@]}" --copertura ambata --righe 100
misura B2 "${TUTTE[@]}" --automatica 1:1
misura B3 "${TUTTE[@]}" --automatica 2:5

echo "== Ambo enucleato E1-E3: gorgo-cli come processo intero (tempo, memoria di picco)"
ULTIMA=$("$BUILD/gorgo-cli" --cartella "$DATI" --json estrazione "$("$BUILD/gorgo-cli" --cartella "$DATI" --json info |
    python3 -c 'import json,sys; print(json.load(sys.stdin)["lotto"]["estrazioni"])')" |
    python3 -c 'import json,sys; print(json.load(sys.stdin)["data"])')
misura E1 --cartella "$DATI" statistica-somme --ruota BA --da 01/01/1946 --a "$ULTIMA"
misura E2 --cartella "$DATI" statistica-somme --ruota BA --da 01/01/1946 --a "$ULTIMA" --terni
misura E3 --cartella "$DATI" ambi-matematici --ruota tutte --da 07/01/1871 --a "$ULTIMA"

echo "== Consultazione C1: gorgo-cli consulta come processo intero (tempo, memoria di picco)"
misura C1 --cartella "$DATI" consulta 30/12/2025 --vista ritardi
misura C2-ultima --cartella "$DATI" consulta 30/12/2025 --vista frequenze --periodo anno

echo "== Precursori P1-P3: gorgo-cli come processo intero (tempo, memoria di picco)"
PREC=(--cartella "$DATI" precursori --ruota BA --da 30/12/2010)
misura P1-ambate "${PREC[@]}"
misura P1-ambi "${PREC[@]}" --sorte ambi
misura P2 "${PREC[@]}" --terzine-integrali --minimo-numeri 2 --presenze-minime 2
misura P3 --cartella "$DATI" precursori --gioco superenalotto --da 04/01/1947
