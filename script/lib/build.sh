# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 Quillmark contributors
# SPDX-License-Identifier: MIT

# Sets the machine up and builds. Sourced with $script, the resolved path of a script in the folder above this one.
# Standard output stays the program's: all that is said here goes to standard error.

root="${script:?is set by whoever sources this}"
root="${root%/script/*}"

say() { printf 'Quillmark: %s\n' "$*" >&2; }
fail() { say "$@"; exit 1; }

# shellcheck source=packages.sh source-path=SCRIPTDIR
. "$root/script/lib/packages.sh"

# One set-up and build of a checkout at a time. The lock is on the folder itself, so that it leaves no file behind.
lock() {
    exec 9<"$root"
    if command -v flock >/dev/null; then
        flock -n 9 || { say "waiting for another set-up or build of this checkout"; flock 9; }
    else
        perl -MFcntl=:flock -e 'flock(STDIN, LOCK_EX) or die "flock: $!\n"' <&9
    fi
}
unlock() { exec 9<&-; }

# becomeOwner ARGUMENTS...: root starts the script again as the checkout's owner, whose build folder stays theirs.
# Root stays root where the owner could not write anyway: an unpacked archive, say, with its packer's user number.
becomeOwner() {
    local owner group entry user="" home=/ groups=--clear-groups
    owner="$(stat -c %u "$root" 2>/dev/null || stat -f %u "$root")"
    if [ "$EUID" -ne 0 ] || [ "$owner" -eq 0 ]; then return 0; fi
    local as=(sudo -H -u "#$owner")
    if command -v setpriv >/dev/null; then
        group="$(stat -c %g "$root")"
        # A container's owner can be a number without an account.
        if entry="$(getent passwd "$owner")"; then
            IFS=: read -r user _ _ group _ home _ <<<"$entry"
            groups=--init-groups
        fi
        as=(setpriv --reuid "$owner" --regid "$group" "$groups" env HOME="$home" USER="$user" LOGNAME="$user")
    fi
    "${as[@]}" test -w "$root" || return 0
    unlock
    exec "${as[@]}" bash "$script" "$@"
}

# prepare ARGUMENTS...: installs what is missing, and goes on as the right user, holding the lock.
prepare() {
    lock
    if [ "$(uname -s)" = Darwin ]; then
        becomeOwner "$@"
        installHomebrewPackages
    else
        if command -v apt-get >/dev/null; then installDebianPackages; fi
        becomeOwner "$@"
    fi
    command -v cmake >/dev/null || fail "needs, under this system's names for them: ${debianPackages[*]}"
}

# build PRESET OPTIONS...: configures when the options or the presets have changed, builds, and lets go of the lock.
build() {
    local folder="$root/build/$1" wanted="$root $*" fresh=""
    local stamp="$folder/configured-with"
    if ! mkdir -p "$folder" || [ ! -w "$folder" ]; then fail "cannot write to $folder"; fi
    [ -w "${HOME:-/}" ] || export CCACHE_DIR="$root/build/ccache"

    if [ "$(cat "$stamp" 2>/dev/null)" != "$wanted" ] || [ "$root/CMakePresets.json" -nt "$stamp" ] ||
        [ ! -f "$folder/build.ninja" ]; then
        # A cache that was made elsewhere, before the checkout was moved or copied, is of no use here.
        grep -qsxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$folder/CMakeCache.txt" || fresh=--fresh
        cmake -S "$root" ${fresh:+"$fresh"} --preset "$@" >&2 ||
            fail "cmake could not configure the build (its own messages are above)"
        printf '%s\n' "$wanted" >"$stamp"
    fi
    # Asked first, since a build with nothing to do would say so.
    if [[ "$(cmake --build "$folder" -- -n 2>&1)" != *"no work to do"* ]]; then
        cmake --build "$folder" >&2 || fail "the build failed (the compiler's messages are above)"
    fi
    unlock
}
