# Shared by the scripts: sourced by bash with `root` set to the project's folder.
# shellcheck shell=bash

say() {
    printf '==> %s\n' "$*"
}

fail() {
    printf 'error: %s\n' "$*" >&2
    exit 1
}

# Packages of the given lists that are not installed, one per line.
missing_packages() {
    local wanted installed
    wanted=$(cat "$@" | sed 's/#.*//' | tr -s ' \t' '\n' | sed '/^$/d' | sort -u)
    # shellcheck disable=SC2086
    installed=$({ dpkg-query -W -f='${db:Status-Status} ${Package}\n' $wanted 2>/dev/null || true; } |
        sed -n 's/^installed //p' | sort -u)
    comm -23 <(printf '%s\n' "$wanted") <(printf '%s\n' "$installed")
}

# Installs what is missing from the given lists of Debian packages; quick when nothing is.
install_packages() {
    local missing
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        say "Not a Debian system: expecting the packages of ${*#"$root/"} to be there under their names here"
        return
    fi
    mapfile -t missing < <(missing_packages "$@")
    [ "${#missing[@]}" -gt 0 ] || return 0
    say "Installing ${missing[*]}"
    as_root apt-get -q update
    as_root apt-get -q -y -o DPkg::Lock::Timeout=300 install --no-install-recommends "${missing[@]}"
}

# Runs a command as root without asking questions; sudo may ask for the password when a person can answer.
as_root() {
    local become=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || fail "not root and no sudo; run as root: $*"
        become=(sudo)
        [ -t 0 ] || become+=(-n)
    fi
    "${become[@]}" env DEBIAN_FRONTEND=noninteractive "$@" </dev/null ||
        fail "could not run: $*"
}

# Configures the preset where that is due and builds it: all of it, or the given targets.
build_preset() {
    local preset=$1 folder=$root/build/$1
    shift
    mkdir -p "$root/build"
    cd "$root"
    if ! [ "$folder/build.ninja" -nt CMakePresets.json ]; then
        say "Configuring $preset"
        if command -v ccache >/dev/null; then
            export CMAKE_CXX_COMPILER_LAUNCHER=ccache
        fi
        cmake --preset "$preset" >"$root/build/$preset-configure.log" 2>&1 ||
            { cat "$root/build/$preset-configure.log"; fail "cannot configure $preset"; }
    fi
    say "Building $preset in build/$preset"
    cmake --build "$folder" ${1:+--target "$@"}
}

# Builds a preset and runs its tests; they need neither a display nor a person.
test_preset() {
    build_preset "$1"
    say "Testing $1"
    QT_QPA_PLATFORM=offscreen ctest --preset "$1" -j "$(nproc)" --timeout 600 </dev/null
}

# Texts are UTF-8 everywhere; a bare system's locale may not be.
use_utf8() {
    case "$(locale charmap 2>/dev/null)" in
        UTF-8) ;;
        *) export LC_ALL=C.UTF-8 ;;
    esac
}
