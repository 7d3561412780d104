#!/usr/bin/env bash
# Installs everything Ventrix needs to build, test and run, from Debian 12 packages only.
set -euo pipefail
packages=(
  cmake ninja-build g++ pkgconf
  qtbase5-dev libqt5serialport5-dev libqwt-qt5-dev libxlsxwriter-dev
  libgtest-dev libbenchmark-dev nlohmann-json3-dev
  socat xvfb xauth fonts-dseg poppler-utils python3-openpyxl desktop-file-utils dpkg-dev time
  clang libclang-rt-14-dev
)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  SUDO=""
  [ "$(id -u)" -ne 0 ] && SUDO="sudo"
  $SUDO apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
