#!/usr/bin/env -S /usr/bin/python3 -B
"""The table editor on a real (virtual) display: draw with the mouse, save, load the new project.

Usage: editeurs_test.py PROGRAM, inside bureau.sh.
"""

import pathlib
import sys
import tempfile

from pilote import Programme, attendre


def poser_une_zone(p):
    """A red zone at the middle of the view, then its exact left edge in the panel."""
    p.agir("(check box|toggle button)", r"^Zone O", "(Press|Toggle)")
    p.cliquer_au_milieu("^Table à dessiner$")
    p.objet("list item", r"^Zone O \(rouge\) : \d+, \d+, \d+, \d+$")
    p.objet("spin button", "^X$").queryValue().currentValue = 30


def enregistrer_et_charger(p, nom):
    p.derouler("^Fichier$", "^Enregistrer sous")
    p.objet("text", "^Nom du projet$").queryEditableText().setTextContents(nom)
    p.presser("^Enregistrer$")
    p.presser("^Oui$")
    p.fenetre(f"{nom}.ini – Dessin de la table")


def scenario(programme, dossier):
    configuration = pathlib.Path(dossier) / "Configuration"
    with Programme([programme], TAVOLMEX_DOSSIER=dossier) as p:
        try:
            p.fenetre("Option")
            p.presser("^Créer un projet...$")
            p.premier_plan("Defaut Table.ini – Dessin de la table")
            poser_une_zone(p)
            enregistrer_et_charger(p, "Essai Table")
            attendre("le projet chargé", (configuration / "Essai Trajet9.ini").is_file)
            p.presser("^Quitter$")
        except BaseException:
            print(p.arbre(), file=sys.stderr)
            raise
        assert p.code_de_fin() == 0
    table = (configuration / "Essai Table.ini").read_bytes().decode("utf-8")
    assert "O , 30, " in table, table
    assert "Essai" in (configuration / "Tavolmex.ini").read_text(encoding="utf-8")


if __name__ == "__main__":
    with tempfile.TemporaryDirectory() as temporaire:
        scenario(sys.argv[1], temporaire)
