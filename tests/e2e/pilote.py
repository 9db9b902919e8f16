"""Drives a program as its user would, through the accessibility bus: by roles and visible names."""

import difflib
import os
import re
import subprocess
import time

import gi

gi.require_version("Atspi", "2.0")
import pyatspi  # noqa: E402  (only after the version above)

CONTROLES = {"push button", "check box", "radio button", "toggle button", "text", "combo box",
             "spin button", "slider", "list", "table", "tree table", "page tab", "menu item"}
TABULATION, BAS = 0xFF09, 0xFF54  # symbols of keys
CODES = {"Control_L": 37}  # of the virtual server's keyboard
DELAI = 20.0  # seconds before a wait is given up
pyatspi.Atspi.set_timeout(int(1000 * DELAI), int(1000 * DELAI))  # instead of 0.8 s for an answer


def attendre(quoi, condition, delai=DELAI):
    """The first true value of condition(), polled; an AssertionError naming `quoi` after `delai` s."""
    limite = time.monotonic() + delai
    while True:
        try:
            valeur = condition()
        except (LookupError, RuntimeError, gi.repository.GLib.Error):
            valeur = None  # the tree changed while it was read
        if valeur:
            return valeur
        assert time.monotonic() < limite, f"rien après {delai:g} s : {quoi}"
        time.sleep(0.05)


def comparer(dossier, attendus):
    """Every expected file is in the folder, byte for byte; an AssertionError shows the lines that differ."""
    for attendu in sorted(attendus.iterdir()):
        voulu, ecrit = attendu.read_bytes(), (dossier / attendu.name).read_bytes()
        lignes = difflib.unified_diff(*(octets.decode(errors="replace").splitlines(keepends=True)
                                        for octets in (voulu, ecrit)), "attendu", "écrit", n=1)
        assert voulu == ecrit, f"{attendu.name} :\n" + "".join(lignes)


def dans_l_etat(a, etat):
    return a.getState().contains(etat)


def visible(a):
    return dans_l_etat(a, pyatspi.STATE_SHOWING)


def enfants(a):
    return (enfant for enfant in a if enfant)  # one that went meanwhile is None


def descendants(a):
    for enfant in enfants(a):
        yield enfant
        yield from descendants(enfant)


def faire(objet, action):
    actions = objet.queryAction()
    noms = [actions.getName(i) for i in range(actions.nActions)]
    rangs = [i for i, nom in enumerate(noms) if re.fullmatch(action, nom)]
    assert rangs, f"« {objet.name} » ne sait faire que {noms}"
    actions.doAction(rangs[0])


class Programme:
    """A started program, its windows reached through the accessibility bus."""

    def __init__(self, commande, **environnement):
        self.processus = subprocess.Popen(commande, env={**os.environ, **environnement})
        self.racine = attendre("le programme sur le bus d'accessibilité", self._application)

    def _application(self):
        assert self.processus.poll() is None, f"terminé avec {self.processus.returncode}"
        bureau = pyatspi.Registry.getDesktop(0)
        return next((a for a in bureau if a and a.get_process_id() == self.processus.pid), None)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        if self.processus.poll() is None:
            self.processus.kill()
            self.processus.wait()

    def fenetre(self, titre):
        """The visible top-level window of that title, waited for."""
        return attendre(f"fenêtre « {titre} »", lambda: next(
            (f for f in enfants(self.racine) if f.name == titre and visible(f)), None))

    def _chercher(self, role, motif):
        return next((a for f in enfants(self.racine) if visible(f) for a in descendants(f)
                     if re.fullmatch(role, a.getRoleName())
                     and re.search(motif, a.name) and visible(a)), None)

    def objet(self, role, motif):
        """The visible object whose role and name match, waited for."""
        return attendre(f"{role} « {motif} »", lambda: self._chercher(role, motif))

    def texte(self, motif):
        """The text of the visible label that matches, waited for."""
        return self.objet("label", motif).name

    def agir(self, role, motif, action):
        """Does that object's first action that matches ("Press", "Toggle")."""
        faire(self.objet(role, motif), action)

    def presser(self, motif):
        """Presses a button once it can be: a disabled one would do nothing."""
        attendre(f"« {motif} » à presser", lambda: self.actif("push button", motif))
        self.agir("push button", motif, "Press")

    def derouler(self, menu, choix):
        """Chooses an entry of a menu of the menu bar, closed: an open one would take the keyboard."""
        barre = self.objet("menu item", menu)
        faire(next(e for e in descendants(barre) if re.search(choix, e.name)), "Press")

    def disparue(self, titre):
        """Waits until no visible window bears that title."""
        attendre(f"plus de « {titre} »", lambda: all(
            f.name != titre or not visible(f) for f in enfants(self.racine)))

    def premier_plan(self, *titres):
        """The window of one of these titles, once keys go to it: mouse and keyboard reach what the
        window manager put first."""
        return attendre(f"« {' | '.join(titres)} » au premier plan", lambda: next(
            (f for f in enfants(self.racine)
             if f.name in titres and dans_l_etat(f, pyatspi.STATE_ACTIVE)), None))

    def cliquer(self, objet, clic="b1c"):
        """A click of the mouse in the middle of an object, once it no longer moves."""
        lieu = objet.queryComponent

        def immobile():
            avant = lieu().getExtents(pyatspi.DESKTOP_COORDS)
            time.sleep(0.2)
            return avant if avant == lieu().getExtents(pyatspi.DESKTOP_COORDS) else None

        place = attendre(f"« {objet.name} » immobile", immobile)
        pyatspi.Registry.generateMouseEvent(place.x + place.width // 2,
                                            place.y + place.height // 2, clic)

    def cliquer_au_milieu(self, motif):
        objet = self.objet(".*", motif)
        self.cliquer(objet)
        return objet

    def choisir_au_menu(self, motif, choix):
        """An entry of an object's context menu, which only announces itself on the bus."""
        annonces = []
        ecoute, genre = annonces.append, "object:state-changed:showing"
        pyatspi.Registry.registerEventListener(ecoute, genre)
        self.cliquer(self.objet(".*", motif), "b3c")

        def entree():
            gi.repository.GLib.MainContext.default().iteration(False)
            return next((e for a in annonces if a.source.getRoleName() == "popup menu"
                         for e in a.source if re.search(choix, e.name)), None)

        self.cliquer(attendre(f"« {choix} » au menu", entree))
        pyatspi.Registry.deregisterEventListener(ecoute, genre)

    def choisir(self, motif):
        """Clicks on an entry of a list and waits until it is selected."""
        objet = self.cliquer_au_milieu(motif)
        attendre(f"« {motif} » choisi", lambda: dans_l_etat(objet, pyatspi.STATE_SELECTED))

    def vise(self, role, motif):
        """Waits until the keys go to that object."""
        objet = self.objet(role, motif)
        attendre(f"« {motif} » visé", lambda: dans_l_etat(objet, pyatspi.STATE_FOCUSED))

    def touche(self, symbole, *avec):
        """A key by its symbol, under the keys `avec` held down."""
        clavier = pyatspi.Registry.generateKeyboardEvent
        tenues = [CODES[nom] for nom in avec]
        for code in tenues:
            clavier(code, None, pyatspi.KEY_PRESS)
        clavier(symbole if isinstance(symbole, int) else ord(symbole), None, pyatspi.KEY_SYM)
        for code in tenues:
            clavier(code, None, pyatspi.KEY_RELEASE)

    def basculer(self, motif):
        """Toggles a check box and waits until it shows so."""
        avant = self.coche(motif)
        self.agir("check box", motif, "Toggle")
        attendre(f"« {motif} » bascule", lambda: self.coche(motif) != avant)

    def coche(self, motif):
        return dans_l_etat(self.objet("check box", motif), pyatspi.STATE_CHECKED)

    def actif(self, role, motif):
        return dans_l_etat(self.objet(role, motif), pyatspi.STATE_ENABLED)

    def sans_nom(self):
        """The visible controls that assistive tools could not tell from others."""
        def liste():
            return [f"{a.getRoleName()} de « {a.parent.name} »" for a in descendants(self.racine)
                    if a.getRoleName() in CONTROLES and not a.name and visible(a)
                    and a.parent.getRoleName() != "text"]  # Qt's own button that empties a field

        return attendre("un arbre qui ne change pas", lambda: (liste(),))[0]

    def code_de_fin(self):
        return self.processus.wait(timeout=DELAI)

    def arbre(self):
        """What the bus shows, for the message of a failed test."""
        lignes = []

        def visiter(a, retrait):
            cache = "" if visible(a) else " (caché)"
            lignes.append(f"{'  ' * retrait}{a.getRoleName()} « {a.name} »{cache}")
            for enfant in a:
                visiter(enfant, retrait + 1)

        visiter(self.racine, 0)
        return "\n".join(lignes)
