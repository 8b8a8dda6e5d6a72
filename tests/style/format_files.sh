#!/usr/bin/env bash
# The C and C++ files that the code's style (.clang-format) covers: every one but the page files
# the writer produced (tests/golden, the example's page), which stay as Quillform wrote them.
cd "$(dirname "$0")/../.."
find editor examples host page properties shell source tests toolkit \
    \( -name '*.cpp' -o -name '*.h' -o -name '*.c' \) \
    -not -path 'tests/golden/*' -not -path 'examples/login/login_page.cpp' | sort
