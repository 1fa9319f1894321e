# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 Quillmark contributors
# SPDX-License-Identifier: MIT

# What Quillmark is built with, and how it gets onto this machine. Sourced by build.sh, whose say and fail it uses.

# Fonts: Noto has Latin, Greek, Cyrillic, Arabic and more, Sawarabi Japanese. In tests, poppler-utils reads PDF documents
# and openssl makes certificates.
debianPackages=(g++ cmake ninja-build ccache qt6-base-dev qt6-svg-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
    qt6-translations-l10n libicu-dev libcli11-dev fonts-noto-core fonts-sawarabi-gothic openssl poppler-utils librsvg2-bin)
# What continuous integration must have beyond that: what reads the manual page, the completions and the files for
# desktops, and what installs the compiler that checks the Mac's sources.
checkPackages=(appstream desktop-file-utils fish mandoc zsh)
macCheckPackages=(npm)
homebrewPackages=(cmake ninja ccache qt icu4c cli11 librsvg openssl@3 poppler)

installDebianPackages() {
    local package installed missing=() names=("${debianPackages[@]}")
    if [ -n "${CI:-}" ]; then
        names+=("${checkPackages[@]}")
        # npm may have come by another way than Debian's.
        command -v npm >/dev/null || names+=("${macCheckPackages[@]}")
    fi
    installed=" $(dpkg-query -W -f '${Package}=${db:Status-Status} ' "${names[@]}" 2>/dev/null || true)"
    for package in "${names[@]}"; do
        [[ "$installed" == *" $package=installed "* ]] || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0

    # A root shell opened by plain su keeps the user's PATH, without the folders that dpkg looks for its tools in.
    local apt=(env DEBIAN_FRONTEND=noninteractive PATH="$PATH:/usr/sbin:/sbin" apt-get -y -o DPkg::Lock::Timeout=600)
    if [ "$EUID" -ne 0 ]; then
        command -v sudo >/dev/null || fail "needs packages that only root can install (there is no sudo): ${missing[*]}"
        # With nobody at the terminal, a password is not waited for.
        if [ -t 0 ]; then apt=(sudo "${apt[@]}"); else apt=(sudo -n "${apt[@]}"); fi
    fi
    say "installing with apt-get: ${missing[*]}"
    "${apt[@]}" update </dev/null >&2 || say "the package lists could not be updated, going on with those at hand"
    "${apt[@]}" install --no-install-recommends "${missing[@]}" </dev/null >&2 ||
        fail "these packages could not be installed (the messages above say why): ${missing[*]}"
}

installHomebrewPackages() {
    local package prefix missing=()
    PATH="$PATH:/opt/homebrew/bin:/usr/local/bin"
    command -v brew >/dev/null || fail "needs Homebrew, to install: ${homebrewPackages[*]}"
    prefix="$(brew --prefix)"
    for package in "${homebrewPackages[@]}"; do
        [ -d "$prefix/opt/$package" ] || missing+=("$package")
    done
    # Homebrew keeps its ICU apart from the system's, where CMake does not look by itself.
    export ICU_ROOT="$prefix/opt/icu4c"
    [ ${#missing[@]} -gt 0 ] || return 0
    say "installing with Homebrew: ${missing[*]}"
    brew install "${missing[@]}" </dev/null >&2 ||
        fail "these formulae could not be installed (the messages above say why): ${missing[*]}"
}
