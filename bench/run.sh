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

echo "== Precursori P1-P3: gorgo-cli come processo intero (tempo, memoria di picco)"
PREC=(--cartella "$DATI" precursori --ruota BA --da 30/12/2010)
misura P1-ambate "${PREC[@]}"
misura P1-ambi "${PREC[@]}" --sorte ambi
misura P2 "${PREC[@]}" --terzine-integrali --minimo-numeri 2 --presenze-minime 2
misura P3 --cartella "$DATI" precursori --gioco superenalotto --da 04/01/1947
