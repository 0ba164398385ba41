#!/usr/bin/env bash
# tst_tools_package.sh CPACK BUILD_FOLDER SOURCE_FOLDER: packs the developers' tools, unpacks them into a folder outside the build,
# and runs them there.
set -euo pipefail
cpack=$1 build=$2 sources=$3
. "$(dirname "${BASH_SOURCE[0]}")/installed.sh"

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

(cd "$build" && "$cpack" --config CPackConfig.cmake -B "$folder/packed") >"$folder/pack.log" ||
    fail "not packed: $(tail -n 5 "$folder/pack.log")"
grep -q '"name": "libqt6core6"' "$folder"/packed/*.cdx.json || fail "the bill of materials lacks Qt"
packed=$(basename "$folder"/packed/*.tar.gz)
grep -qF "| \`${packed/17.*-linux/VERSION-linux}\` |" "$sources/README.md" ||
    fail "the README does not list $packed"
owners=$(tar --numeric-owner -tvzf "$folder"/packed/*.tar.gz | awk '{ print $2 }' | sort -u)
[ "$owners" = 0/0 ] || fail "the archive names who packed it: $owners"
unpacked="$folder/tools für größe"
mkdir "$unpacked"
tar -xzf "$folder"/packed/nvx-2017-tools-*.tar.gz -C "$unpacked"
(cd "$folder/packed" && sha256sum --quiet -c ./*.sha256) || fail "the checksum is wrong"
rm -rf "$folder/packed"
installed=$(echo "$unpacked"/*)
[ -d "$installed/bin" ] || fail "not one folder: $(ls "$unpacked")"

# It contains the tools, stripped, and nothing of the configuration program.
programs=$(cd "$installed/bin" && find . -maxdepth 1 -type f -perm -u+x | sort | tr '\n' ' ')
[ "$programs" = "./MaterialNameUtility ./MessageTableCheck ./MessageTableUtility ./NVXLogSummary ./UpdateErrorTable " ] ||
    fail "programs: $programs"
[ -z "$(find "$installed" -name 'nvxconfig.qm')" ] || fail "translations of a program that is not in the package"
for program in $programs; do
    if readelf -S "$installed/bin/$program" | grep -qF .debug_info; then fail "$program is not stripped"; fi
    # Another folder of the sources gives the same program.
    if grep -qF -e "$sources/" -e "$build/" "$installed/bin/$program"; then fail "$program names its folder"; fi
    if readelf -n "$installed/bin/$program" | grep -qF 'Build ID'; then fail "$program has a build id"; fi
    headers=$(readelf -hldW --dyn-syms "$installed/bin/$program")
    for defence in 'Type: +DYN' GNU_RELRO BIND_NOW __stack_chk_fail; do
        grep -qE "$defence" <<<"$headers" || fail "$program lacks $defence"
    done
    loaded=$(ldd "$installed/bin/$program")
    if grep -F 'not found' <<<"$loaded"; then fail "libraries are missing"; fi
    if grep -E 'libQt6|libicu' <<<"$loaded" | grep -vF "$installed/"; then
        fail "libraries come from elsewhere"
    fi
done

# Every library has its licence.
mapfile -t libraries < <(find "$installed/lib" "$installed/plugins" -name '*.so*' -printf '*/%f\n')
[ "${#libraries[@]}" -gt 20 ] || fail "only ${#libraries[@]} libraries"
packages=$(dpkg-query -S "${libraries[@]}" | cut -d: -f1 | sort -u) || fail "a library of no package"
for package in $packages qt6-translations-l10n; do
    grep -qsi copyright "$installed/licences/$package.txt" || fail "no licence of $package"
done
grep -qF 'Version 3, 29 June 2007' "$installed/licences/general/LGPL-3.txt" || fail "the text of the LGPL is missing"

# The command line works: it adds the message of a project's source to the table.
mkdir -p "$folder/project/source"
cat >"$folder/project/client.vcxproj" <<'END'
<Project xmlns="http://schemas.microsoft.com/developer/msbuild/2003">
  <PropertyGroup Label="Globals"><RootNamespace>client</RootNamespace></PropertyGroup>
  <ItemGroup><ClCompile Include="source\solver.cpp" /></ItemGroup>
</Project>
END
echo 'void start() { REPORT_ERROR("MeshIsEmpty"); }' >"$folder/project/source/solver.cpp"
cd "$folder/project"
output=$(env -i LC_ALL=C.UTF-8 "$installed/bin/UpdateErrorTable" -sync errors.xml client.vcxproj) ||
    fail "UpdateErrorTable ended with exit status $?"
grep -qF 'Found 1 keys (1 new, 0 existing, and 0 obsolete)' <<<"$output" || fail "UpdateErrorTable printed: $output"
grep -qF MeshIsEmpty "$folder/project/errors.xml" || fail "the message is not in the table"

# The programs with windows open their files, in the user's language.
echo '<messageTable/>' >"$folder/table.xml"
echo '<TS/>' >"$folder/matprop.ts"
try_window MessageTableUtility "$folder/table.xml" messagetableutility nvxwindow qt_de_DE
try_window MaterialNameUtility "$folder/matprop.ts" materialnameutility nvxwindow qt_de_DE
echo "the unpacked tools run"
