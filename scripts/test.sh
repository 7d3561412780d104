#!/usr/bin/env bash
# Installs what is needed, builds with warnings as errors and runs every test.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
scripts/build.sh -DVENTRIX_WERROR=ON
export QT_QPA_PLATFORM=offscreen
ctest --test-dir build --output-on-failure -j2 --timeout 300
