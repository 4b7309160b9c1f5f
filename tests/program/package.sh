#!/usr/bin/env bash
# The package: the system's checkers have nothing to say of it, and it comes to a clean Debian and goes again.
#
#     tests/program/package.sh PACKAGE.deb
set -euo pipefail
here=$(dirname "$(realpath "${BASH_SOURCE[0]}")")
deb=$(realpath "$1")

for tool in lintian desktop-file-validate appstreamcli mmdebstrap Xvfb openbox xdotool; do
    command -v "$tool" >/dev/null || { echo "SKIPPED: the package is not tried, since $tool is missing." && exit 0; }
done

files=$(mktemp -d)
trap 'rm -rf "$files"' EXIT
dpkg-deb -x "$deb" "$files"
desktop-file-validate "$files"/usr/share/applications/*.desktop
appstreamcli validate --no-net "$files"/usr/share/metainfo/*.xml
remarks=$(lintian --fail-on none "$deb" 2>/dev/null)
[ -z "$remarks" ] || { echo "$remarks" && exit 1; }

# The clean system is made, used and thrown away at once. Its programs find the display by the network that they share.
export ZARPEL_DEB=$deb
xvfb-run -a -s "-screen 0 1280x800x24 -ac" \
    mmdebstrap --quiet --variant=minbase --dpkgopt=force-unsafe-io --customize-hook="$here/clean_system.sh" bookworm /dev/null
