# Steps shared by run, test and .ci/run; sourced by them, from the project's folder. Each step that is done already is
# skipped.

# With dpkg-dev and file the .deb learns what it depends on.
build_packages=(g++ cmake ninja-build qt6-base-dev qt6-svg-dev qt6-translations-l10n libchm-dev fp-utils dpkg-dev file)
# The fonts that the windows' fonts are mapped to: a bare system has none.
game_packages=(fonts-liberation fonts-dejavu-core fonts-urw-base35)
test_packages=(libgtest-dev xvfb openbox xdotool dbus at-spi2-core python3-pyatspi xauth)
check_packages=(git clang clang-format clang-tidy libclang-rt-14-dev lintian desktop-file-utils appstream mmdebstrap
                orca speech-dispatcher locales)

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# Installs those of the named packages that are missing.
need() {
    local missing=()
    local package
    for package in "$@"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    if ! command -v apt-get >/dev/null; then
        echo "This system has no apt. If the build fails, install what these Debian 12 packages hold:" >&2
        echo "  ${missing[*]}" >&2
        return
    fi
    echo "Installing: ${missing[*]}"
    as_root apt-get -q update
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -q install -y --no-install-recommends "${missing[@]}"
}

# Makes the Spanish locale, in which the screen reader is heard, when the system lacks it.
need_spanish() {
    locale -a | grep -qix 'es_ES\.utf-\?8' || as_root localedef -i es_ES -f UTF-8 es_ES.UTF-8
}

# build PRESET game: the game alone, which needs no test library. build PRESET all: the tests, too.
# Configures the preset the first time, when the presets were edited since, and when the tests come in.
build() {
    local cache=build/$1/CMakeCache.txt tests=OFF
    [ "$2" = game ] || tests=ON
    if [ ! "build/$1/build.ninja" -nt CMakePresets.json ] || ! grep -q "^BUILD_TESTING:.*=\(ON\|$tests\)" "$cache"; then
        cmake --preset "$1" -DBUILD_TESTING=$tests
    fi
    cmake --build "build/$1" --target "$2"
}
