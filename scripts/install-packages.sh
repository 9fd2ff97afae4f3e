# Sourced by run.sh, test.sh and .ci/run. install_packages NAME...: installs the Debian packages that are missing,
# as root or through sudo, and asks nothing.

missing_packages() {
    local name
    for name in "$@"; do
        dpkg-query --show --showformat='${db:Status-Status}' "$name" 2>/dev/null | grep -qx installed || echo "$name"
    done
}

install_packages() {
    command -v dpkg-query >/dev/null || { echo "$0: this needs Debian (dpkg-query not found)." >&2; return 1; }
    local missing as_root
    missing=$(missing_packages "$@")
    [ -n "$missing" ] || return 0
    if [ "$(id -u)" = 0 ]; then
        as_root=
    elif command -v sudo >/dev/null && sudo -n true 2>/dev/null; then
        as_root="sudo -n"
    else
        echo "$0: these packages are missing, and neither root nor sudo without a password is to be had:" \
            $missing >&2
        return 1
    fi
    echo "Installing:" $missing
    $as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq update >/dev/null &&
        $as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq -y --no-install-recommends install $missing \
            >/dev/null || { echo "$0: the packages could not be installed:" $missing >&2; return 1; }
}

# What building needs, and what running needs besides: Qt's SVG plugin, without which every SVG icon is
# blank, and fonts; Japanese, Chinese and Korean are among the languages to choose from.
# The modelling kernel's viewer is not used, but Debian puts a header of its foundation into the viewer's package.
BUILD_PACKAGES="g++ cmake ninja-build ccache pkg-config qtbase5-dev qtbase5-dev-tools qttools5-dev qttools5-dev-tools
    libssl-dev libpugixml-dev libgdal-dev libqt5svg5-dev
    libocct-foundation-dev libocct-modeling-data-dev libocct-modeling-algorithms-dev libocct-visualization-dev"
RUN_PACKAGES="$BUILD_PACKAGES libqt5svg5 fonts-dejavu-core fonts-noto-cjk"
# What only the tests need: a display of their own, and npm for the second reader of drawings. Where another Node.js
# than Debian's has brought npm, Debian's would not install beside it.
TEST_PACKAGES="xvfb xauth"
command -v npm >/dev/null || TEST_PACKAGES="$TEST_PACKAGES nodejs npm"
