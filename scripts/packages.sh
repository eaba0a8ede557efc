# Sourced by ./run, ./test and ./package: installs the Debian packages that are missing.

build_packages=(
    g++ cmake ninja-build qt6-base-dev libcli11-dev nlohmann-json3-dev
    libgtest-dev libgmock-dev libbenchmark-dev librapidcheck-dev
    qt6-image-formats-plugins fp-utils python3
)
test_packages=(
    clang clang-format libclang-rt-14-dev netpbm libpalm-pdb-perl g++-mingw-w64-x86-64-posix
    g++-mingw-w64-i686-posix
    imagemagick webp xvfb openbox fonts-dejavu-core x11-utils xdotool xclip
    tidy dbus libglib2.0-bin
)
# For scripts/check-windows.sh.
windows_packages=(g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix googletest wine wine64 python3)
screen_packages=(xvfb openbox fonts-dejavu-core imagemagick x11-utils xdotool)
package_packages=(dpkg-dev file)
# What judges the package's files, and what makes a Debian to try it out in.
judge_packages=(lintian mandoc appstream desktop-file-utils libxml2-utils shared-mime-info libglib2.0-bin)
root_packages=(mmdebstrap)

# With the seconds since the start: what takes long shows in any log.
say() { printf '== %d s: %s\n' "$SECONDS" "$*"; }

# install_packages NAME...: what is there already costs one look.
install_packages() {
    local missing=() name
    for name in "$@"; do
        if [ "$(dpkg-query -W -f='${Status}' "$name" 2>/dev/null)" != "install ok installed" ]; then
            missing+=("$name")
        fi
    done
    [ ${#missing[@]} -eq 0 ] && return 0

    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            say "These packages are missing: ${missing[*]}"
            say "Install them as root, or install sudo."
            return 1
        fi
        as_root=(sudo)
    fi
    say "Installing missing packages: ${missing[*]}"
    "${as_root[@]}" apt-get update -q
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -q -y --no-install-recommends "${missing[@]}"
}
