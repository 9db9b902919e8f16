#!/usr/bin/env -S /usr/bin/python3 -B
"""The worked match of the manual (premier-match.md), step by step: what the page announces is there.

Usage: premier_match_test.py PROGRAM, inside bureau.sh.
"""

import pathlib
import re
import sys
import tempfile

from console_test import remplir
from pilote import DELAI, attendre, comparer, descendants, enfants, faire, visible
from projet_test import repondre, seance

RACINE = pathlib.Path(__file__).parents[2]
PAGE = (RACINE / "src/ui/aide/manuel/premier-match.md").read_text(encoding="utf-8")
TABLE, ROBOT, TRAJET = (f"Finale {suite}" for suite in (
    "Table.ini – Dessin de la table", "Robot1.ini – Dessin du robot",
    "Trajet1.ini – Trajet du robot"))
PRINCIPALE = "Finale – Tavolmex"
VISUALISATION = "Visualisation du Code PICBASIC..."
PLUS, ENTREE = 0xFFAB, 0xFF0D


def mettre(p, champ, valeur):
    p.objet("spin button", f"^{champ}$").queryValue().currentValue = valeur


def taper(p, fenetre, lettre):
    """Ctrl and a letter in that window."""
    p.premier_plan(fenetre)
    p.touche(lettre, "Control_L")


def enregistrer(p, fenetre):
    taper(p, fenetre.replace(".ini", ".ini*"), "s")
    p.premier_plan(fenetre)


def fermer(p, fenetre):
    taper(p, fenetre, "w")
    p.disparue(fenetre)


def viser_les_options(p):
    """Or the table: once an editor is closed, the window manager chooses, and both know the same keys."""
    p.premier_plan("Option", PRINCIPALE, f"{PRINCIPALE} (vitesse ×10)")


def creer(p):
    p.presser("^Créer un projet...$")
    p.fenetre("Defaut Table.ini – Dessin de la table")
    remplir(p, "^Nom du nouveau projet$", "Finale")
    p.presser("^Créer$")
    repondre(p, "charger le projet Finale", "Oui")
    p.fenetre(PRINCIPALE)


def dessiner(p):
    p.cliquer_au_milieu("^Objets de la table$")
    p.premier_plan(TABLE)
    for outil, mesures in (("Zone O", {"X": 80, "Y": 280, "Largeur": 40, "Hauteur": 40}),
                           ("Pièce PB", {"X": 40, "Y": 120, "Rayon": 5})):
        p.agir("(check box|toggle button)", f"^{outil}", "(Press|Toggle)")
        p.cliquer_au_milieu("^Table à dessiner$")
        p.objet("list item", f"^{outil}")
        for champ, valeur in mesures.items():
            mettre(p, champ, valeur)
    enregistrer(p, TABLE)
    p.agir("radio button", "^Dessin du robot$", "(Press|Toggle|Check)")
    p.premier_plan(ROBOT)
    p.agir("page tab", "^Mesures$", "Press")
    mettre(p, "Vitesse", 50)
    enregistrer(p, ROBOT)
    fermer(p, ROBOT)
    p.derouler("^Fichier$", "^Fermer$")  # the keys now go to whichever window was used last
    p.disparue(TABLE)


def conduire(p):
    viser_les_options(p)
    for vitesse in ("×2", "×5", "×10"):  # the robot drives the same, only sooner
        p.touche(PLUS)
        p.fenetre(f"{PRINCIPALE} (vitesse {vitesse})")
    p.presser("^Télécommande$")
    p.fenetre("Télécommande")
    for champ, valeur in (("initiale X", "40"), ("initiale Y", "22"), ("^Cap initial", "90")):
        remplir(p, champ, valeur)
    p.presser("^Début Enr.$")
    p.objet("push button", "^Fin Enr.$")
    for n, (champ, valeur, bouton) in enumerate(re.findall(
            r"^\| \d \| \*\*(\w+).*?\*\* \| (\d+) \| \*\*(\w+)\*\* \|$", PAGE, re.M), 1):
        remplir(p, f"^{champ}", valeur)
        p.presser(f"^{bouton}$")
        p.objet("list item", rf"^{n}\. +{bouton} ")
        attendre(f"fin de l'action {n}", lambda: p.actif("push button", "^Avance$"))
    p.presser("^Fin Enr.$")
    p.objet("push button", "^Début Enr.$")
    p.presser("^Masquer$")
    p.disparue("Télécommande")
    p.presser("^Charger$")
    repondre(p, "Vous avez modifié le trajet du robot 1", "Oui")
    p.presser("^OK$")
    p.premier_plan("Ouvrir ...")
    p.presser("^Ouvrir$")
    p.disparue("Ouvrir ...")


def lire_le_verdict(p, rang):
    p.objet("push button", re.escape(re.findall(r"^> (Fin à .*)$", PAGE, re.M)[rang]))


def ouvrir_le_trajet(p):
    """By a key, once more if it came while the window manager passed the keys from a closed window on."""
    viser_les_options(p)
    for delai in (5, DELAI):
        p.touche("t", "Control_L")
        try:
            attendre(TRAJET, lambda: any(
                f.name == TRAJET and visible(f) for f in enfants(p.racine)), delai)
            break
        except AssertionError:
            if delai == DELAI:
                raise
    p.premier_plan(TRAJET)


def corriger(p, ancienne, nouvelle):
    ouvrir_le_trajet(p)
    p.choisir(f"^{ancienne} cm$")
    for chiffre in nouvelle:
        p.touche(chiffre)
    p.touche(ENTREE)
    p.objet("table cell", f"^{nouvelle} cm$")
    if not p.coche("^Préparer aussi l'entrée du générateur en"):
        p.basculer("^Préparer aussi l'entrée du générateur en")
    enregistrer(p, TRAJET)
    fermer(p, TRAJET)


def quitter(p, titre):
    faire(next(b for b in descendants(p.fenetre(titre)) if b.name == "Fermer"), "Press")
    p.disparue(titre)


def generer(p, voir):
    p.presser("^Générer code PICBASIC$")
    p.premier_plan("Ouvrir")
    if voir == "Oui":
        p.choisir("^Finale.bas$")
        p.basculer("^Répertoire du projet$")
    attendre("le code comparé", lambda: "Le code du robot 1 finit à 0,0\u00a0cm et 0,0° de l'écran" in
             p.objet(".*", "^Écran et code comparés$").queryText().getText(0, -1))
    p.presser("^Générer$")
    repondre(p, "voir le fichier généré", voir)
    if voir == "Oui":
        p.premier_plan(VISUALISATION)
        p.choisir("^TRAJECTOIRE")
        quitter(p, VISUALISATION)
    p.disparue("Tavolmex")  # the question
    quitter(p, "Ouvrir")


def scenario(programme, dossier):
    configuration = pathlib.Path(dossier) / "Configuration"

    def match(p):
        creer(p)
        dessiner(p)
        conduire(p)
        lire_le_verdict(p, 0)
        corriger(p, "150", "110")
        lire_le_verdict(p, 1)
        code = re.search(r"^```\n(' Robot.*?)^```", PAGE, re.M | re.S).group(1)
        (configuration / "Finale.bas").write_text(code, newline="\r\n")
        generer(p, "Oui")
        corriger(p, "110", "115")
        generer(p, "Non")
        p.presser("^Quitter$")
        assert p.code_de_fin() == 0

    seance(programme, dossier, match)
    comparer(configuration, RACINE / "tests/donnees/premier_match")


if __name__ == "__main__":
    with tempfile.TemporaryDirectory() as temporaire:
        scenario(sys.argv[1], temporaire)
