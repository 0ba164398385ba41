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

# Builds with one line a minute, so that a watcher sees that it lives.
build_with_progress() {
    local folder=$1 log=$2
    mkdir -p "$(dirname "$log")"
    cmake --build "$folder" >"$log" 2>&1 &
    local builder=$!
    local seconds=0
    while kill -0 $builder 2>/dev/null; do
        sleep 2
        seconds=$((seconds + 2))
        if [ $((seconds % 60)) = 0 ]; then
            echo "   $(grep -oE '^\[[0-9]+/[0-9]+\]' "$log" | tail -n 1) after $((seconds / 60)) min"
        fi
    done
    wait $builder || {
        grep -m 20 -A 5 'FAILED\|error:' "$log" >&2
        fail "$folder did not build; the whole output is in $log"
    }
}
