#!/usr/bin/env bash
# The Debian package of the build: it installs into a scratch root with the program, its data
# files, the example, the menu entry, the description and the icons where the desktop looks for
# them; the menu entry and the description pass their validators; the installed program knows
# its version and, started with a fresh home folder, makes its own program folder and opens the
# example watershed.
# Usage: install_test.sh BUILD-FOLDER VERSION
set -euo pipefail
build="$1"
version="$2"
scratch="$(mktemp -d)"
trap 'rm -rf "$scratch"' EXIT

fail() { echo "FAILED: $*" >&2; exit 1; }

cpack --config "$build/CPackConfig.cmake" -B "$scratch/package" >"$scratch/cpack.log" 2>&1 ||
  { cat "$scratch/cpack.log"; fail "cpack could not make the package"; }
package="$(ls "$scratch"/package/*.deb)"
[ -n "$package" ] || fail "no package was made"
dpkg-deb -x "$package" "$scratch/root"
root="$scratch/root"

for file in usr/bin/brooklet \
            usr/share/brooklet/BrookletHelp.lst \
            usr/share/brooklet/examples/watershed.inp \
            usr/share/brooklet/examples/watershed.out \
            usr/share/applications/org.brooklet.Brooklet.desktop \
            usr/share/metainfo/org.brooklet.Brooklet.metainfo.xml \
            usr/share/icons/hicolor/scalable/apps/org.brooklet.Brooklet.svg \
            usr/share/icons/hicolor/48x48/apps/org.brooklet.Brooklet.png \
            usr/share/icons/hicolor/256x256/apps/org.brooklet.Brooklet.png \
            usr/share/doc/brooklet/guide.md \
            usr/share/doc/brooklet/guide/frmMain_loaded.png; do
  [ -s "$root/$file" ] || fail "the package does not hold $file"
done
dpkg-deb -f "$package" Version | grep -qx "$version" || fail "the package's version is not $version"

desktop-file-validate "$root/usr/share/applications/org.brooklet.Brooklet.desktop" ||
  fail "the menu entry does not validate"
appstreamcli validate --no-net --pedantic "$root/usr/share/metainfo/org.brooklet.Brooklet.metainfo.xml" ||
  fail "the description does not validate"

[ "$("$root/usr/bin/brooklet" --version)" = "Brooklet $version" ] || fail "brooklet --version"

# Started as from the menu, with a fresh home folder and in a folder without the program's data
# files: the program makes its own folder there, copies the installed files in and opens the
# example watershed.
home="$scratch/home"
mkdir -p "$home"
report="$(cd "$home" && env -u XDG_DATA_HOME -u XDG_CONFIG_HOME HOME="$home" QT_QPA_PLATFORM=offscreen \
          "$root/usr/bin/brooklet" --self-test 2>&1)" || { echo "$report"; fail "brooklet --self-test"; }
echo "$report"
folder="$home/.local/share/Brooklet"
grep -qx "Program folder: $folder/" <<<"$report" || fail "the program folder is not $folder"
grep -qx "Example watershed: $folder/examples/watershed.inp" <<<"$report" || fail "the example was not the copied one"
cmp -s "$folder/BrookletHelp.lst" "$root/usr/share/brooklet/BrookletHelp.lst" || fail "the help list was not copied"
grep -qx "Sections with data: 14" <<<"$report" || fail "the example's sections were not all read"

# A second self-test leaves the work files of the user's last session and the user's own land
# uses as they were.
printf '%s\r\n' "$home/shed.inp" >"$folder/temp/~filename.tmp"
printf 'Sub-Area:\r\n  UNSAVED\r\n' >"$folder/temp/~SubArea.tmp"
printf '"My Lawn","39","61","74","80"\r\n' >"$folder/Local_Land_Use_Data.txt"
before="$(cd "$folder" && cat temp/~filename.tmp temp/~SubArea.tmp Local_Land_Use_Data.txt | md5sum)"
(cd "$home" && env -u XDG_DATA_HOME HOME="$home" QT_QPA_PLATFORM=offscreen "$root/usr/bin/brooklet" --self-test \
  >/dev/null 2>&1) || fail "the second brooklet --self-test"
after="$(cd "$folder" && cat temp/~filename.tmp temp/~SubArea.tmp Local_Land_Use_Data.txt | md5sum)"
[ "$before" = "$after" ] || fail "the self-test changed the last session's work files or the user's land uses"
[ ! -e "$folder/temp/self-test" ] || fail "the self-test left its work files behind"
echo "install test passed: $(basename "$package")"
