#!/usr/bin/env bash
# tst_tools_setup.sh SETUP: runs tools/setup with the test's own cache folder on a machine where everything is missing.
# Scripts that only record their calls replace the programs that install, download and build.
set -euo pipefail
setup=$1

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
calls=$folder/calls
export NVX_CACHE=$folder/cache PATH=$folder/bin:$PATH calls folder
mkdir "$folder/bin"

fail() {
    echo "FAIL: $*" >&2
    cat "$folder"/*.log >&2
    exit 1
}

# stand_in PROGRAM: creates the script that replaces the program, from standard input.
stand_in() {
    {
        cat <<'BEGIN'
#!/usr/bin/env bash
echo "${0##*/} $*" >>"$calls"
BEGIN
        cat
    } >"$folder/bin/$1"
    chmod +x "$folder/bin/$1"
}

stand_in sudo <<'END'
exec "$@"
END
stand_in dpkg-query <<'END'
[ -f "$folder/packages-installed" ] || exit 1
shift 3
case "$*" in
    qt6-base-dev) echo 6.4.2 ;;
    *) printf 'installed\n%.0s' "$@" ;;
esac
END
stand_in apt-get <<'END'
case "$*" in
    install\ *) touch "$folder/packages-installed" ;;
    *\ download\ *) touch "$(basename "$(dirname "${@: -1}")").deb" ;;
esac
END
stand_in dpkg-source <<'END'
mkdir "${@: -1}"
END
stand_in dpkg-deb <<'END'
mkdir -p "$3/usr/lib64"
echo 'echo v3.12-1' >"$3/usr/lib64/ld-linux-x86-64.so.2"
chmod +x "$3/usr/lib64/ld-linux-x86-64.so.2"
END
stand_in sha256sum <<'END'
cat >/dev/null
! [ -f "$calls-damaged" ]
END
stand_in npm <<'END'
mkdir -p package/win/x64
touch package/win/x64/7za.exe
tar -czf 7zip-bin-5.2.0.tgz package
END
# The build lasts long enough for the other tools/setup to find it running.
stand_in cmake <<'END'
case $1 in
    --build) sleep 3 ;;
    --install) mkdir "$(dirname "$2")/qt-windows" ;;
esac
END

count() { grep -cE "$1" "$calls" || true; }

# Two at the same time: both succeed, and each part of the work is done once.
"$setup" >"$folder/first.log" 2>&1 &
first=$!
"$setup" >"$folder/second.log" 2>&1 || fail "the second one ended with exit status $?"
wait $first || fail "the first one ended with exit status $?"
for work in 'apt-get install' 'npm pack' 'apt-get .* source .*qt6-base' 'apt-get .* nsis/' 'cmake -S' 'cmake --build' 'cmake --install'; do
    [ "$(count "^$work")" = 1 ] || fail "'$work' was called $(count "^$work") times"
done
grep -qhF 'waiting for another tools/setup' "$folder"/first.log "$folder"/second.log || fail "neither has waited"
[ -f "$NVX_CACHE/qt-windows/built-from" ] || fail "Qt is not where the build looks for it"
[ "$("$NVX_CACHE/nsis/makensis")" = v3.12-1 ] || fail "the compiler of the set-up program does not run"
[ -f "$NVX_CACHE/7zip-windows/7za.exe" ] || fail "7-Zip is not where the build looks for it"

# If everything exists, it only checks, and prints nothing.
: >"$calls"
"$setup" >"$folder/third.log" 2>&1 || fail "the third one ended with exit status $?"
[ -s "$folder/third.log" ] && fail "it prints something although there is nothing to do"
[ "$(count '^dpkg-query')" = "$(count '')" ] || fail "it calls: $(cat "$calls")"

# Only what is missing is made again.
rm "$NVX_CACHE/7zip-windows/7za.exe"
"$setup" >"$folder/fourth.log" 2>&1 || fail "the fourth one ended with exit status $?"
[ "$(count '^npm pack')" = 1 ] || fail "7-Zip is missing and was not fetched"
[ "$(count '^(apt-get|cmake)')" = 0 ] || fail "it calls: $(cat "$calls")"

# A 7-Zip package with other contents is refused.
rm "$NVX_CACHE/7zip-windows/7za.exe"
touch "$calls-damaged"
"$setup" >"$folder/fifth.log" 2>&1 && fail "it takes a package with another hash"
[ -f "$NVX_CACHE/7zip-windows/7za.exe" ] && fail "7-Zip was taken from a package with another hash"
echo "tools/setup does its work once"
