#!/usr/bin/env -S /usr/bin/python3 -B
"""A team's first evening on a real (virtual) display: record, quit, change, mirror, generate, print.

Usage: projet_test.py PROGRAM, inside bureau.sh.
"""

import pathlib
import subprocess
import sys
import tempfile

import console_test
from pilote import BAS, TABULATION, Programme, attendre

DEPART = "'Programme de l'équipe\r\nMain:\r\n\tReturn\r\n"


def quitter(p, *reponses):
    assert not p.sans_nom(), p.sans_nom()
    p.presser("^Quitter$")
    for reponse in reponses:
        p.presser(f"^{reponse}$")
    assert p.code_de_fin() == 0


def repondre(p, question, reponse):
    p.objet("label", question)
    p.presser(f"^{reponse}$")


def modifier(p, configuration):
    """A pause behind the recorded path; then robot 2 gets the path of the other side."""
    p.premier_plan("Option")
    p.touche("t", "Control_L")
    p.premier_plan("Defaut Trajet1.ini – Trajet du robot")
    p.derouler("^Insérer$", "^Pause$")
    p.derouler("^Fichier$", "^Enregistrer$")
    attendre("le trajet enregistré",
             lambda: "PAUSE" in (configuration / "Defaut Trajet1.ini").read_text())
    p.derouler("^Trajet$", "^Copier vers un robot...$")
    p.premier_plan("Copier vers un robot")
    p.vise("combo box", "^Robot 2$")
    p.touche(TABULATION)
    p.vise("combo box", "^Tel quel$")
    p.touche(BAS)
    p.objet("combo box", "^Autre côté : miroir gauche-droite$")
    p.presser("^Copier$")
    repondre(p, "remplacer", "Oui")
    attendre("le trajet du robot 2",
             lambda: "GAUCHE    ,45" in (configuration / "Defaut Trajet2.ini").read_text())


def generer(p, configuration):
    """The recorded path as a function of the team's own program."""
    cible = configuration / "depart.bas"
    p.presser("^Générer code PICBASIC$")
    p.premier_plan("Ouvrir")
    p.choisir("^depart.bas$")
    p.choisir("^Defaut PourGenerer10.ini")
    console_test.remplir(p, "^Nom et chemin du fichier généré$", str(cible))
    console_test.remplir(p, "^Nom de la fonction", "COTE_A")
    p.presser("^Générer$")
    attendre("le code", lambda: "COTE_A" in cible.read_bytes().decode())


def tirer_la_feuille(programme, dossier):
    feuille = pathlib.Path(dossier) / "feuille.pdf"
    subprocess.run([programme, "exporter", "--dossier", dossier, "--feuille", feuille], check=True)
    assert feuille.read_bytes().rstrip().endswith(b"%%EOF"), "une feuille incomplète"


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
        console_test.enregistrer(p)
        quitter(p, "Oui", "OK")

    def deuxieme_soir(p):
        modifier(p, configuration)
        generer(p, configuration)
        quitter(p)

    seance(programme, dossier, premier_soir)
    (configuration / "depart.bas").write_text(DEPART, newline="")
    seance(programme, dossier, deuxieme_soir)
    tirer_la_feuille(programme, dossier)
    # What is written is what was done, nothing else.
    attendu = "Init,60,40,90\r\nAVANCE    ,20\r\nDROITE    ,45\r\n"
    trajet = (configuration / "Defaut Trajet1.ini").read_bytes().decode()
    assert attendu in trajet and trajet.count("PAUSE") == 1, trajet
    autre = (configuration / "Defaut Trajet2.ini").read_bytes().decode()
    assert "AVANCE    ,20\r\nGAUCHE    ,45\r\n" in autre, autre
    code = (configuration / "depart.bas").read_bytes().decode()
    assert code.startswith(DEPART.split("\r\n")[0]), code
    assert not list(configuration.glob("*.reprise")), "un dessin attend"


if __name__ == "__main__":
    with tempfile.TemporaryDirectory() as temporaire:
        scenario(sys.argv[1], temporaire)
