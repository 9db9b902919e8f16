# shellcheck shell=bash
# What ./run and ./test share: the list of packages, their installation, the steps shown on screen.
# Sourced, not run; the caller has set -euo pipefail.
# shellcheck disable=SC2034  # the lists serve the callers

racine=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# Accents in the texts and in file names, on a machine whose language was never set.
[[ $(locale charmap 2>/dev/null) == UTF-8 ]] || export LC_ALL=C.UTF-8

# Building and starting the program. The fonts and x11-utils (xdpyinfo) serve at run time.
PAQUETS_PROGRAMME=(
    ca-certificates cmake fonts-dejavu-core g++ libcli11-dev libqt6svg6 ninja-build
    nlohmann-json3-dev qt6-base-dev qt6-translations-l10n x11-utils
    zlib1g-dev
)
PAQUETS_WAYLAND=(qt6-wayland) # for a session without X at all
# What an installed program has besides itself, and the checks of a package.
PAQUETS_PAQUET=(
    appstream cmark-gfm desktop-file-utils dpkg-dev file librsvg2-bin libxml2-utils lintian man-db
)
# Tests: second compiler, sanitizers, lint, and a small desktop for the end-to-end test.
PAQUETS_TESTS=(
    at-spi2-core clang clang-format clang-tidy dbus gir1.2-atspi-2.0 libbenchmark-dev libclang-rt-14-dev
    libgtest-dev openbox poppler-utils procps python3 python3-pyatspi shellcheck xvfb
)

dire() { printf '%s\n' "$*"; }

echec() {
    printf '%s\n' "$*" >&2
    exit 1
}

# Debian 12, or a system that presents itself as built on it.
est_debian_12() {
    [[ -r /etc/os-release ]] && command -v apt-get >/dev/null || return 1
    (
        # shellcheck source=/dev/null
        . /etc/os-release
        [[ " ${ID:-} ${ID_LIKE:-} " == *" debian "* && ${VERSION_CODENAME:-} == bookworm ]]
    )
}

# Prints those of the packages "$@" that are not installed, one a line.
paquets_manquants() {
    local paquet
    for paquet in "$@"; do
        [[ $(dpkg-query -W -f '${Status}' "$paquet" 2>/dev/null) == "install ok installed" ]] ||
            printf '%s\n' "$paquet"
    done
}

# Says what the program needs, for a system whose package names are not known here.
lister_les_besoins() {
    cat >&2 <<FIN
Ce système n'est pas une Debian 12 : rien n'est installé automatiquement. Il faut :
  - un compilateur C++20 (g++ 12 ou plus récent), CMake 3.25 ou plus récent, Ninja ;
  - Qt 6.4 ou plus récent avec ses fichiers de développement (Widgets) et son module SVG, CLI11 2.1,
    nlohmann-json 3.11 et zlib ;
  - pour les tests : clang++, clang-format et clang-tidy 14, GoogleTest, ShellCheck, Xvfb, xauth,
    openbox, poppler-utils, dbus-run-session, at-spi2-core et le module Python pyatspi ;
  - pour l'installation : cmark-gfm, rsvg-convert, desktop-file-validate, appstreamcli, xmllint,
    man, file et dpkg-shlibdeps.
Sous Debian 12 ce sont les paquets :
$(printf '%s ' "$@" | fold -s -w 92 | sed 's/^/  /')
Une fois tout cela en place, relancez avec TAVOLMEX_SANS_INSTALLER=1.
FIN
    exit 1
}

# Installs whatever is missing of the packages "$@"; touches nothing when nothing is missing.
installer_paquets() {
    [[ -z ${TAVOLMEX_SANS_INSTALLER:-} ]] || return 0
    est_debian_12 || lister_les_besoins "$@"
    local manquants=() prefixe=()
    mapfile -t manquants < <(paquets_manquants "$@")
    ((${#manquants[@]})) || return 0
    if ((EUID != 0)); then
        command -v sudo >/dev/null || echec "Il manque des paquets et ni le compte root ni sudo \
ne sont disponibles. Faites exécuter par l'administrateur :
  apt-get update && apt-get install --no-install-recommends ${manquants[*]}"
        prefixe=(sudo)
    fi
    dire "Paquets à installer : ${manquants[*]}"
    local apt=("${prefixe[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q
        -o DPkg::Lock::Timeout=300 -o Dpkg::Use-Pty=0)
    "${apt[@]}" update
    "${apt[@]}" install -y --no-install-recommends "${manquants[@]}"
}

# preparer_dossier DOSSIER: drops a build folder made for a clone that stood elsewhere.
preparer_dossier() {
    local cache="$1/CMakeCache.txt"
    [[ -f $cache ]] || return 0
    grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$racine" "$cache" || rm -rf "$1"
}

# etape TITRE COMMANDE...: announces a step, runs it, says how long it took.
etape() {
    local titre=$1 debut=$SECONDS etat
    shift
    dire ""
    dire "── $titre"
    set +e # not "|| etat=$?", under which the first failing command would not stop the step
    (
        set -e
        "$@"
    )
    etat=$?
    set -e
    ((etat == 0)) || echec "── ÉCHEC : $titre (après $((SECONDS - debut)) s, code $etat)"
    dire "── $titre : $((SECONDS - debut)) s"
}
