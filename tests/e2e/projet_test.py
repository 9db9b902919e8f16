#!/usr/bin/env -S /usr/bin/python3 -B
"""A team's first evenings on a real (virtual) display: an example project, record, quit; then change,
mirror, code for both sides, sheet. What it leaves is compared byte for byte.

Usage: projet_test.py PROGRAM, inside bureau.sh.
"""

import pathlib
import sys
import tempfile

import console_test
from pilote import BAS, TABULATION, Programme, attendre, comparer

RACINE = pathlib.Path(__file__).parents[2]


def quitter(p, *reponses):
    assert not p.sans_nom(), p.sans_nom()
    p.presser("^Quitter$")
    for reponse in reponses:
        p.presser(f"^{reponse}$")
    assert p.code_de_fin() == 0


def repondre(p, question, reponse):
    p.objet("label", question)
    p.presser(f"^{reponse}$")


def creer_depuis_l_exemple(p):
    """The first page: a name, "Exemple : Port", both editors and the loaded project bear the name."""
    p.presser("^Créer un projet...$")
    p.premier_plan("Defaut Table.ini – Dessin de la table")
    console_test.remplir(p, "^Nom du nouveau projet$", "Finale")
    p.agir("text", "^Nom du nouveau projet$", "SetFocus")
    p.vise("text", "^Nom du nouveau projet$")
    p.touche(TABULATION)
    p.vise("combo box", "^Vide$")
    for suivant in ("Exemple : Phares", "Exemple : Port"):
        p.touche(BAS)
        p.objet("combo box", f"^{suivant}$")
    p.presser("^Créer$")
    repondre(p, "charger le projet Finale", "Oui")
    p.fenetre("Finale Table.ini – Dessin de la table")
    p.objet("label", "^2$")  # the robots that play


def modifier(p, configuration):
    """A pause behind the recorded path, then robot 2 gets the path of the other side, and the team's
    program gets both."""
    p.premier_plan("Option")
    p.touche("t", "Control_L")
    p.premier_plan("Finale Trajet1.ini – Trajet du robot")
    p.derouler("^Insérer$", "^Pause$")
    p.derouler("^Fichier$", "^Enregistrer$")
    attendre("le trajet enregistré",
             lambda: "PAUSE" in (configuration / "Finale Trajet1.ini").read_text())
    p.derouler("^Trajet$", "^Copier vers un robot...$")
    p.premier_plan("Copier vers un robot")
    p.vise("combo box", "^Robot 2$")
    p.touche(TABULATION)
    p.vise("combo box", "^Tel quel$")
    p.touche(BAS)
    p.objet("combo box", "^Autre côté : miroir gauche-droite$")
    p.basculer("dans le programme PICBASIC$")
    console_test.remplir(p, "^Programme", str(configuration / "Finale.bas"))
    p.presser("^Copier$")
    repondre(p, "remplacer", "Oui")
    attendre("les deux fonctions",
             lambda: b"TRAJECTOIRE_AUTRE:" in (configuration / "Finale.bas").read_bytes())


def tirer_la_feuille(p, feuille):
    p.premier_plan("Finale Trajet1.ini – Trajet du robot")
    p.touche("w", "Control_L")  # the table is beneath
    p.premier_plan("Option")
    p.choisir_au_menu("^Aire de jeu$", "^Feuille de match…$")
    console_test.remplir(p, "^Nom de fichier", str(feuille))
    p.presser("^Enregistrer$")
    attendre("une feuille entière", lambda: feuille.is_file()
             and feuille.read_bytes().rstrip().endswith(b"%%EOF"))


def seance(programme, dossier, faire):
    with Programme([programme], TAVOLMEX_DOSSIER=dossier) as p:
        try:
            faire(p)
        except BaseException:
            print(p.arbre(), file=sys.stderr)
            raise


def scenario(programme, dossier):
    configuration = pathlib.Path(dossier) / "Configuration"

    def premier_soir(p):
        creer_depuis_l_exemple(p)
        console_test.enregistrer(p)
        quitter(p, "Oui", "OK")

    def deuxieme_soir(p):
        modifier(p, configuration)
        tirer_la_feuille(p, pathlib.Path(dossier) / "Finale feuille.pdf")
        quitter(p)

    seance(programme, dossier, premier_soir)
    seance(programme, dossier, deuxieme_soir)
    comparer(configuration, RACINE / "tests/donnees/soir")
    for suite in (" Table.ini", " Robot1.ini", " Robot2.ini"):
        exemple = (RACINE / f"exemples/Port{suite}").read_bytes()
        assert (configuration / f"Finale{suite}").read_bytes() == exemple, suite
    assert not list(configuration.glob("*.reprise")), "un dessin attend"


if __name__ == "__main__":
    with tempfile.TemporaryDirectory() as temporaire:
        scenario(sys.argv[1], temporaire)
