# Shared by the README's commands: installs what is missing, configures and builds.
# Sourced, not run.

GORGO_ROOT="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
GORGO_PACKAGES=(build-essential cmake pkg-config libfmt-dev libcli11-dev nlohmann-json3-dev
                libtbb-dev libzip-dev libgtest-dev libbenchmark-dev
                qt6-base-dev qt6-charts-dev libgl-dev xvfb xauth poppler-utils fonts-dejavu-core)

gorgo_install_deps() {
    local missing=()
    for p in "${GORGO_PACKAGES[@]}"; do
        dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "Installazione dei pacchetti mancanti: ${missing[*]}"
    local sudo=""
    [ "$(id -u)" -ne 0 ] && sudo="sudo"
    $sudo apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq "${missing[@]}"
}

# gorgo_build BUILD_DIR [cmake options...]
gorgo_build() {
    local dir="$1"; shift
    mkdir -p "$dir"
    echo "Compilazione in $dir ..."
    if ! { cmake -S "$GORGO_ROOT" -B "$dir" -DCMAKE_BUILD_TYPE=Release "$@" &&
           cmake --build "$dir" -j"$(nproc)"; } >"$dir/compilazione.log" 2>&1; then
        cat "$dir/compilazione.log"
        echo "Compilazione non riuscita (registro completo in $dir/compilazione.log)"
        return 1
    fi
}
