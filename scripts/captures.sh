#!/usr/bin/env bash
# captures.sh: makes the manual's pictures (src/ui/aide/manuel/images) from the running program, on a
# desktop of its own. Needs ImageMagick, librsvg2-bin and xdotool, and a built program (./run).
set -euo pipefail
racine=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
programmes=${1:-$racine/build/release/bin}
for outil in import convert rsvg-convert xdotool; do
    command -v "$outil" >/dev/null || { echo "Il manque $outil." >&2; exit 1; }
done
exec "$racine/tests/e2e/bureau.sh" "$racine/scripts/captures.py" "$programmes"
