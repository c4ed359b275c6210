# Shared by the scripts beside this file; sourced, not run.

say() { printf '%s\n' "$*" >&2; }

# What building and running take, by Debian's package names.
packages=(
    g++ cmake ninja-build ccache pkg-config
    qt6-base-dev qt6-svg-dev qt6-l10n-tools qt6-translations-l10n
    qt6-image-formats-plugins
    libsqlcipher-dev libjpeg62-turbo-dev mdbtools-dev libexiv2-dev zlib1g-dev
    libqpdf-dev libkainjow-mustache-dev qpdf
    fonts-dejavu-core xvfb xauth
)

# Installs the packages that are missing; does nothing, and asks nothing, when none is.
install_packages() {
    local missing=() package
    for package in "$@"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] ||
            missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    local root=()
    [ "$(id -u)" -eq 0 ] || root=(sudo)
    say "Installing: ${missing[*]}"
    "${root[@]}" apt-get update -q
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -q -y --no-install-recommends "${missing[@]}"
}

# Configures a preset when that was not done yet, and builds it; Ninja configures anew by itself when
# a build file changes. More arguments are targets.
build_preset() {
    local preset=$1
    shift
    [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset" >&2
    cmake --build --preset "$preset" ${1:+--target "$@"} >&2
}
