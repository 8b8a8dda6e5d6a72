#!/usr/bin/env bash
# Plays the login example's script in the editor and checks that it makes the example's page file
# byte for byte, so that the example stays what the editor writes.
#   example_page_test.sh QUILLFORM EXAMPLE_DIR
set -euo pipefail
quillform="$1"; example="$2"
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
sed "s|@OUT@|$out|g" "$example/make_login_page.txt" > "$out/script.txt"
"$quillform" --home "$out/home" --size 1024x700 --script "$out/script.txt"
diff -u "$example/login_page.cpp" "$out/login_page.cpp"
echo "the editor makes the example's page"
