# common.sh -- what run and check share: packages, the build, words to the user. Sourced, from the project's root.

say() { printf '%s\n' "== $*"; }

# Installs those of the given Debian or Ubuntu packages that are missing. Asks nothing; as root or by sudo.
install_packages() {
    local missing=()
    local package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    say "Installing: ${missing[*]}"
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || { echo "Missing packages, and no sudo to install them: ${missing[*]}" >&2; return 1; }
        as_root=(sudo)
    fi
    local log
    log=$(mktemp)
    if ! { "${as_root[@]}" apt-get update &&
           "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}"; } \
           >"$log" 2>&1 </dev/null; then
        tail -n 30 "$log" >&2
        rm -f "$log"
        return 1
    fi
    rm -f "$log"
}

BUILD_PACKAGES=(g++ cmake ninja-build ccache qt6-base-dev libgl-dev fonts-liberation fontconfig librsvg2-bin)
CHECK_PACKAGES=(doctest-dev clang-format-14 python3-ezdxf librecad poppler-utils xvfb
                appstream desktop-file-utils mandoc shared-mime-info)
PACKAGE_PACKAGES=(dpkg-dev file lintian)
BENCH_PACKAGES=(libbenchmark-dev)

# A compiler cache knows the same sources again in another checkout.
export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1

# build FOLDER [cmake options]: configures once, builds what changed. Quiet unless something is wrong.
build() {
    local folder=$1
    shift
    local log
    log=$(mktemp)
    if ! cmake -S . -B "$folder" -G Ninja "$@" >"$log" 2>&1 || ! cmake --build "$folder" >"$log" 2>&1; then
        cat "$log" >&2
        rm -f "$log"
        return 1
    fi
    rm -f "$log"
}
