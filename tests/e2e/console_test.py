#!/usr/bin/env -S /usr/bin/python3 -B
"""The remote-control console on a real (virtual) display: drive, record, save, find it again.

Usage: console_test.py PROGRAM, inside bureau.sh.
"""

import pathlib
import sys
import tempfile

from pilote import Programme, attendre


def remplir(p, motif, texte):
    champ = p.objet("text", motif)
    champ.queryEditableText().setTextContents(texte)
    attendre(f"« {texte} » dans {motif}", lambda: champ.queryText().getText(0, -1) == texte)


def jouer(p, action):
    """Presses the action's button; waits until it is recorded and the buttons come back."""
    p.presser(f"^{action}$")
    p.objet("list item", rf"^\d+\. +{action} ")
    attendre(f"fin de {action}", lambda: p.actif("push button", f"^{action}$"))


def enregistrer(p):
    p.fenetre("Option")
    p.presser("^Télécommande$")
    p.fenetre("Télécommande")
    remplir(p, "initiale X", "60")
    remplir(p, "initiale Y", "40")
    remplir(p, "^Cap initial", "90")
    p.presser("^Début Enr.$")
    attendre("les boutons", lambda: p.actif("push button", "^Avance$"))
    remplir(p, "^Distance", "20")
    jouer(p, "Avance")
    remplir(p, "^Angle", "45")
    jouer(p, "Droite")
    p.presser("^Fin Enr.$")
    p.presser("^Masquer$")
    p.fenetre("Option")


def scenario(programme, dossier):
    configuration = pathlib.Path(dossier) / "Configuration"
    with Programme([programme], TAVOLMEX_DOSSIER=dossier) as p:
        try:
            enregistrer(p)
            assert (configuration / "Defaut Reprise.ini").is_file(), "rien pour une reprise"
            p.presser("^Quitter$")
            p.presser("^Oui$")
            p.presser("^OK$")
        except BaseException:
            print(p.arbre(), file=sys.stderr)
            raise
        assert p.code_de_fin() == 0
    trajet = (configuration / "Defaut Trajet1.ini").read_bytes().decode()
    assert "Init,60,40,90\r\nAVANCE    ,20\r\nDROITE    ,45\r\nFIN\r\n" in trajet, trajet
    generation = (configuration / "Defaut PourGenerer10.ini").read_bytes().decode()
    assert "AVANCE:20\r\nGAUCHE:45\r\n" in generation, generation
    assert not (configuration / "Defaut Reprise.ini").exists(), "une reprise après sauvegarde"


if __name__ == "__main__":
    with tempfile.TemporaryDirectory() as temporaire:
        scenario(sys.argv[1], temporaire)
