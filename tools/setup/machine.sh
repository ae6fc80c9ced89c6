#!/usr/bin/env bash
# Makes the machine ready: machine.sh [screen|desktop]. Does only what is not done yet, and nothing over the network then.
# The argument is the kind of the Wine prefix, see wine-prefix.sh.
set -euo pipefail
# shellcheck source=tools/lib/common.sh
. "$(dirname "${BASH_SOURCE[0]}")/../lib/common.sh"

setup=$ky_root/tools/setup
"$setup/packages.sh"
"$setup/boost-locale.sh"
"$setup/pugixml.sh"
"$setup/wine-prefix.sh" "$(ky_prefix "${1:-screen}")" "${1:-screen}"
