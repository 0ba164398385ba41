#!/usr/bin/env bash
# tst_installed_folder.sh CMAKE BUILD_FOLDER: installs the build into a new folder, runs the program there and checks
# the libraries that it loads and its log.
set -euo pipefail
cmake=$1 build=$2

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
installed="$folder/NVX 2017 größe"

. "$(dirname "${BASH_SOURCE[0]}")/installed.sh"

"$cmake" --install "$build" --prefix "$installed" >"$folder/install.log"
program="$installed/bin/NVXConfig"

# Qt's libraries and their dependencies come from the folder.
loaded=$(ldd "$program")
for library in libQt6Core libQt6Widgets libicuuc; do
    grep -qF "$library" <<<"$loaded" || fail "$library is not loaded at all"
    grep -F "$library" <<<"$loaded" | grep -qF "$installed/bin/../lib/" || fail "$library comes from elsewhere"
done
if grep -F 'not found' <<<"$loaded"; then fail "libraries are missing"; fi

# So do its plug-ins: without them there is no offscreen platform. A removal asks no questions. It looks for the
# product's solver; without it, it would use the working folder.
cd "$folder"
touch "$installed/bin/NVXSolver.exe"
env -i LC_ALL=C.UTF-8 QT_QPA_PLATFORM=offscreen NVX_MACHINE="$folder/machine" \
    timeout 60 "$program" -U -S -Lde-DE || fail "the program ended with exit status $?"

# It ran to its end, with the translations next to it.
log="$installed/bin/NVXConfig.log"
grep -qF 'Language de-DE' "$log" || fail "no language in the log"
grep -qF 'Deinstallation der Tutorials' "$log" || fail "the log is not in German"
locales=$(python3 -B "$(dirname "${BASH_SOURCE[0]}")/../../tools/languages.py" --translated locale) ||
    fail "the table of languages could not be read"
for locale in $locales; do
    for catalogue in nvxconfig nvxwindow messagetableutility materialnameutility; do
        [ -s "$installed/bin/$locale/$catalogue.qm" ] || fail "no translations $catalogue for $locale"
    done
    [ -s "$installed/bin/$locale/qt_${locale/-/_}.qm" ] || fail "no translations of Qt for $locale"
done

# The command line runs there too, with an empty environment.
env -i LC_ALL=C.UTF-8 "$installed/bin/UpdateErrorTable" -h | grep -q '^Usage: UpdateErrorTable' ||
    fail "UpdateErrorTable does not run"

# So do the programs with windows.
echo '<messageTable/>' >"$folder/table.xml"
try_window MessageTableUtility "$folder/table.xml" messagetableutility nvxwindow qt_de_DE
echo '<TS/>' >"$folder/matprop.ts"
try_window MaterialNameUtility "$folder/matprop.ts" materialnameutility nvxwindow qt_de_DE
echo "the installed programs run"
