#!/usr/bin/env bash
# Sets up, builds, and then starts Quillform, runs its tests or installs it, on a fresh Debian 12
# machine too. Each command first installs what it needs and is missing, with apt-get.
#   ./build.sh run [OPTION]... [FILE]...  build the editor alone (toolkit, module, host), start it
#   ./build.sh build                      build the editor alone
#   ./build.sh test                       build everything (tests and benchmarks too), run every test;
#                                         then build it again under the sanitizers (build-asan) and
#                                         run every test there too, with a short run of the fuzzer
#   ./build.sh install [PREFIX]           build the editor and install it (default /usr/local)
set -euo pipefail
cd "$(dirname "$0")"

# What the editor needs to build and run, and what the tests add.
editor_packages=(build-essential cmake pkg-config libsdl2-dev libfreetype-dev libpng-dev fonts-dejavu-core)
test_packages=(libgtest-dev libbenchmark-dev desktop-file-utils clang-format)
# The sanitizers' build: clang with its runtimes (ASan, UBSan, LeakSanitizer, libFuzzer).
sanitizer_packages=(clang libclang-rt-dev)
build=build
sanitized=build-asan
jobs=$(nproc)

usage() {
  echo "usage: ./build.sh run [OPTION]... [FILE]... | build | test | install [PREFIX]" >&2
  exit 2
}

# Runs a command as root: directly, or through sudo.
as_root() {
  if [ "$(id -u)" -eq 0 ]; then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo "$@"
  else
    echo "Needs root, and there is no sudo: $*" >&2
    exit 1
  fi
}

install_missing() {
  local missing=()
  for p in "$@"; do
    dpkg -s "$p" >/dev/null 2>&1 || missing+=("$p")
  done
  [ ${#missing[@]} -eq 0 ] && return
  echo "== Installing with apt-get: ${missing[*]}"
  as_root apt-get update -qq
  as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq "${missing[@]}" >/dev/null
}

# Configures the build folder when it has never been, or with the options given.
configure() {
  if [ ! -f "$build/CMakeCache.txt" ] || [ $# -gt 0 ]; then
    echo "== Configuring $build/"
    cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo "$@"
  fi
}

# The sanitizers' build folder, configured once with clang (a folder's compiler can't change).
configure_sanitized() {
  if [ ! -f "$sanitized/CMakeCache.txt" ]; then
    echo "== Configuring $sanitized/ (AddressSanitizer, LeakSanitizer, UndefinedBehaviorSanitizer)"
    CC=clang CXX=clang++ cmake -S . -B "$sanitized" -DCMAKE_BUILD_TYPE=RelWithDebInfo \
      -DQF_TESTS=ON -DQF_BENCHMARKS=OFF -DQF_SANITIZE=ON -DQF_FUZZ=ON
  fi
}

# What the sanitized programs are told: stop at the first error; leaks that the system's libraries
# keep for their life (SDL, the X and font libraries) are not ours, and are suppressed by library.
export_sanitizer_options() {
  export ASAN_OPTIONS="abort_on_error=0:detect_leaks=1"
  export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
  export LSAN_OPTIONS="suppressions=$PWD/tests/sanitizers/lsan.supp:print_suppressions=0"
}

# The editor alone: a first build of the tests is left to ./build.sh test.
build_editor() {
  install_missing "${editor_packages[@]}"
  [ -f "$build/CMakeCache.txt" ] || configure -DQF_TESTS=OFF -DQF_BENCHMARKS=OFF
  echo "== Building the editor (toolkit, module, host) with $jobs jobs"
  cmake --build "$build" -j"$jobs" --target quillform quillform_module
  echo "== The editor is $build/quillform"
}

what="${1:-build}"
[ $# -gt 0 ] && shift
case "$what" in
  run)
    build_editor
    exec "$build/quillform" "$@"
    ;;
  build)
    build_editor
    ;;
  test)
    install_missing "${editor_packages[@]}" "${test_packages[@]}" "${sanitizer_packages[@]}"
    configure -DQF_TESTS=ON -DQF_BENCHMARKS=ON
    echo "== Building everything with $jobs jobs"
    cmake --build "$build" -j"$jobs"
    ctest --test-dir "$build" --output-on-failure -j"$jobs"
    configure_sanitized
    export_sanitizer_options
    echo "== Building everything again under the sanitizers, in $sanitized/"
    cmake --build "$sanitized" -j"$jobs"
    # The install test builds a program against the installed toolkit with the machine's own
    # compiler, which can't link a toolkit built with clang's sanitizers; the first run has it.
    ctest --test-dir "$sanitized" --output-on-failure -j"$jobs" -E '^install_and_build_example$'
    ;;
  install)
    [ $# -le 1 ] || usage
    prefix="${1:-/usr/local}"
    build_editor
    echo "== Installing into $prefix"
    if mkdir -p "$prefix" 2>/dev/null && [ -w "$prefix" ]; then
      cmake --install "$build" --prefix "$prefix"
    else
      as_root cmake --install "$build" --prefix "$prefix"
    fi
    ;;
  *)
    usage
    ;;
esac
