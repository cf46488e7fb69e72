# Shared by ./run and ./test: installs what is missing, configures and builds.
# Sourced, not run. Messages go to standard error, so that standard output has only
# the output of the program that ./run starts.

project_root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

say() { printf '%s\n' "$*" >&2; }

# packages_of LIST...: the package names in scripts/packages/LIST, without comments.
packages_of() {
    local list
    for list in "$@"; do
        sed -e 's/#.*//' -e 's/[[:space:]]//g' -e '/^$/d' "$project_root/scripts/packages/$list"
    done
}

is_installed() {
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# install_packages LIST...: installs the missing packages of the lists.
install_packages() {
    command -v apt-get >/dev/null 2>&1 || return 0 # not Debian: CMake reports what is missing
    local package missing=()
    for package in $(packages_of "$@"); do
        is_installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0

    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null 2>&1; then
            say "These Debian packages are missing; install them as root, then start again:"
            say "    apt-get install ${missing[*]}"
            return 1
        fi
        as_root=(sudo)
    fi
    say "Installing: ${missing[*]}"
    "${as_root[@]}" apt-get update -qq >&2
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
}

# build_preset PRESET TARGETS [CMAKE ARGUMENT...]: configures build/PRESET and builds the targets.
# Ninja shows the progress on a terminal. Elsewhere only the log of a failed build is printed.
build_preset() {
    local preset=$1 targets log
    read -ra targets <<<"$2"
    shift 2
    log=$(mktemp)
    if ! (cd "$project_root" && cmake --preset "$preset" "$@") >"$log" 2>&1; then
        cat "$log" >&2
        rm -f "$log"
        say "Cannot configure the build."
        return 1
    fi
    if [ -t 2 ]; then
        (cd "$project_root" && cmake --build --preset "$preset" --target "${targets[@]}") >&2 || log=
    elif ! (cd "$project_root" && cmake --build --preset "$preset" --target "${targets[@]}") >"$log" 2>&1; then
        cat "$log" >&2
        rm -f "$log"
        log=
    fi
    if [ -z "$log" ]; then
        say "The build failed."
        return 1
    fi
    rm -f "$log"
}
