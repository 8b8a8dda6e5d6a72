#!/usr/bin/env bash
# One style: clang-format (the first argument) finds nothing to change in the code's files.
set -euo pipefail
cd "$(dirname "$0")/../.."
tests/style/format_files.sh | xargs "$1" --dry-run --Werror
