#!/usr/bin/env bash
# arbre_test.sh BUILD: what "cmake --install" puts below a prefix is complete and in order.
set -euo pipefail
construction=$1
racine=$(mktemp -d)
trap 'rm -rf "$racine"' EXIT

faute() {
    echo "$*" >&2
    exit 1
}

cmake --install "$construction" --strip --prefix "$racine/usr" --component systeme >/dev/null
part=$racine/usr/share
nom=org.tavolmex.tavolmex
desktop-file-validate "$part/applications/$nom.desktop"
appstreamcli validate --no-net "$part/metainfo/$nom.metainfo.xml" >/dev/null ||
    faute "AppStream refuse les métadonnées."
[[ $(grep -o '<release version="[^"]*' "$part/metainfo/$nom.metainfo.xml") == *"\"${VERSION:?}" ]] ||
    faute "Les métadonnées ne sont pas de la version $VERSION."
xmllint --noout "$part/mime/packages/$nom.xml"
for taille in 16 24 32 48 64 128 256; do
    [[ $(file -b "$part/icons/hicolor/${taille}x$taille/apps/$nom.png") == *" $taille x $taille,"* ]] ||
        faute "Icône de $taille pixels."
done

# Each manual page knows every option and every command, and is well formed.
for programme in tavolmex tavolmex-cli; do
    page=$part/man/man1/$programme.1.gz
    fautes=$(man --warnings -E UTF-8 -l "$page" 2>&1 >"$racine/page")
    [[ -z $fautes ]] || faute "$page : $fautes"
    "$racine/usr/bin/$programme" --help | sed -n 's/^  \(-*[a-z-]*\).*/\1/p' | while read -r mot; do
        grep -qe "$mot" "$racine/page" || faute "$page : il manque $mot."
    done
done

# Each link of the manual leads somewhere.
manuel=$part/doc/tavolmex/html
[[ -s $manuel/index.html ]] || faute "Pas de manuel."
grep -oh '\(href\|src\)="[^":]*"' "$manuel"/*.html | sed 's/.*="\(.*\)"/\1/' | sort -u |
    while read -r lien; do
        [[ -e $manuel/$lien ]] || faute "Le manuel mène à $lien, qui n'existe pas."
    done

# Nothing of this machine is in what is installed.
if grep -rlF "$(dirname "$construction")" "$part" "$racine/usr/bin"; then
    faute "Ces fichiers nomment le dossier de compilation."
fi

# One folder that runs where it is put; its projects stay in it.
cmake --install "$construction" --prefix "$racine/ailleurs" --component dossier >/dev/null
env -u TAVOLMEX_DOSSIER "$racine/ailleurs/tavolmex-cli" installer
[[ -f "$racine/ailleurs/Configuration/Tavolmex.ini" && -f $racine/ailleurs/LISEZMOI.txt ]] ||
    faute "Le dossier mobile ne garde pas ses fichiers."

# Where the program may not write: the home directory.
chmod a-w "$racine/usr/bin"
if [[ ! -w $racine/usr/bin ]]; then
    env -u TAVOLMEX_DOSSIER HOME="$racine/maison" "$racine/usr/bin/tavolmex-cli" installer
    [[ -d $racine/maison/Tavolmex/Configuration ]] || faute "Pas de ~/Tavolmex."
fi
chmod u+w "$racine/usr/bin"
