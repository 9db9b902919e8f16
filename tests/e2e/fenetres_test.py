#!/usr/bin/env -S /usr/bin/python3 -B
"""The real program on a real (virtual) display: start, run, stop, options, quit.

Usage: fenetres_test.py PROGRAM, inside bureau.sh.
"""

import pathlib
import re
import sys
import tempfile

from pilote import Programme, attendre

DUREE = r"^ {5}Durée : (\d+) mn (\d\d) s"


def secondes(p):
    minutes, s = re.search(DUREE, p.texte(DUREE)).groups()
    return 60 * int(minutes) + int(s)


def jouer_et_arreter(p):
    assert p.actif("check box", "^Affichage rapide$")
    p.presser("^Démarrer$")
    p.objet("push button", "^Arrêter$")
    attendre("l'option au repos", lambda: not p.actif("check box", "^Affichage rapide$"))
    attendre("la course avance", lambda: secondes(p) >= 1)
    assert re.search(r"Action \d+/\d+ en cours : \S", p.texte(DUREE)), p.texte(DUREE)
    attendre("la course continue", lambda: secondes(p) >= 2)
    p.presser("^Arrêter$")
    p.objet("push button", "^Démarrer$")
    attendre("l'option de nouveau active", lambda: p.actif("check box", "^Affichage rapide$"))
    arrete = secondes(p)
    assert arrete < 30, f"{arrete} s jouées en quelques secondes"


def changer_les_options(p):
    assert p.coche("^Affichage rapide$"), "Rapide, 1 par défaut"
    p.basculer("^Traitement allégé$")
    p.basculer("^Table horizontale$")
    p.objet("scroll bar", "(?i)robot").queryValue().currentValue = 3
    p.objet("label", "^3$")


def reglages(fichier):
    """The settings file as {key: value}."""
    texte = fichier.read_bytes().decode("utf-8")
    assert texte.count("\n") == texte.count("\r\n"), "des fins de ligne sans CR"
    champs = (ligne.split(",") for ligne in texte.splitlines() if not ligne.startswith("#"))
    return {c[0].strip(): c[1].strip() for c in champs if len(c) > 1}


def scenario(programme, dossier):
    ini = pathlib.Path(dossier) / "Configuration" / "Tavolmex.ini"
    with Programme([programme], TAVOLMEX_DOSSIER=dossier) as p:
        try:
            p.fenetre("Option")
            assert ini.is_file(), "les fichiers par défaut ne sont pas écrits"
            avant = reglages(ini)
            jouer_et_arreter(p)
            changer_les_options(p)
            assert reglages(ini) == avant, "les réglages ne s'écrivent qu'en quittant"
            p.presser("^Quitter$")
        except BaseException:
            print(p.arbre(), file=sys.stderr)
            raise
        assert p.code_de_fin() == 0
    apres = reglages(ini)
    assert (avant["Allege"], avant["Horizontale"], avant["NbRobot"]) == ("0", "0", "1"), avant
    assert (apres["Allege"], apres["Horizontale"], apres["NbRobot"]) == ("1", "1", "3"), apres


if __name__ == "__main__":
    with tempfile.TemporaryDirectory() as temporaire:
        scenario(sys.argv[1], temporaire)
