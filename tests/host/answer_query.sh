#!/usr/bin/env bash
# Scripts that answer the query on closing a modified page, from inside its wait: Yes saves the
# page, No drops the change, Cancel keeps the page open and the script goes on; the same from the
# exit's query.  answer_query.sh QUILLFORM
set -euo pipefail
quillform="$1"
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT

# A page with one button saved, a second button placed, then the page closed (File > Close, by
# keys) or the editor left (Alt+F4); the rest of the script answers.
play() {  # play NAME CLOSE ANSWER... ; the gadgets in the saved file are counted afterwards
  local name="$1" close="$2"
  shift 2
  {
    echo "drag 200 200 600 500"
    echo "click-tool 12"
    echo "drag 240 260 340 290"
    echo "key ctrl+w"
    echo "type $out/$name.cpp"
    echo "key return"
    echo "click-tool 12"
    echo "drag 240 320 340 350"
    if [ "$close" = close ]; then printf 'key alt+f\nkey down\nkey return\n'; else echo "key alt+f4"; fi
    echo 'expect-window "Quillform query"'
    printf '%s\n' "$@"
  } > "$out/$name.txt"
  "$quillform" --headless --home "$out/home-$name" --size 1024x700 --script-timeout 20 \
    --script "$out/$name.txt"
}

gadgets() { grep -c "START_OBJECT: GADGET" "$out/$1.cpp"; }

expect() {  # expect WHAT GOT WANTED
  if [ "$2" != "$3" ]; then echo "$1: $2, wanted $3"; exit 1; fi
  echo "$1: $2"
}

play yes close 'click-gadget "Quillform query" 1' 'expect-no-window "New Window"'
expect "Yes saves the page and closes it" "$(gadgets yes)" 2
play no close 'click-gadget "Quillform query" 2' 'expect-no-window "New Window"'
expect "No closes the page without its change" "$(gadgets no)" 1
play cancel close 'key escape' 'expect-no-window "Quillform query"' 'expect-window "New Window"' 'key ctrl+s'
expect "Cancel keeps the page open, and the script goes on" "$(gadgets cancel)" 2
play exit-yes exit 'click-gadget "Quillform query" 1'
expect "Yes in the exit's query saves the page" "$(gadgets exit-yes)" 2
play exit-cancel exit 'key escape' 'expect-window "New Window"' 'expect-no-window "Quillform query"'
expect "Cancel in the exit's query keeps the page" "$(gadgets exit-cancel)" 1
