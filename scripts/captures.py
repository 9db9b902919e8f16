#!/usr/bin/env -S /usr/bin/python3 -B
"""The manual's pictures, made from the running program: captures.py PROGRAMS, inside bureau.sh.

Each picture is a window or a part of one with numbered marks beside controls, which are found by role
and name; the legend stands in the page beneath the picture.
"""

import contextlib
import pathlib
import re
import subprocess
import sys
import tempfile
import time

RACINE = pathlib.Path(__file__).parents[1]
sys.path.insert(0, str(RACINE / "tests/e2e"))

import pyatspi  # noqa: E402
from console_test import remplir  # noqa: E402
from pilote import Programme, attendre, descendants, faire, visible  # noqa: E402
from projet_test import creer_depuis_l_exemple, repondre  # noqa: E402

IMAGES = RACINE / "src/ui/aide/manuel/images"
LARGEUR = 530  # pixels: with the margins, what a page of the help window has beside its contents
PRINCIPALE = "Finale – Tavolmex"
TABLE = "Finale Table.ini – Dessin de la table"
ROBOT = "Finale Robot1.ini – Dessin du robot"
TRAJET = "Finale Trajet1.ini – Trajet du robot"
GAUCHE, MILIEU, DROITE = 0, 0.5, 1  # along a control's width; at its ends the mark lies beside it
A_COTE = 11
MARGE = 12  # pixels around a picture, for the marks on its edge
BOUTON, TEXTE, FENETRE = "push button", "text", "filler"
ECHAP = 0xFF1B
EDITEUR = (900, 600)


def boite(a):
    e = a.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    return e.x, e.y, e.width, e.height


def marques(points):
    """Red discs with white numbers, in the order of the points."""
    traits = ["-font", "DejaVu-Sans-Bold", "-pointsize", "13"]
    for n, (x, y) in enumerate(points, 1):
        traits += ["-fill", "#b02400", "-stroke", "white", "-strokewidth", "2",
                   "-draw", f"circle {x},{y} {x + 10},{y}",
                   "-fill", "white", "-stroke", "none", "-draw", f"text {x - 4},{y + 5} '{n}'"]
    return traits


def garder(nom, vue, *traits):
    """What ImageMagick makes of a view (a window's number, or a file) as IMAGES/nom.png."""
    with tempfile.NamedTemporaryFile(suffix=".png") as brute:
        source = brute.name
        if isinstance(vue, str):
            subprocess.run(["import", "-window", vue, source], check=True)
        else:
            source = vue
        subprocess.run(["convert", source, *traits, "-colors", "128", "-strip",
                        f"PNG8:{IMAGES / nom}.png"], check=True)


def prendre(nom, cadre, points):
    """The rectangle `cadre` of the screen, at most LARGEUR wide, with its marks."""
    x, y, largeur, hauteur = cadre
    x, y = max(x, 0), max(y, 0)
    part = min(1, LARGEUR / largeur)
    garder(nom, "root", "-crop", f"{largeur}x{hauteur}+{x}+{y}", "+repage",
           "-resize", f"{100 * part}%", "-bordercolor", "none", "-border", f"{MARGE}",
           *marques([(round((px - x) * part) + MARGE, round((py - y) * part) + MARGE)
                     for px, py in points]))


def xdotool(*mots):
    return subprocess.run(["xdotool", *map(str, mots)], capture_output=True, text=True,
                          check=False).stdout


def au_repos():
    """The pointer away, and the window as it was drawn last."""
    xdotool("mousemove", "1279", "719")
    time.sleep(0.7)


def devant(titre, taille):
    """The window above the others, of that size."""
    xdotool("search", "--onlyvisible", "--name", f"^{re.escape(titre)}$", "windowactivate", "--sync")
    if taille:
        xdotool("getactivewindow", "windowmove", "0", "20", "windowsize", *taille)


def photo(p, nom, titre, montres, reduire=None, taille=None):
    """A window with marks (role, name, where along its width). @param reduire  of its rectangle"""
    fenetre = p.fenetre(titre)
    devant(titre, taille)
    au_repos()
    points = []
    for role, motif, ou in montres:
        x, y, largeur, hauteur = boite(next(
            a for a in descendants(fenetre) if re.fullmatch(role, a.getRoleName())
            and re.search(motif, a.name) and visible(a)))
        points.append((x + ou * largeur + 2 * (ou - 0.5) * A_COTE, y + hauteur / 2))
    cadre = boite(fenetre)
    prendre(nom, reduire(*cadre) if reduire else cadre, points)


def haut(hauteur):
    """The upper part of a window."""
    return lambda x, y, largeur, _: (x, y, largeur, hauteur)


def autour(p, role, motif, dessous=0):
    """A control's rectangle, and so much beneath it."""
    x, y, largeur, hauteur = boite(p.objet(role, motif))
    return lambda *_: (x, y, largeur, hauteur + dessous)


def fermer(p, titre):
    fenetre = p.fenetre(titre)
    faire(next(m for m in descendants(fenetre) if m.name == "Fermer"), "Press")
    attendre("une fenêtre fermée", lambda: not visible(fenetre))


def fenetres_visibles():
    return set(xdotool("search", "--onlyvisible", "--class", "tavolmex").split())


def photo_du_menu(p, nom, ouvrir):
    """The menu that ouvrir() opens; Escape closes it."""
    avant = fenetres_visibles()
    ouvrir()
    nouvelles = attendre("un menu ouvert", lambda: fenetres_visibles() - avant)
    time.sleep(0.5)
    garder(nom, nouvelles.pop())
    p.touche(ECHAP)
    attendre("le menu fermé", lambda: fenetres_visibles() == avant)


def la_table(p):
    photo(p, "prise-en-main-1", PRINCIPALE, [
        (BOUTON, "^Verdict du match", MILIEU), (FENETRE, "^Aire de jeu$", MILIEU)])
    photo(p, "prise-en-main-2", "Option", [
        (BOUTON, "^Démarrer$", DROITE), (BOUTON, "^Charger$", DROITE),
        (BOUTON, "^Télécommande$", DROITE), (BOUTON, "^Créer un projet", DROITE),
        (BOUTON, "^Générer code", DROITE)])
    photo(p, "options-1", "Option", [
        ("check box", "^Affichage rapide$", DROITE), ("check box", "^Table horizontale$", DROITE),
        ("scroll bar", "^Nombre de robots$", GAUCHE), ("check box", "^Util. du damier$", DROITE),
        (BOUTON, "^Projets récents$", DROITE)])
    photo(p, "verdict-1", PRINCIPALE, [(BOUTON, "^Verdict du match", MILIEU)], haut(150))
    photo_du_menu(p, "fenetre-principale-2",
                  lambda: p.cliquer(p.objet(FENETRE, "^Aire de jeu$"), "b3c"))
    p.presser("^Charger$")
    photo(p, "options-2", "Ouvrir ...", [("combo box", "^Finale$", GAUCHE), (BOUTON, "^Ouvrir$", GAUCHE)])
    p.premier_plan("Ouvrir ...")
    p.touche(ECHAP)


def les_dessins(p):
    photo(p, "premier-match-1", TABLE, [
        ("radio button", "^Dessin de la table$", GAUCHE), (FENETRE, "^Table à dessiner$", MILIEU),
        ("list", "^Objets de la table$", MILIEU)], taille=EDITEUR)
    photo_du_menu(p, "raccourcis-1", lambda: p.cliquer(p.objet("menu item", "^Édition$")))
    p.choisir("^Zone V .noir. : 120, 30, 150, 60$")
    photo(p, "editeurs-1", TABLE, [
        ("radio button", "^Dessin de la table$", GAUCHE), (FENETRE, "^Table à dessiner$", MILIEU),
        ("spin button", "^X$", MILIEU), ("list", "^Objets de la table$", MILIEU),
        (BOUTON, "^Aligner$", DROITE)], taille=EDITEUR)
    photo(p, "fichiers-2", TABLE, [("list", "^Objets de la table$", MILIEU)],
          autour(p, "list", "^Objets de la table$"))
    p.agir("radio button", "^Dessin du robot$", "(Press|Toggle|Check)")
    p.premier_plan(ROBOT)
    photo(p, "editeurs-2", ROBOT, [
        (FENETRE, "^Robot à dessiner$", MILIEU), ("page tab", "^Mesures$", GAUCHE),
        ("list", "^Segments du robot$", MILIEU)], taille=EDITEUR)
    fermer(p, ROBOT)
    fermer(p, TABLE)


def le_trajet(p):
    p.premier_plan("Option")
    p.touche("t", "Control_L")
    p.premier_plan(TRAJET)
    photo(p, "trajets-1", TRAJET, [
        (FENETRE, "^Trajet sur la table$", MILIEU), ("table", "^Actions du trajet$", MILIEU),
        ("check box", "^Préparer aussi", DROITE)], taille=(1000, 600))
    photo_du_menu(p, "raccourcis-2", lambda: p.cliquer(p.objet("menu item", "^Édition$")))
    p.derouler("^Insérer$", "^Pause$")
    p.derouler("^Fichier$", "^Enregistrer$")
    p.derouler("^Insérer$", "^Pause$")
    p.derouler("^Trajet$", "^Comparer...$")
    photo(p, "sauvegardes-2", "Comparer le trajet", [
        ("combo box", ".", DROITE), (".*", "^Différences", MILIEU)])
    p.touche(ECHAP)
    p.derouler("^Trajet$", "^Copier vers un robot...$")
    photo(p, "trajets-2", "Copier vers un robot", [
        ("combo box", "^Robot 2$", DROITE), ("combo box", "^Tel quel$", DROITE),
        ("check box", "PICBASIC$", DROITE)])
    p.premier_plan("Copier vers un robot")
    p.touche(ECHAP)
    p.derouler("^Édition$", "^Annuler")
    p.derouler("^Fichier$", "^Fermer$")


def l_analyse(p):
    p.premier_plan("Option")
    p.basculer("^Table horizontale$")
    p.presser("^Verdict du match")
    titre = "Analyse du match – Finale"
    constats = ("tree", "^Constats par robot$", MILIEU)
    photo(p, "analyse-1", titre, [
        (BOUTON, "^Lire", MILIEU), (FENETRE, "^Frise du match$", MILIEU), constats,
        (FENETRE, "^Table à l'instant", MILIEU)])
    photo(p, "analyse-2", titre, [], autour(p, FENETRE, "^Frise du match$"))
    photo(p, "verdict-2", titre, [constats], autour(p, "tree", "^Constats par robot$", 110))
    photo(p, "limites-1", titre, [], autour(p, FENETRE, "^Table à l'instant"))
    p.premier_plan(titre)
    p.touche(ECHAP)
    p.basculer("^Table horizontale$")


def le_code(p, configuration):
    p.presser("^Générer code PICBASIC$")
    p.premier_plan("Ouvrir")
    p.choisir("^Finale.bas$")
    remplir(p, "^Nom et chemin du fichier généré$", str(configuration / "Finale.bas"))
    photo(p, "generation-1", "Ouvrir", [
        ("list", "^Fichier du programme de départ$", MILIEU),
        ("list", "^Fichier de la trajectoire", MILIEU), (TEXTE, "^Aperçu$", MILIEU),
        (BOUTON, "^Générer$", GAUCHE)])
    photo(p, "limites-2", "Ouvrir", [], autour(p, FENETRE, "^Ce que fera le code$"))
    p.presser("^Générer$")
    repondre(p, "voir le fichier généré", "Oui")
    photo(p, "generation-2", "Visualisation du Code PICBASIC...", [])
    fermer(p, "Visualisation du Code PICBASIC...")
    fermer(p, "Ouvrir")


def la_telecommande(p):
    p.presser("^Télécommande$")
    p.fenetre("Télécommande")
    for champ, valeur in (("initiale X", "60"), ("initiale Y", "40"), ("^Cap initial", "90")):
        remplir(p, champ, valeur)
    p.presser("^Début Enr.$")
    attendre("les boutons", lambda: p.actif(BOUTON, "^Avance$"))
    for n, (champ, valeur, bouton) in enumerate((("^Distance", "20", "Avance"), ("^Angle", "45", "Droite"),
                                                 ("^Distance", "30", "Avance")), 1):
        remplir(p, champ, valeur)
        p.presser(f"^{bouton}$")
        p.objet("list item", rf"^{n}\. +{bouton} ")
        attendre(f"la fin de l'action {n}", lambda: p.actif(BOUTON, "^Avance$"))
    montres = [(TEXTE, "initiale X", GAUCHE), (BOUTON, "^Fin Enr.$", GAUCHE),
               (TEXTE, "^Distance", DROITE), (BOUTON, "^Avance$", GAUCHE),
               ("list", "^Actions enregistrées$", MILIEU)]
    photo(p, "telecommande-1", "Télécommande", montres)
    photo(p, "premier-match-2", "Télécommande", montres[1:])
    photo(p, "telecommande-2", PRINCIPALE, [(FENETRE, "^Aire de jeu$", MILIEU)])
    p.presser("^Fin Enr.$")
    p.presser("^Masquer$")


def le_match(p):
    p.presser("^Démarrer$")
    time.sleep(6)
    photo(p, "fenetre-principale-1", PRINCIPALE, [
        ("label", "", MILIEU), (FENETRE, "^Aire de jeu$", MILIEU),
        (FENETRE, "^Avancement du match$", MILIEU)])
    p.presser("^Arrêter$")
    p.choisir_au_menu("^Aire de jeu$", "^Restaurer une version")
    photo(p, "sauvegardes-1", "Restaurer une version…", [
        ("combo box", ".", DROITE), ("(list|tree|table)", ".", MILIEU), (BOUTON, "^Restaurer", GAUCHE)])
    p.touche(ECHAP)
    p.presser("^Créer un projet...$")
    photo(p, "fichiers-1", TABLE, [
        (TEXTE, "^Nom du nouveau projet$", MILIEU), ("combo box", "^(Vide|Exemple|Copie)", MILIEU),
        (BOUTON, "^Créer$", DROITE)], haut(220), EDITEUR)
    fermer(p, TABLE)


def les_erreurs(programmes, dossier):
    """Two lines that the reader refuses, and what it says of them."""
    for suite, ligne in (("Table", "O , 30, 280, 20, 300, 5\r\n"), ("Trajet2", "AVANCER ,20\r\n")):
        with open(f"{dossier}/Configuration/Finale {suite}.ini", "a", encoding="utf-8",
                  newline="") as fichier:
            fichier.write(ligne)
    with seance(programmes, dossier, "Finale") as p:
        p.objet(BOUTON, "^OK$")
        au_repos()
        garder("messages-1", xdotool("getactivewindow").strip())
        while not any(f.name == "Erreurs de lecture" for f in p.racine if visible(f)):
            p.presser("^OK$")
            time.sleep(0.5)
        photo(p, "messages-2", "Erreurs de lecture", [])


def la_ligne_de_commande(programmes, dossier):
    for n, largeur, mots in ((1, 300, ("dessiner", "--trace", "--lisible", "--temps", "1500", "--sortie")),
                             (2, 420, ("exporter", "--feuille"))):
        dessin = pathlib.Path(dossier) / "image.svg"
        subprocess.run([programmes / "tavolmex-cli", mots[0], "--dossier", dossier, "--projet",
                        "Finale", *mots[1:], dessin],
                       check=True)
        subprocess.run(["rsvg-convert", "-w", str(largeur), "-o", dessin.with_suffix(".png"), dessin],
                       check=True)
        garder(f"ligne-de-commande-{n}", dessin.with_suffix(".png"))


@contextlib.contextmanager
def seance(programmes, dossier, *mots):
    with Programme([programmes / "tavolmex", *mots], TAVOLMEX_DOSSIER=dossier) as p:
        try:
            yield p
        except BaseException:
            print(p.arbre(), file=sys.stderr)
            raise


def main(programmes):
    IMAGES.mkdir(exist_ok=True)
    with tempfile.TemporaryDirectory(prefix="equipe-") as dossier:
        with seance(programmes, dossier) as p:
            p.fenetre("Option")
            creer_depuis_l_exemple(p)
            for acte in (la_table, les_dessins, le_trajet, l_analyse):
                acte(p)
            le_code(p, pathlib.Path(dossier) / "Configuration")
            le_match(p)
            la_telecommande(p)
        la_ligne_de_commande(programmes, dossier)
        les_erreurs(programmes, dossier)


if __name__ == "__main__":
    main(pathlib.Path(sys.argv[1]).resolve())
