#!/usr/bin/env bash
# bureau.sh COMMAND...: runs COMMAND on a desktop of its own (X server, window manager, session and
# accessibility buses, empty home) and ends with its exit code. Nothing of the user's session is used.
set -euo pipefail

for outil in Xvfb dbus-run-session openbox; do
    command -v "$outil" >/dev/null || {
        echo "Il manque $outil ; ./test l'installe." >&2
        exit 1
    }
done

if [[ ${1:-} != --dans-le-bureau ]]; then
    maison=$(mktemp -d)
    mkdir -m 700 "$maison/execution"
    mkfifo "$maison/ecran"
    exec 3<>"$maison/ecran" # the server chooses its number and writes it there once it is ready
    Xvfb -displayfd 3 -screen 0 1280x720x24 -r -nolisten tcp -noreset >/dev/null 2>&1 &
    serveur=$!
    trap 'kill "$serveur" || true; wait "$serveur" || true; rm -rf "$maison"' EXIT
    read -r -t 30 -u 3 ecran
    env -u WAYLAND_DISPLAY -u XAUTHORITY -u QT_SCALE_FACTOR DISPLAY=":$ecran" HOME="$maison" \
        XDG_CONFIG_HOME="$maison" XDG_RUNTIME_DIR="$maison/execution" LC_ALL=C.UTF-8 \
        QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 \
        dbus-run-session -- "$0" --dans-le-bureau "$@" 3>&-
    exit
fi
shift

openbox >/dev/null 2>&1 &
gestionnaire=$!
/usr/libexec/at-spi-bus-launcher --launch-immediately >/dev/null 2>&1 &
accessibilite=$!
trap 'kill "$gestionnaire" "$accessibilite" 2>/dev/null || true' EXIT
"$@"
