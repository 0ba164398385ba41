#!/usr/bin/env bash
# tst_package_twice.sh ROOT: runs tools/package in a small project of its own, where scripts replace the programs that
# build and pack.
set -euo pipefail
root=$1

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export PATH=$folder/bin:$PATH folder GIT_CONFIG_GLOBAL=/dev/null
project=$folder/project
mkdir -p "$folder/bin" "$project/tools"

fail() {
    echo "FAIL: $*" >&2
    cat "$folder/output" >&2
    exit 1
}

# stand_in PROGRAM: creates a script, from standard input.
stand_in() {
    cat >"$1"
    chmod +x "$1"
}

stand_in "$folder/bin/cmake" <<'END'
#!/bin/sh
[ "$1" = --preset ] || exit 0
mkdir -p "build/$2"
touch "build/$2/build.ninja"
END
# The package is the output of the commands in $folder/contents.
stand_in "$folder/bin/cpack" <<'END'
#!/bin/sh -e
mkdir -p "$4"
. "$folder/contents" >"$4/tools.tar.gz"
END
stand_in "$project/tools/setup" </dev/null
cp "$root/tools/package" "$root/tools/lib.sh" "$project/tools"
echo '/build/' >"$project/.gitignore"
echo >"$project/CMakePresets.json"
git init -q "$project"
git -C "$project" add .
git -C "$project" -c user.name=test -c user.email=test@velmora.example commit -q -m first

# package COMMANDS [ARGUMENT...]: packs the output of the commands.
package() {
    echo "$1" >"$folder/contents"
    shift
    "$project/tools/package" "$@" >"$folder/output" 2>&1
}

package 'echo the same' --twice native || fail "the same packages are reported as different"
grep -qF 'all packages are the same' "$folder/output" || fail "it does not report that it has compared"

# shellcheck disable=SC2016 # for the script that packs
for difference in 'echo "$4"' 'umask' 'date +%Z' 'echo "$CCACHE_DISABLE"'; do
    package "$difference" native || fail "packed once: failed"
    if package "$difference" --twice native; then fail "packages with the output of '$difference' are the same"; fi
    grep -qF 'these are not the same: tools.tar.gz' "$folder/output" || fail "the package is not named"
done

# As when a program could not be signed.
if package false native; then fail "the packing has failed, and tools/package succeeds"; fi

if NVX_SIGN=true package 'echo the same' --twice native; then fail "it compares signed packages"; fi
touch "$project/not committed"
if package 'echo the same' --twice native; then fail "it compares a commit with what is not committed"; fi
echo "packages are built twice and compared"
