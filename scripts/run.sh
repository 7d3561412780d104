#!/usr/bin/env bash
# Installs what is needed, builds and starts Ventrix. When no serial adapter is attached (and
# VENTRIX_COM1 is not set), a virtual meter on a pseudo-terminal stands in for the meter as
# COM 1, sending a demonstration; it is stopped when Ventrix exits.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
scripts/build.sh

shopt -s nullglob
adapters=(/dev/ttyUSB* /dev/ttyACM*)
shopt -u nullglob
if [ ${#adapters[@]} -gt 0 ] || [ -n "${VENTRIX_COM1:-}" ]; then
  exec build/ventrix "$@"
fi

pathfile=$(mktemp)
build/ventrix-cli meter >"$pathfile" &
meter_pid=$!
cleanup() {
  kill "$meter_pid" 2>/dev/null || true
  wait "$meter_pid" 2>/dev/null || true
  rm -f "$pathfile"
}
trap cleanup EXIT
trap 'exit 130' INT TERM

for _ in $(seq 50); do
  [ -s "$pathfile" ] && break
  sleep 0.1
done
device=$(head -n 1 "$pathfile")
if [ -z "$device" ]; then
  echo "run.sh: the virtual meter did not start" >&2
  exit 1
fi
export VENTRIX_COM1="$device"
echo "run.sh: no serial adapter found; a virtual meter on $device is COM 1 (press Play to see readings)" >&2
build/ventrix "$@"
