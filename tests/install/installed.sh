# shellcheck shell=bash
# Shared by the tests of this folder. Sourced, not run. $folder is the test's own folder, $installed the folder of the
# installed programs.

fail() {
    echo "FAIL: $*" >&2
    exit 1
}

# try_window PROGRAM FILE CATALOGUE...: starts a program in German with a file. It must store the file that it opened,
# load its translations from its own folder, and run until it is ended.
try_window() {
    : "${folder:?}" "${installed:?}"
    local program=$1 file=$2 settings=$folder/config/Velmora/$1.conf errors=$folder/$1.errors
    local window maps i catalogue
    shift 2
    env -i LC_ALL=de_DE.UTF-8 QT_QPA_PLATFORM=offscreen XDG_CONFIG_HOME="$folder/config" HOME="$folder" \
        "$installed/bin/$program" "$file" 2>"$errors" &
    window=$!
    for ((i = 0; i < 300; ++i)); do
        grep -qsF "${file##*/}" "$settings" && break
        sleep 0.2
    done
    maps=$(cat "/proc/$window/maps" 2>/dev/null) || true
    kill "$window" || fail "$program does not run: $(cat "$errors")"
    grep -qsF "${file##*/}" "$settings" || fail "$program did not open its file"
    for catalogue; do
        grep -qF "$installed/bin/de-DE/$catalogue.qm" <<<"$maps" ||
            fail "$program has not loaded $catalogue.qm"
    done
}
