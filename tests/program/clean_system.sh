#!/usr/bin/env bash
# In a clean system: installs the package with only what it depends on, starts the game for an ordinary user, leaves it,
# and removes it. package.sh makes the system.
#
#     ZARPEL_DEB=PACKAGE.deb tests/program/clean_system.sh ROOT
set -euo pipefail
root=$1
inside() { chroot "$root" "$@"; }
fail() { echo "$*" >&2 && exit 1; }

cp "$ZARPEL_DEB" "$root/tmp/zarpel.deb"
inside env DEBIAN_FRONTEND=noninteractive apt-get -qq install -y --no-install-recommends /tmp/zarpel.deb >/dev/null
inside useradd -m player
echo dañada >"$root/home/player/partida.zrp"

within_a_minute() {
    for _ in {1..60}; do
        "$@" && return
        sleep 1
    done
    return 1
}
openbox &
trap 'kill %1' EXIT
within_a_minute xdotool search --class openbox >/dev/null 2>&1  # it gives the keyboard only to windows that come later
chroot --userspec=player:player "$root" env -i HOME=/home/player DISPLAY="$DISPLAY" PATH=/usr/bin:/usr/games zarpel &
game=$!
shows_the_table() { xdotool search --onlyvisible --name '^Playing$' >/dev/null 2>&1; }
leaves() { ! kill -0 $game 2>/dev/null || { xdotool key alt+F4 && false; }; }  # the table, then the farewell
within_a_minute shows_the_table || fail "there is no table"
within_a_minute leaves || fail "the game does not end"
wait $game || fail "the game ends with status $?"

before=$(cd "$root/home" && find . -type f -exec sha256sum {} +)
inside apt-get -qq purge -y zarpel >/dev/null
left=$(find "$root" -xdev -iname '*zarpel*' -not -path "$root/home/*" -not -path "$root/tmp/*" -not -path "$root/proc/*")
[ -z "$left" ] || fail "the package leaves behind: $left"
[ "$(cd "$root/home" && find . -type f -exec sha256sum {} +)" = "$before" ] || fail "a player's files were touched"
