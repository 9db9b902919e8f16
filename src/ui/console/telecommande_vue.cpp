// How the console looks: names, captions, keys and places of its controls.
#include "ui/commun/boites.h"
#include "ui/commun/icones_actions.h"
#include "ui/commun/icones_commandes.h"
#include "ui/commun/nombre.h"
#include "ui/commun/separateur.h"
#include "ui/commun/style.h"
#include "ui/commun/touches_annulation.h"
#include "ui/console/telecommande.h"

#include <QAction>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

struct Bouton {
    Nom10 action;
    int ligne, colonne;
    int touche; ///< with Alt
    const char* nom_touche;
    const char* bulle;
};

constexpr int rangee_des_balises = 3; ///< two buttons instead of three

// As seen from above the robot: ahead is up, left is left.
constexpr std::array<Bouton, actions::boutons.size()> boutons{{
    {actions::VIRAVGA, 0, 0, Qt::Key_Home, "Alt+Début", "Vire en avant vers la gauche"},
    {actions::AVANCE, 0, 1, Qt::Key_Up, "Alt+Haut", "Avance de la distance donnée"},
    {actions::VIRAVDR, 0, 2, Qt::Key_PageUp, "Alt+Page haut", "Vire en avant vers la droite"},
    {actions::GAUCHE, 1, 0, Qt::Key_Left, "Alt+Gauche", "Tourne à gauche sur place"},
    {actions::PAUSE, 1, 1, Qt::Key_P, "Alt+P", "Attend la durée donnée"},
    {actions::DROITE, 1, 2, Qt::Key_Right, "Alt+Droite", "Tourne à droite sur place"},
    {actions::VIRARGA, 2, 0, Qt::Key_End, "Alt+Fin", "Vire en arrière vers la gauche"},
    {actions::RECULE, 2, 1, Qt::Key_Down, "Alt+Bas", "Recule de la distance donnée"},
    {actions::VIRARDR, 2, 2, Qt::Key_PageDown, "Alt+Page bas", "Vire en arrière vers la droite"},
    {actions::BALISE_GAU, rangee_des_balises, 0, Qt::Key_G, "Alt+G", "Cherche la balise gauche"},
    {actions::BALISE_DRO, rangee_des_balises, 1, Qt::Key_D, "Alt+D", "Cherche la balise droite"},
}};

/// Its index among the console's buttons.
constexpr std::size_t rang(const Bouton& bouton) {
    const auto trouve = std::ranges::find(actions::boutons, bouton.action, &actions::Action::nom);
    return static_cast<std::size_t>(trouve - actions::boutons.begin());
}
static_assert(std::ranges::all_of(actions::boutons, [](const actions::Action& action) {
    return std::ranges::count(boutons, action.nom, &Bouton::action) == 1;
}));

// What becomes of the action in the generated code, where that is not what the screen shows.
QString dans_le_code(const actions::Action& action) {
    if (action.genre == actions::Genre::arc)
        return "\nDans le code généré : une ligne droite, un quart de tour et une ligne droite, "
               "dont les longueurs ne suivent pas l'arc dessiné à l'écran.";
    if (action.genre == actions::Genre::rotation)
        return QString("\nDans le code généré : Action_%1. C'est voulu : les tours sur place sont "
                       "croisés à cause du nom des sous-programmes du robot.")
            .arg(texte_qt(actions::trouver(action.miroir)->legende));
    return {};
}

} // namespace

void Télécommande::nommer() {
    setObjectName("Télécommande");
    setWindowTitle("Télécommande");
    for (std::size_t k = 0; k < nb_actions; ++k) {
        Command4.at(k).setObjectName("Command4");
        Command4.at(k).setProperty("index", int(k));
        Command4.at(k).setText(texte_qt(actions::boutons[k].legende));
        Command4.at(k).setIcon(icone_action(actions::boutons[k]));
    }
    constexpr std::array<const char*, nb_legendes> legendes{"Numéro du robot :",
                                                            "Position initiale :",
                                                            "X",
                                                            "Y",
                                                            "Cap",
                                                            "cm",
                                                            "cm",
                                                            "°",
                                                            "Action : :",
                                                            "Distance, durée ou rayon",
                                                            "cm ou 1/100 s",
                                                            "Angle",
                                                            "degré"};
    for (std::size_t i = 0; i < legendes.size(); ++i) {
        Label1.at(i).setObjectName("Label1");
        Label1.at(i).setProperty("index", int(i));
        Label1.at(i).setText(legendes.at(i));
    }
    NbRO.setObjectName("NbRO");
    Command9.setObjectName("Command9");
    Command9.setText("Début Enr.");
    Command9.setIcon(icone(Commande::enregistrer_le_trajet));
    Command9.setToolTip("Commence ou finit l'enregistrement (Alt+E)");
    Command2.setObjectName("Command2");
    Command2.setText("Masquer");
    Command2.setToolTip("Ferme la télécommande et revient aux options (Échap)");
    annuler_.setObjectName("annuler");
    annuler_.setText("Annuler la dernière action");
    annuler_.setToolTip("Retire la dernière action et remet le robot où il était (Ctrl+Z)");
    reprendre_.setObjectName("reprendre");
    reprendre_.setText("Reprendre un trajet");
    reprendre_.setToolTip("Continue le dernier trajet enregistré, ou en rend un qui est gardé dans "
                          "Sauvegardes");
    menu_reprendre_.setObjectName("menu_reprendre");
    reprendre_.setMenu(&menu_reprendre_);
    indication_.setObjectName("indication");
    liste_.setObjectName("liste");
    liste_.setAccessibleName("Actions enregistrées");
    total_.setObjectName("total");
}

void Télécommande::nommer_champs() {
    struct NomChamp {
        QLineEdit& champ;
        const char* nom;
        const char* accessible;
        Legende legende;
        const char* texte;
    };
    for (const NomChamp& c : std::initializer_list<NomChamp>{
             {Text1, "Text1", "Distance, durée ou rayon", l_longueur, "10"},
             {Text4, "Text4", "Angle en degrés", l_angle, "90"},
             {TextX, "TextX", "Position initiale X en centimètres", l_x, ""},
             {TextY, "TextY", "Position initiale Y en centimètres", l_y, ""},
             {TextA, "TextA", "Cap initial en degrés", l_cap, ""}}) {
        c.champ.setObjectName(c.nom);
        c.champ.setAccessibleName(c.accessible);
        c.champ.setText(c.texte);
        c.champ.setAlignment(Qt::AlignRight);
        c.champ.setFixedWidth(c.champ.fontMetrics().averageCharWidth() * 9);
        Label1.at(c.legende).setBuddy(&c.champ);
        n_accepter_que_des_entiers(c.champ);
    }
    Text1.setToolTip("Avance, recule et virages : de 0 à 255 cm ; pause : de 0 à 255 centièmes "
                     "de seconde");
    Text4.setToolTip("De 0 à 255 degrés");
    VScroll1.setObjectName("VScroll1");
    VScroll1.setAccessibleName("Numéro du robot");
    VScroll1.setRange(1, robots_des_fichiers);
    Label1.at(l_numero).setBuddy(&VScroll1);
}

void Télécommande::placer() {
    auto* gauche = new QVBoxLayout;
    gauche->setSpacing(style::ecart);
    gauche->addLayout(placer_robot());
    auto* enregistrement = new QHBoxLayout;
    for (QPushButton* bouton : {&Command9, &reprendre_})
        enregistrement->addWidget(bouton, 1);
    gauche->addLayout(enregistrement);
    gauche->addWidget(separateur());
    gauche->addLayout(placer_action());
    gauche->addLayout(placer_boutons());
    gauche->addStretch();
    gauche->addWidget(&Command2);
    auto* rangee = new QHBoxLayout(this);
    rangee->setContentsMargins(style::marge, style::marge, style::marge, style::marge);
    rangee->setSpacing(2 * style::ecart_de_groupe);
    rangee->addLayout(gauche);
    rangee->addLayout(placer_liste(), 1);
}

QLayout* Télécommande::placer_robot() {
    auto* colonne = new QVBoxLayout;
    auto* numero = new QHBoxLayout;
    numero->setSpacing(style::ecart_serre);
    NbRO.setAlignment(Qt::AlignCenter);
    NbRO.setFrameStyle(int(QFrame::Panel) | int(QFrame::Sunken));
    NbRO.setMinimumWidth(NbRO.fontMetrics().averageCharWidth() * 4);
    VScroll1.setFixedHeight(style::hauteur_barre_nombre);
    numero->addWidget(&Label1.at(l_numero));
    numero->addSpacing(style::ecart);
    numero->addWidget(&NbRO, 0, Qt::AlignVCenter);
    numero->addWidget(&VScroll1);
    numero->addStretch();
    auto* pose = new QHBoxLayout;
    pose->setSpacing(style::ecart_serre);
    for (const auto& [nom, champ, unite] :
         std::initializer_list<std::tuple<Legende, QLineEdit*, Legende>>{
             {l_x, &TextX, l_cm_x}, {l_y, &TextY, l_cm_y}, {l_cap, &TextA, l_degre_cap}}) {
        pose->addWidget(&Label1.at(nom));
        pose->addWidget(champ);
        pose->addWidget(&Label1.at(unite));
        pose->addStretch();
    }
    colonne->addLayout(numero);
    colonne->addWidget(&Label1.at(l_position));
    colonne->addLayout(pose);
    colonne->addWidget(&indication_);
    indication_.hide();
    return colonne;
}

QLayout* Télécommande::placer_action() {
    auto* grille = new QGridLayout;
    grille->setHorizontalSpacing(style::ecart);
    grille->setVerticalSpacing(style::ecart_serre);
    grille->setColumnStretch(3, 1);
    grille->addWidget(&Label1.at(l_action), 0, 0, 1, 4);
    grille->addWidget(&Label1.at(l_longueur), 1, 0);
    grille->addWidget(&Text1, 1, 1);
    grille->addWidget(&Label1.at(l_unite_longueur), 1, 2);
    grille->addWidget(&Label1.at(l_angle), 2, 0);
    grille->addWidget(&Text4, 2, 1);
    grille->addWidget(&Label1.at(l_degre), 2, 2);
    return grille;
}

QLayout* Télécommande::placer_boutons() {
    constexpr int colonnes = 6; // two or three for a button
    auto* grille = new QGridLayout;
    grille->setSpacing(style::ecart_serre);
    for (const Bouton& b : boutons) {
        QPushButton& bouton = Command4.at(rang(b));
        const int largeur = b.ligne == rangee_des_balises ? 3 : 2;
        if (b.ligne != rangee_des_balises)
            style::mettre_l_icone_au_dessus(bouton);
        grille->addWidget(&bouton, b.ligne, b.colonne * largeur, 1, largeur);
    }
    for (int colonne = 0; colonne < colonnes; ++colonne)
        grille->setColumnStretch(colonne, 1);
    return grille;
}

QLayout* Télécommande::placer_liste() {
    auto* colonne = new QVBoxLayout;
    colonne->setSpacing(style::ecart);
    auto* titre = new QLabel("Actions enregistrées :");
    titre->setBuddy(&liste_);
    liste_.setMinimumWidth(liste_.fontMetrics().averageCharWidth() * 36);
    liste_.setAlternatingRowColors(true);
    liste_.setWordWrap(true);
    liste_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    liste_.setIconSize({14, 14});
    colonne->addWidget(titre);
    colonne->addWidget(&liste_, 1);
    total_.setWordWrap(true);
    colonne->addWidget(&total_);
    colonne->addWidget(&annuler_);
    return colonne;
}

// Each key presses its button, so that a disabled one does nothing.
void Télécommande::connecter_touches() {
    const auto relier = [this](QPushButton& bouton, const QKeySequence& touche) {
        auto* action = new QAction(this);
        action->setShortcut(touche);
        action->setAutoRepeat(&bouton != &Command9); // held down, it would start and end in turn
        connect(action, &QAction::triggered, &bouton, [&bouton] { bouton.click(); });
        addAction(action);
    };
    for (const Bouton& b : boutons) {
        QPushButton& bouton = Command4.at(rang(b));
        relier(bouton, QKeySequence(int(Qt::ALT) | b.touche));
        bouton.setToolTip(QString("%1 (%2)").arg(QString(b.bulle), QString(b.nom_touche)) +
                          dans_le_code(actions::boutons[rang(b)]));
    }
    relier(Command9, QKeySequence(int(Qt::ALT) | int(Qt::Key_E)));
    relier(annuler_, QKeySequence(QKeySequence::Undo));
    annuler_de_partout(*this);
}
