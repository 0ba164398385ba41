#!/usr/bin/env bash
# tst_installed_folder.sh CMAKE BUILD_FOLDER: installs the build into a fresh folder, runs the program there and
# looks at what it needs and what it did.
set -euo pipefail
cmake=$1 build=$2

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
installed="$folder/NVX 2017 größe"

. "$(dirname "${BASH_SOURCE[0]}")/installed.sh"

"$cmake" --install "$build" --prefix "$installed" >"$folder/install.log"
program="$installed/bin/NVXConfig"

# The toolkit's libraries and theirs come from the folder.
loaded=$(ldd "$program")
for library in libQt6Core libQt6Widgets libicuuc; do
    grep -qF "$library" <<<"$loaded" || fail "$library is not loaded at all"
    grep -F "$library" <<<"$loaded" | grep -qF "$installed/bin/../lib/" || fail "$library comes from elsewhere"
done
if grep -F 'not found' <<<"$loaded"; then fail "libraries are missing"; fi

# Its plug-ins do too: without them there is no offscreen platform to run on. A removal asks nobody anything; it
# looks for the product's solver, and without it works in the working folder.
cd "$folder"
touch "$installed/bin/NVXSolver.exe"
env -i LC_ALL=C.UTF-8 QT_QPA_PLATFORM=offscreen NVX_MACHINE="$folder/machine" \
    timeout 60 "$program" -U -S -Lde-DE || fail "the program ended with exit status $?"

# It ran to its end, in the language that lies beside it.
log="$installed/bin/NVXConfig.log"
grep -qF 'Language de-DE' "$log" || fail "no language in the log"
grep -qF 'Deinstallation der Tutorials' "$log" || fail "the log is not in German"
locales=$(python3 -B "$(dirname "${BASH_SOURCE[0]}")/../../tools/languages.py" --translated locale) ||
    fail "the table of languages could not be read"
for locale in $locales; do
    for catalogue in nvxconfig nvxwindow messagetableutility materialnameutility; do
        [ -s "$installed/bin/$locale/$catalogue.qm" ] || fail "no translations $catalogue for $locale"
    done
    [ -s "$installed/bin/$locale/qt_${locale/-/_}.qm" ] || fail "no translations of the toolkit for $locale"
done

# The command line runs there too, with nothing else of ours in its environment.
env -i LC_ALL=C.UTF-8 "$installed/bin/UpdateErrorTable" -h | grep -q '^Usage: UpdateErrorTable' ||
    fail "UpdateErrorTable does not run"

# So do the windows.
echo '<messageTable/>' >"$folder/table.xml"
try_window MessageTableUtility "$folder/table.xml" messagetableutility nvxwindow qt_de_DE
echo '<TS/>' >"$folder/matprop.ts"
try_window MaterialNameUtility "$folder/matprop.ts" materialnameutility nvxwindow qt_de_DE
echo "the installed folder runs as it stands"
