# shellcheck shell=bash
# Paths and functions for the scripts in this folder, which source it.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cache=${NVX_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/nvx}
export NVX_CACHE=$cache

if [ -t 1 ]; then
    say() { printf '\033[1m== %s\033[0m\n' "$*"; }
else
    say() { printf '== %s\n' "$*"; }
fi

fail() {
    printf 'error: %s\n' "$*" >&2
    exit 1
}

# quietly LOG COMMAND...: runs a command with its output in a file; if it fails, prints the end of the file and exits.
quietly() {
    local file=$1
    shift
    mkdir -p "$(dirname "$file")"
    if ! "$@" >"$file" 2>&1; then
        tail -n 60 "$file" >&2
        fail "'$*' failed; the whole output is in $file"
    fi
}

# build_with_progress FOLDER LOG [TARGET...]: builds, and prints its progress once a minute.
build_with_progress() {
    local folder=$1 log=$2
    shift 2
    mkdir -p "$(dirname "$log")"
    cmake --build "$folder" ${1:+--target "$@"} >"$log" 2>&1 &
    local builder=$! started=$SECONDS minutes=0
    while kill -0 $builder 2>/dev/null; do
        sleep 0.1
        if [ $(((SECONDS - started) / 60)) -gt $minutes ]; then
            minutes=$(((SECONDS - started) / 60))
            echo "   $(grep -oE '^\[[0-9]+/[0-9]+\]' "$log" | tail -n 1) after $minutes min"
        fi
    done
    wait $builder || {
        grep -m 20 -A 5 'FAILED\|error:' "$log" >&2
        fail "the build in $folder failed; the whole output is in $log"
    }
}

# build_preset PRESET [TARGET...]: builds the targets of a preset, by default all. Configures the preset first if it has
# not been configured or if the presets have changed; the build itself detects all other changes.
build_preset() {
    local preset=$1 folder=$root/build/$1
    shift
    [ "$folder/build.ninja" -nt "$root/CMakePresets.json" ] ||
        (cd "$root" && quietly "$root/build/log/configure-$preset.log" cmake --preset "$preset")
    build_with_progress "$folder" "$root/build/log/build-$preset.log" "$@"
}
