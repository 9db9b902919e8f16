#!/bin/sh
# manuel_html.sh PAGES OUT PAGE...: the manual's Markdown pages (PAGES/PAGE.md, in that order) as HTML.
set -eu
pages=$1 sortie=$2
shift 2
rm -rf "$sortie"
mkdir -p "$sortie"

titre_de() { sed -n '1s/^# //p' "$pages/$1.md"; }

sommaire() {
    for page in "$@"; do
        printf '<li><a href="%s.html">%s</a></li>\n' "$page" "$(titre_de "$page")"
    done
}

liste=$(sommaire "$@")
for page in "$@"; do
    {
        cat <<FIN
<!DOCTYPE html>
<html lang="fr">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<title>$(titre_de "$page") – Tavolmex</title>
<link rel="stylesheet" href="manuel.css">
</head>
<body>
<nav><strong>Tavolmex</strong><ul>
$liste
</ul></nav>
<main>
FIN
        cmark-gfm --extension table "$pages/$page.md" |
            sed 's/href="\([a-z-]*\)\.md\(#[^"]*\)\{0,1\}"/href="\1.html"/g'
        printf '</main>\n</body>\n</html>\n'
    } >"$sortie/$page.html"
done
cp "$sortie/$1.html" "$sortie/index.html"
cp "$(dirname "$0")/manuel.css" "$sortie"
if [ -d "$pages/images" ]; then cp -r "$pages/images" "$sortie"; fi
