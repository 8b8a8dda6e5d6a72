#!/usr/bin/env bash
# Installs the build into a temporary prefix, moves the tree, and checks it as a developer uses it:
# the files in their places, the editor and its module from the moved tree, the login example
# built against it with find_package and with pkg-config and run headless, the desktop entry.
#   install_test.sh BUILD_DIR SOURCE_DIR VERSION
set -euo pipefail
build="$1"; source="$2"; version="$3"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "FAIL: $*"; exit 1; }

cmake --install "$build" --prefix "$work/first" >/dev/null
mv "$work/first" "$work/tree"  # run paths and the package files must not name the first place
tree="$work/tree"
libdir=$(cd "$tree" && dirname "$(find . -name libqftoolkit.so | head -1)")

for file in bin/quillform "$libdir/libquillform.so" "$libdir/libqftoolkit.so" \
            include/quillform/quillform_app.h include/quillform/toolkit.h \
            "$libdir/cmake/Quillform/QuillformConfig.cmake" "$libdir/pkgconfig/quillform-toolkit.pc" \
            share/applications/quillform.desktop share/icons/hicolor/scalable/apps/quillform.svg \
            share/man/man1/quillform.1; do
  [ -f "$tree/$file" ] || fail "no $file in the installed tree"
done
if grep -rl "$work/first" "$tree" >/dev/null; then fail "a file names the place of the install"; fi
soname=$(objdump -p "$tree/$libdir/libqftoolkit.so" | awk '$1 == "SONAME" {print $2}')
[ "$soname" = "libqftoolkit.so.$(echo "$version" | cut -d. -f1,2)" ] ||
  fail "the toolkit's soname is \"$soname\", not libqftoolkit.so with the version's major and minor"
[ -f "$tree/$libdir/$soname" ] || fail "no $soname beside libqftoolkit.so"

got=$("$tree/bin/quillform" --version)
[ "$got" = "Quillform $version" ] || fail "--version says \"$got\", not \"Quillform $version\""
grep -q "Quillform $version" "$tree/share/man/man1/quillform.1" || fail "the manual has no version $version"

# The editor loads its module from the moved tree.
printf 'turns 2\nexpect-window "Quillform"\n' > "$work/start.txt"
"$tree/bin/quillform" --home "$work/home" --script "$work/start.txt" || fail "the installed editor did not start"

# The example, built both ways, prints the same window and gadgets as expected.
expected="$source/tests/install/login_expected.txt"
export XDG_DATA_HOME="$work/data"
cmake -S "$source/examples/login" -B "$work/example" -DCMAKE_PREFIX_PATH="$tree" >/dev/null
cmake --build "$work/example" >/dev/null
"$work/example/login" --headless > "$work/cmake.txt" || fail "the example built with CMake failed"
diff -u "$expected" "$work/cmake.txt" || fail "the example built with CMake printed otherwise"

export PKG_CONFIG_PATH="$tree/$libdir/pkgconfig"
c++ "$source/examples/login/main.cpp" "$source/examples/login/login_events.cpp" -o "$work/login" \
    $(pkg-config --cflags --libs quillform-toolkit)
QF_HEADLESS=1 "$work/login" > "$work/pkgconfig.txt" || fail "the example built with pkg-config failed"
diff -u "$expected" "$work/pkgconfig.txt" || fail "the example built with pkg-config printed otherwise"

if command -v desktop-file-validate >/dev/null; then
  desktop-file-validate "$tree/share/applications/quillform.desktop" || fail "the desktop entry is not valid"
else
  echo "desktop-file-validate is not installed: the desktop entry was not validated"
fi
echo "installed, moved, and the example built and ran both ways"
