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
