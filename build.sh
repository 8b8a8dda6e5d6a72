#!/usr/bin/env bash
# Sets up, builds, and then starts Quillform or runs its tests, on a fresh Debian 12 machine too.
#   ./build.sh run [quillform options]   install what is missing, build, start the editor
#   ./build.sh test                      install what is missing, build, run every test
#   ./build.sh build                     install what is missing, build
set -euo pipefail
cd "$(dirname "$0")"

packages=(build-essential cmake pkg-config libsdl2-dev libfreetype-dev libpng-dev libgtest-dev
          libbenchmark-dev fonts-dejavu-core)

missing=()
for p in "${packages[@]}"; do
  dpkg -s "$p" >/dev/null 2>&1 || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  if [ "$(id -u)" -eq 0 ]; then
    apt-get update -qq
    DEBIAN_FRONTEND=noninteractive apt-get install -y -qq "${missing[@]}" >/dev/null
  elif command -v sudo >/dev/null; then
    sudo apt-get update -qq
    sudo DEBIAN_FRONTEND=noninteractive apt-get install -y -qq "${missing[@]}" >/dev/null
  else
    echo "Please install: ${missing[*]}" >&2
    exit 1
  fi
fi

what="${1:-build}"
[ $# -gt 0 ] && shift
build=build
if [ ! -f "$build/CMakeCache.txt" ]; then
  cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
fi
cmake --build "$build" -j"$(nproc)"

case "$what" in
  run)   exec "$build/quillform" "$@" ;;
  test)  ctest --test-dir "$build" --output-on-failure -j"$(nproc)" ;;
  build) ;;
  *)     echo "usage: ./build.sh run|test|build" >&2; exit 2 ;;
esac
