#!/usr/bin/env bash
# Runs a command and checks its exit code and that its standard error is one line matching a
# pattern.  expect_exit.sh CODE PATTERN COMMAND...
code="$1"; pattern="$2"; shift 2
err=$("$@" 2>&1 >/dev/null); got=$?
lines=$(printf '%s\n' "$err" | grep -c .)
if [ "$got" -ne "$code" ]; then echo "exit $got, wanted $code: $err"; exit 1; fi
if [ "$lines" -ne 1 ]; then echo "wanted one line, got $lines: $err"; exit 1; fi
if ! printf '%s' "$err" | grep -qE "$pattern"; then echo "no match for $pattern: $err"; exit 1; fi
echo "exit $got: $err"
