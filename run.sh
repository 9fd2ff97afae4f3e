#!/usr/bin/env bash
# Installs what is missing, builds, and starts the development host with the add-in and the development catalog.
# Without a display, or with --tour [DIR], the road through the add-in is played offscreen instead; its screenshots
# go to DIR (out/tour where none is named). The other options are the development host's: ./run.sh --help
set -euo pipefail
[[ $0 != */* ]] || cd "${0%/*}" # No program is needed until the options are right.
. scripts/install-packages.sh
. scripts/check-options.sh

has_option() { # has_option NAME ARGUMENTS...
    local wanted=$1 argument
    shift
    for argument in "$@"; do
        case $argument in "$wanted" | "$wanted"=*) return 0 ;; esac
    done
    return 1
}

check_options dev/host/options.txt "$@"
install_packages $RUN_PACKAGES

build=${DOCKWIDGET_BUILD_DIR:-build/dev}
if [ ! -f "$build/build.ninja" ]; then
    cmake --preset run -B "$build"
fi
cmake --build "$build" --target DockWidget devhost

if has_option --tour "$@" || [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}
    has_option --tour "$@" || set -- "$@" --tour out/tour
fi
exec "$build/dev/host/devhost" "$@"
