#!/usr/bin/env bash
# Installs what is missing, builds everything and runs the tests. Arguments go to ctest: ./test.sh -R Panel
# DOCKWIDGET_PRESET names another CMake preset than "dev": DOCKWIDGET_PRESET=asan ./test.sh
set -euo pipefail
cd "$(dirname "$0")"
. scripts/install-packages.sh
install_packages $RUN_PACKAGES $TEST_PACKAGES

preset=${DOCKWIDGET_PRESET:-dev}
build=${DOCKWIDGET_BUILD_DIR:-build/$preset}
cmake --preset "$preset" -B "$build"
cmake --build "$build"
ctest --test-dir "$build" --output-on-failure --parallel "$(nproc)" --no-tests=error "$@"
