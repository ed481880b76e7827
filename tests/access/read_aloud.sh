#!/usr/bin/env bash
# SPDX-FileCopyrightText: The Boulix developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# read_aloud.sh CMAKE BUILD: installs the program into a folder of its own and starts it, on the
# display it is run on, with a message bus of its own; then evening.py uses it as a screen reader
# does. Ends with 77 where the machine has no way for screen readers.
set -eu
cmake=$1 build=$2
here=$(cd "$(dirname "$0")" && pwd)
if ! command -v dbus-run-session >/dev/null || ! /usr/bin/python3 -c 'import pyatspi' 2>/dev/null; then
    echo "no way for screen readers here: at-spi2-core, dbus-daemon and python3-pyatspi are wanted"
    exit 77
fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
"$cmake" --install "$build" --prefix "$work/boulix" >/dev/null
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 XDG_CONFIG_HOME=$work/config XDG_CACHE_HOME=$work/cache
cd "$work"
timeout 240 dbus-run-session -- /usr/bin/python3 "$here/evening.py" "$work/boulix"
