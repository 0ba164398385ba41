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
    *=1.6.39-2+deb12u11) exit 100 ;;
    *\ download\ *) touch "$(basename "$(dirname "${@: -1}")").deb" ;;
esac
END
stand_in apt-cache <<'END'
case "$*" in
    *libpng1.6) printf 'Version: 1.6.%s\n' 39-2+deb12u9 39-2+deb12u10 39-2+deb12u11 39-2 43-1 ;;
    *freetype) printf 'Version: %s\n' 2.12.1+dfsg-5+deb12u4 2.13.2+dfsg-1 ;;
esac
END
# Qt's sources contain two libraries; in Debian's sources of these a file has a fix, and another one is not Qt's. One
# version of libpng is listed, but cannot be fetched.
stand_in dpkg-source <<'END'
to=${@: -1}
if [ "${to##*/}" = qt-source ]; then
    for library in libpng=1.6.39 freetype=2.12.1; do
        mkdir -p "$to/src/3rdparty/${library%=*}/config"
        cd "$to/src/3rdparty/${library%=*}"
        echo "\"Version\": \"${library#*=}\"" >qt_attribution.json
        echo "Qt's" | tee read.c config/options.h >own.c
    done
    exit
fi
mkdir -p "$to/config"
echo "Debian's" | tee "$to/read.c" "$to/config/options.h" >"$to/other.c"
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
grep -q Debian "$NVX_CACHE"/qt-source/src/3rdparty/{libpng,freetype}/{own.c,config/options.h} &&
    fail "a file that is Qt's own was replaced"
for library in libpng freetype; do
    grep -q Debian "$NVX_CACHE/qt-source/src/3rdparty/$library/read.c" || fail "the fixes of $library were not taken"
done
for taken in libpng=1.6.39-2+deb12u10 freetype=2.12.1+dfsg-5+deb12u4; do
    noted=$(cat "$NVX_CACHE/qt-source/src/3rdparty/${taken%=*}/debian-version")
    [ "${noted#* }" = "${taken#*=}" ] || fail "not the newest fixes of ${taken%=*} were noted: $noted"
    grep -F "apt-get " "$calls" | grep -qF -- "=${taken#*=}" || fail "not the newest fixes of ${taken%=*} were fetched"
done
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
