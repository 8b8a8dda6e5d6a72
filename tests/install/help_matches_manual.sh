#!/usr/bin/env bash
# Checks that the host's --help and the manual page name the same options and exit statuses.
#   help_matches_manual.sh QUILLFORM MANUAL
set -euo pipefail
help=$("$1" --help)
manual="$2"
help_options=$(printf '%s\n' "$help" | grep -oE '^  --[a-z]*' | tr -d ' ' | sort)
# The manual's options are the .B and .BI lines of its OPTIONS section.
manual_options=$(sed -n '/^\.SH OPTIONS/,/^\.SH [^O]/p' "$manual" | grep -E '^\.BI? ' |
                 grep -oE '^\.BI? \\-\\-[a-z]*' | sed 's/^\.BI* //; s/\\//g' | sort)
help_codes=$(printf '%s\n' "$help" | sed -n '/^Exit status/,$p' | grep -oE '(^|, |: )[0-9] ' | grep -oE '[0-9]' | sort)
manual_codes=$(sed -n '/^\.SH EXIT STATUS/,/^\.SH [^E]/p' "$manual" | grep -A1 '^\.TP' | grep -oE '^\.B [0-9]$' |
               grep -oE '[0-9]' | sort)
if [ "$help_options" != "$manual_options" ]; then
  echo "options differ: --help has" $help_options "; the manual has" $manual_options
  exit 1
fi
if [ "$help_codes" != "$manual_codes" ]; then
  echo "exit statuses differ: --help has" $help_codes "; the manual has" $manual_codes
  exit 1
fi
if command -v groff >/dev/null && [ -n "$(groff -man -ww -z "$manual" 2>&1)" ]; then
  groff -man -ww -z "$manual"
  exit 1
fi
echo "--help and the manual agree:" $help_options
