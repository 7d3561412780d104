#!/usr/bin/env bash
# Installs what is needed, builds and starts Ventrix. When no serial adapter is attached, a
# virtual meter on a pseudo-terminal stands in for the meter as COM 1.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
scripts/build.sh
exec build/ventrix "$@"
