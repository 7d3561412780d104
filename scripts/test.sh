#!/usr/bin/env bash
# Installs what is needed, builds with warnings as errors and runs every test. With clang
# present, the receive-path fuzz target is built too and given a short run over its seeds.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
scripts/build.sh -DVENTRIX_WERROR=ON

if command -v clang++ >/dev/null 2>&1; then
  CXX=clang++ cmake -S . -B build-fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DVENTRIX_BUILD_UI=OFF \
    -DVENTRIX_BUILD_TESTS=OFF -DVENTRIX_BUILD_BENCH=OFF -DVENTRIX_BUILD_FUZZ=ON >/dev/null
  ninja -C build-fuzz
  mkdir -p build-fuzz/corpus
  if ! build-fuzz/fuzz/ReceivePathFuzz -max_total_time=30 -print_final_stats=1 build-fuzz/corpus fuzz/seeds \
    >build-fuzz/fuzz.log 2>&1; then
    cat build-fuzz/fuzz.log
    exit 1
  fi
  grep -E '^Done' build-fuzz/fuzz.log || true
fi

export QT_QPA_PLATFORM=offscreen
ctest --test-dir build --output-on-failure -j2 --timeout 300
