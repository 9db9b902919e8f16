#!/usr/bin/env bash
# Builds the Debian package and the folder that can be moved, each in a bare Debian 12 of its own, and
# tries them in another one: installed, used by somebody without rights, removed without a trace.
# They are left in build/paquets. Called by "./test paquet", as root; takes some twenty minutes.
set -euo pipefail
# shellcheck source=scripts/preparer.sh
. "$(dirname "${BASH_SOURCE[0]}")/preparer.sh"
cd "$racine"
((EUID == 0)) || echec "Un système nu se prépare avec les droits de root."

paquets=$racine/build/paquets
place=$(mktemp -d)
construction=$place/construction essai=$place/essai

nettoyer() {
    umount -q "$construction/proc" "$essai/proc" || true
    rm -rf --one-file-system "$place"
}
trap nettoyer EXIT

# dans SYSTEM COMMAND...: runs it there, with a plain environment.
dans() {
    local systeme=$1
    shift
    env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 HOME=/root DEBIAN_FRONTEND=noninteractive \
        CCACHE_DISABLE=1 chroot "$systeme" "$@"
}

# The sources of this machine's packages, wherever they are.
preparer_systeme() {
    mkdir -p "$1"
    local miroir
    # shellcheck disable=SC2016  # it is apt's variable
    miroir=$(apt-get indextargets --format '$(SITE)' | sort -u | sed 1q)
    debootstrap --variant=minbase bookworm "$1" "$miroir" >"$place/journal" 2>&1 || echec "$(tail -5 "$place/journal")"
    rm -f "$1"/etc/apt/sources.list
    cp -rL /etc/apt/sources.list* /etc/apt/apt.conf.d /etc/apt/trusted.gpg.d "$1/etc/apt/"
    cp -L /etc/resolv.conf /etc/hosts "$1/etc/"
    mkdir -p "$1/usr/share/keyrings"
    cp -n /usr/share/keyrings/*.gpg "$1/usr/share/keyrings/"
    dans "$1" apt-get -q update
}

installer_dans() {
    local systeme=$1
    shift
    dans "$systeme" apt-get -qq -o Dpkg::Use-Pty=0 install -y --no-install-recommends "$@" >/dev/null
}

construire() {
    installer_dans "$construction" "${PAQUETS_PROGRAMME[@]}" "${PAQUETS_PAQUET[@]}"
    mkdir "$construction/tavolmex"
    git ls-files -z | xargs -0 cp --parents -t "$construction/tavolmex"
    dans "$construction" sh -ec '
        cd /tavolmex
        cmake --preset release -DAVEC_TESTS=OFF -DAVEC_BENCH=OFF >/dev/null
        cmake --build --preset release
        cd build/release
        cpack
        lintian --fail-on error --allow-root --tag-display-limit 0 tavolmex_*.deb'
    rm -rf "$paquets"
    mkdir -p "$paquets"
    cp "$construction"/tavolmex/build/release/{tavolmex_*.deb,Tavolmex-*.tar.gz} "$paquets"
}

# utiliser COMMAND_PREFIX FOLDER: both programs, by somebody who may write only at home.
utiliser() {
    dans "$essai" su - essai -c "
        set -e
        export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
        $1tavolmex --version
        $1tavolmex-cli simuler --trace match.csv
        [ \$(wc -l <match.csv) -gt 9000 ]
        $1tavolmex exporter --feuille feuille.pdf
        [ \"\$(head -c 5 feuille.pdf)\" = %PDF- ]
        timeout 8 $1tavolmex || [ \$? = 124 ]
        [ -f '$2/Configuration/Tavolmex.ini' ]"
}

essayer_le_deb() {
    cp "$paquets"/*.deb "$essai/tavolmex.deb"
    installer_dans "$essai" /tavolmex.deb
    dans "$essai" useradd -m essai
    utiliser "" /home/essai/Tavolmex
    local installes
    installes=$(dans "$essai" dpkg -L tavolmex | grep -i tavolmex)
    dans "$essai" apt-get -qq -o Dpkg::Use-Pty=0 purge -y tavolmex >/dev/null
    while read -r fichier; do
        [[ ! -e $essai$fichier ]] || echec "Il reste $fichier."
    done <<<"$installes"
    [[ -d $essai/home/essai/Tavolmex/Configuration ]] || echec "Les fichiers de l'utilisateur sont partis."
}

# The libraries that the package brought are still there.
essayer_le_dossier() {
    rm -rf "$essai/home/essai/Tavolmex"
    tar -xzf "$paquets"/*.tar.gz -C "$essai/home/essai"
    mv "$essai"/home/essai/Tavolmex-* "$essai/home/essai/Tavolmex"
    dans "$essai" chown -R essai: /home/essai
    utiliser ./Tavolmex/ /home/essai/Tavolmex
}

etape "Outils" installer_paquets debootstrap
etape "Système nu" preparer_systeme "$essai"
cp -a "$essai" "$construction"
for systeme in "$essai" "$construction"; do mount -t proc proc "$systeme/proc"; done
etape "Compilation et paquets" construire
etape "Paquet Debian" essayer_le_deb
etape "Dossier mobile" essayer_le_dossier
dire "Les paquets sont dans build/paquets."
