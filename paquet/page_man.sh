#!/bin/sh
# page_man.sh PROGRAM VERSION DATE: a manual page made of what PROGRAM and its commands answer to --help.
set -eu
programme=$1 version=$2 date=$3
nom=$(basename "$programme")
aide=$("$programme" --help)

# mettre_en_page TITLE: options and commands as tagged paragraphs, headings as TITLE, the rest as text.
mettre_en_page() {
    awk -v titre="$1" '
        function propre(t) {
            gsub(/\\/, "\\e", t)
            gsub(/-/, "\\-", t)
            return t ~ /^[.\x27]/ ? "\\&" t : t
        }
        NR == 1 { next } # what it is: said by the heading
        /^$/ { print ".PP"; next }
        /^Utilisation : / { sub(/^Utilisation : /, ""); print ".B " propre($0); print ".PP"; next }
        /^[^ ].* ?:$/ { sub(/ ?:$/, ""); print titre " " toupper(propre($0)); next }
        /^  [^ ]/ {
            sub(/^  /, "")
            coupe = match($0, /  +/)
            mots = coupe ? substr($0, 1, RSTART - 1) : $0
            print ".TP"
            print ".B " propre(mots)
            if (coupe) print propre(substr($0, RSTART + RLENGTH))
            next
        }
        { sub(/^ +/, ""); print propre($0) }'
}

cat <<FIN
.TH "$(printf '%s' "$nom" | tr '[:lower:]' '[:upper:]')" 1 "$date" "Tavolmex $version" "Tavolmex"
.SH NOM
$nom \\- $(printf '%s' "$aide" | sed -n '1s/^Tavolmex : //p')
.SH SYNOPSIS
FIN
printf '%s\n' "$aide" | mettre_en_page .SH
commandes=$(printf '%s\n' "$aide" | sed -n '/^Commandes/,$s/^  \([a-z]*\)  .*/\1/p')
[ "$nom" != tavolmex ] || commandes=exporter
for commande in $commandes; do
    aide=$("$programme" "$commande" --help)
    printf '.SH %s %s\n%s\n.PP\n' "$nom" "$commande" "$(printf '%s' "$aide" | sed 1q)"
    printf '%s\n' "$aide" | mettre_en_page .SS
done
cat <<'FIN'
.SH ENVIRONNEMENT
.TP
.B TAVOLMEX_DOSSIER
Dossier de l'application, quand \-\-dossier ne le dit pas.
.SH FICHIERS
Le dossier de l'application contient
.IR Configuration ,
avec les réglages, les projets et leurs copies. C'est celui de \-\-dossier, sinon de
.BR TAVOLMEX_DOSSIER ,
sinon celui du programme s'il est permis d'y écrire, sinon
.IR ~/Tavolmex .
.SH VOIR AUSSI
.BR tavolmex (1),
.BR tavolmex\-cli (1);
le manuel en français : touche F1 dans chaque fenêtre, ou les pages HTML de la documentation installée.
FIN
