# shellcheck shell=bash
# What the scripts of this folder share: where things are, and how they speak. Sourced, not run.

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

# Runs a command with its output in a file; on failure prints the file's end and stops the script.
quietly() {
    local file=$1
    shift
    mkdir -p "$(dirname "$file")"
    if ! "$@" >"$file" 2>&1; then
        tail -n 60 "$file" >&2
        fail "'$*' failed; its whole output is in $file"
    fi
}

# build_with_progress FOLDER LOG [TARGET...]: builds with one line a minute, so that a watcher sees that it lives.
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
        fail "$folder did not build; the whole output is in $log"
    }
}

# build_preset PRESET [TARGET...]: builds the targets of a preset, by default all that its tests need. Configures
# the preset when it has not been configured yet or when the presets have changed; for all else the build itself
# notices.
build_preset() {
    local preset=$1 folder=$root/build/$1
    shift
    [ "$folder/build.ninja" -nt "$root/CMakePresets.json" ] ||
        (cd "$root" && quietly "$root/build/log/configure-$preset.log" cmake --preset "$preset")
    build_with_progress "$folder" "$root/build/log/build-$preset.log" "$@"
}
