#!/usr/bin/env bash
# The installed game: asked on a terminal, and played by an ordinary user who cannot write its folder, which stays as
# it was.
#
#     tests/program/installed.sh BUILD-FOLDER
set -euo pipefail
fail() { echo "$*" >&2 && exit 1; }

stage=$(mktemp -d)
trap 'chmod -R u+w "$stage" && rm -rf "$stage"' EXIT
cmake --install "$1" --prefix "$stage/usr" >/dev/null
mkdir -m 700 "$stage/home"
cp -r --parents tests/program tools/speed "$stage"
chmod -R a+rX,a-w "$stage/usr"
chmod a+rx "$stage"
player=(env -i PATH="$PATH" HOME="$stage/home" XDG_RUNTIME_DIR="$stage/home")
if [ "$(id -u)" -eq 0 ]; then
    chown nobody "$stage/home"
    player=(runuser -u nobody -- "${player[@]}")
fi
zarpel=$stage/usr/games/zarpel
installed() { find "$stage/usr" -printf '%p %M %T@ %l\n' -type f -exec sha256sum {} + | sort; }

# Two cards of one face cannot be told apart.
alike=$(find "$stage/usr" -name '*.[jp][pn]g' -exec sha256sum {} + | sort | uniq -w 64 -D)
[ -z "$alike" ] || fail "some pictures are alike: $alike"
before=$(installed)
[ "$("${player[@]}" "$zarpel" --version)" = "Zarpel 1.0" ] || fail "it does not tell its version"
"${player[@]}" "$zarpel" --help | grep -q "Uso: zarpel" || fail "it does not tell how it is called"
("${player[@]}" "$zarpel" 2>&1 || true) | grep -q "no encuentra una pantalla" || fail "it does not say why no window comes"
for words in --nada "una.zrp otra.zrp"; do
    # shellcheck disable=SC2086
    error=$("${player[@]}" "$zarpel" $words 2>&1 >/dev/null) && fail "it takes $words"
    [ $? -eq 2 ] && [[ $error == "zarpel: "* ]] || fail "of $words it says: $error"
done
"${player[@]}" /usr/bin/python3 -B "$stage/tests/program/installed_test.py" "$zarpel"
[ "$(installed)" = "$before" ] || fail "the installed folder has changed"
