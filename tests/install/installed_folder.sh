#!/usr/bin/env bash
# SPDX-FileCopyrightText: The Boulix developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# installed_folder.sh CMAKE BUILD FOLDER: installs the program into FOLDER, looks at what is there,
# then starts it from elsewhere: its files must appear in FOLDER and nowhere else.
set -eu
cmake=$1 build=$2 folder=$3
fail() { echo "FAILED: $*" >&2; exit 1; }

rm -rf "$folder"
"$cmake" --install "$build" --prefix "$folder"

top=$BOULIX_TOP
for file in boulix boulix.svg boulix.desktop boulix-types.xml LICENSE; do
    [ -s "$folder/$file" ] || fail "$file is not in the folder"
done
for part in samples help; do
    [ ! -d "$top/$part" ] || diff -r "$top/$part" "$folder/$part" || fail "$part/ is not complete"
done
cmp "$top/packaging/defrapp.rap" "$folder/defrapp.rap" || fail "no prize table to begin with"
printf mine >"$folder/defrapp.rap"
"$cmake" --install "$build" --prefix "$folder" >/dev/null
[ "$(cat "$folder/defrapp.rap")" = mine ] || fail "the player's prize table was written over"
rm "$folder/defrapp.rap"
"$cmake" --install "$build" --prefix "$folder" >/dev/null
cmp "$top/packaging/defrapp.rap" "$folder/defrapp.rap" || fail "the missing prize table did not come back"

desktop-file-validate "$folder/boulix.desktop" || fail "the menu entry is not valid"
grep -qx "Exec=$folder/boulix %F" "$folder/boulix.desktop" || fail "the menu entry starts something else"

elsewhere=$(mktemp -d)
program=
trap '[ -z "$program" ] || kill "$program" 2>/dev/null || true; rm -rf "$elsewhere"' EXIT
cd "$elsewhere"
"$folder/boulix" -debug &
program=$!
for ((n = 0; n < 200; n++)); do
    [ ! -e "$folder/boulix.log" ] || break
    sleep 0.1
done
[ -e "$folder/boulix.log" ] || fail "no log in the folder"
sleep 2
kill -0 "$program" 2>/dev/null || fail "the program ended by itself"
[ -z "$(ls -A "$elsewhere")" ] || fail "files in the folder it was started from: $(ls -A "$elsewhere")"
echo "The folder is complete and the program keeps to it."
