#!/usr/bin/env bash
# Plays a script with the quillform executable in a fresh data root and checks that it ran to its
# end and wrote its screenshot.  run_script.sh QUILLFORM SCRIPT [FILE]...  (the files are
# handed to quillform after the script)
set -euo pipefail
quillform="$1"
script="$2"
shift 2
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
sed "s|@OUT@|$out|g" "$script" > "$out/script.txt"
"$quillform" --headless --home "$out/home" --size 1024x700 --script "$out/script.txt" "$@"
for png in $(grep -o '[^ ]*\.png' "$out/script.txt"); do
  [ -s "$png" ] || { echo "no screenshot $png"; exit 1; }
done
echo "script ran to its end"
