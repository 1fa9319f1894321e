# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 Quillmark contributors
# SPDX-License-Identifier: MIT

# Sourced by the tests in this folder.

set -euo pipefail
project="$(cd "${BASH_SOURCE[0]%/*}/../.." && pwd)"
failures=0

complain() { echo "FAIL: $*"; failures=$((failures + 1)); }
finish() { [ "$failures" -eq 0 ] || exit 1; }

# needs PROGRAM...: what is not installed skips the test; in continuous integration that is a failure.
needs() {
    local program
    for program in "$@"; do
        command -v "$program" >/dev/null && continue
        echo "SKIPPED: $program is not installed"
        [ -z "${CI:-}" ] || exit 1
        exit 77
    done
}
