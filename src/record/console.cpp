#include "record/console.h"

#include "record/champs.h"

#include <utility>

ActionConduite action_des_champs(std::string_view legende, const std::string& Text1,
                                 const std::string& Text4) {
    const std::string action = majuscules(legende);
    const Entier16 a = lire_champ({nom_Text4, Text4});
    const Entier16 b = lire_champ({nom_Text1, Text1});
    const actions::Action* const connue = actions::trouver_legende(action);
    const bool angle = connue != nullptr && connue->a_un_angle();
    const Entier16 longueur = connue == nullptr || connue->a_une_longueur() ? b : Entier16();
    return {action, angle ? a : longueur, angle ? longueur : Entier16()};
}

ChampsPose Console::VScroll1_Change(Entier16 numero) {
    if (phase_ == Phase::arret && numero != robot_) {
        robot_ = numero;
        precedents_.clear();
        debut_sans_action_ = false;
    }
    return tele_get_xya(etat_, robot_);
}

void Console::exiger_robot_sur_la_table() const {
    // Another robot's action would never end: the engine plays robots 1..NbRobot.
    if (robot_ < 1 || robot_ > etat_.NbRobot)
        throw ErreurExecution(
            "le robot " + std::to_string(robot_) +
            " n'est pas sur la table (nombre de robots : " + std::to_string(etat_.NbRobot) + ")");
}

void Console::Command9_Click(const ChampsPose& champs) {
    if (phase_ != Phase::arret) {
        phase_ = Phase::arret;
        return;
    }
    exiger_robot_sur_la_table();
    const Entier16 x = lire_champ({"X", champs.TextX});
    const Entier16 y = lire_champ({"Y", champs.TextY});
    debuter(x, y, lire_champ({"Cap", champs.TextA}));
}

void Console::debuter(Entier16 x, Entier16 y, Entier16 a) {
    // A start that nothing followed has taken no place.
    if (!std::exchange(debut_sans_action_, true))
        ceder_la_place();
    etapes_.clear();
    joue_ = false;
    tele_set_xya(etat_, moteur_, fenetres_, robot_, x, y, a);
    Set_Sauv_Robot(etat_, robot_);
    phase_ = Phase::repos;
}

// The unsaved path of the robot is kept, and annuler() can bring it back.
void Console::ceder_la_place() {
    if (!etat_.TrajetModifie(robot_))
        return precedents_.clear();
    const bool garde = reprise_ != nullptr && reprise_->garder_ou_prevenir(fenetres_);
    precedents_.push_back(
        {Instantane(etat_, robot_, 1), std::move(etapes_), etat_.RobotTele, garde});
}

void Console::Command4_Click(std::string_view legende, const std::string& Text1,
                             const std::string& Text4) {
    if (phase_ != Phase::repos)
        return;
    exiger_robot_sur_la_table();
    const ActionConduite action = action_des_champs(legende, Text1, Text4);
    saisie_ = {Text1, Text4};
    tele_action(robot_, action.nom, action.p1, action.p2);
}

void Console::tele_action(Entier16 I, const std::string& action, Entier16 p1, Entier16 p2) {
    // The path that starts over would be lost.
    if (!etat_.en_course && etat_.TrajetModifie(I) && reprise_ != nullptr)
        reprise_->garder_ou_prevenir(fenetres_);
    lancer(I, action, p1, p2);
    phase_ = Phase::action;
    // What is recorded goes into the recovery file even if the rest of it is refused.
    try {
        inscrire(I, action, p1, p2);
    } catch (const ErreurExecution&) {
        ecrire_reprise();
        throw;
    }
    ecrire_reprise();
}

void Console::lancer(Entier16 I, const std::string& action, Entier16 p1, Entier16 p2) {
    memoriser(I, action, p1, p2);
    if (!etat_.en_course)
        moteur_.Run_Jeu();
    else
        fenetres_.regler_Timer(etat_.PasTemps * 10);
    joue_ = true;
    etat_.ActionEnCours(I) = Nom10(action);
    etat_.ParamEnCours(I) = p1;
    etat_.Param2EnCours(I) = p2;
    etat_.Progression(I) = 0;
    etat_.RobotTele = I;
    Set_Sauv_Robot(etat_, I); // again: it may have been saved since the recording began
}

void Console::inscrire(Entier16 I, const std::string& action, Entier16 p1, Entier16 p2) {
    ajouter_au_trajet(I, p1, p2);
    if (etat_.utiliDamier)
        moteur_.predire_carreaux(I);
    const int lignes = etat_.nb_a_generer;
    try {
        remplir_TableauAGenerer(action);
    } catch (const ErreurExecution& erreur) {
        etapes_.back().sans_code = true;
        const char* const manque = etat_.nb_a_generer > lignes ? "son compte de carreaux" : "elle";
        throw ErreurExecution(std::string(erreur.what()) +
                              ". L'action est jouée et gardée dans le trajet, mais " + manque +
                              " manquera dans le code généré");
    }
}

void Console::ecrire_reprise() {
    if (reprise_ != nullptr)
        reprise_->ecrire_ou_prevenir(fenetres_);
    if (au_changement)
        au_changement();
}

void Console::memoriser(Entier16 I, const std::string& action, Entier16 p1, Entier16 p2) {
    // A run that has ended starts again from its first action, and so does the trajectory.
    debut_sans_action_ = false;
    const bool recommence = !etat_.en_course;
    const Entier16 numero = (recommence ? 0 : int{etat_.NumAction(I)}) + 1;
    const std::int32_t debut = recommence ? 0 : etat_.TempsEcoule;
    etapes_.push_back({Instantane(etat_, I, numero), numero, action, p1, p2, debut, debut,
                       recommence && !etapes_.empty()});
}

void Console::ajouter_au_trajet(Entier16 I, Entier16 p1, Entier16 p2) {
    if (etat_.NumAction(I) >= actions_max)
        throw Debordement("le trajet est plein : " + std::to_string(actions_max) +
                          " actions au plus, celle-ci n'est pas enregistrée");
    const Entier16 n = etat_.NumAction(I) + 1;
    etat_.NumAction(I) = n;
    etat_.TrajAction(I, n) = etat_.ActionEnCours(I);
    etat_.TrajParam1(I, n) = p1;
    etat_.TrajParam2(I, n) = p2;
    etat_.TrajNbActions(I) = n;
}

void Console::remplir_TableauAGenerer(const std::string& action) {
    const actions::Action* const connue = actions::trouver_legende(action);
    if (connue == nullptr)
        return fenetres_.message("PB remplissage tableau à générer");
    const auto Text1 = [this] { return lire_champ_octet({nom_Text1, saisie_.Text1}); };
    const auto Text4 = [this] { return lire_champ_octet({nom_Text4, saisie_.Text4}); };
    std::uint8_t p1 = 0;
    std::uint8_t p2 = 0;
    // The table has an arc's radius first, its angle second: the reverse of the trajectory.
    if (connue->a_une_longueur())
        p1 = Text1();
    if (connue->a_un_angle())
        (connue->a_une_longueur() ? p2 : p1) = Text4();
    ajouter_ligne(connue->code, p1, p2);
    if (connue->compte_les_carreaux() && etat_.utiliDamier) {
        const std::string nombre =
            nbre_carreaux ? nbre_carreaux() : std::string(texte_entier(etat_.NbreCarreaux).vue());
        ajouter_ligne(actions::code_carreaux, lire_champ_octet({"Nbre Carreaux", nombre}), 0);
    }
}

void Console::ajouter_ligne(std::uint8_t code, std::uint8_t p1, std::uint8_t p2) {
    const int n = etat_.nb_a_generer;
    if (n > actions_max)
        throw Debordement("le tableau à générer est plein : " + std::to_string(actions_max + 1) +
                          " lignes au plus");
    etat_.TableauAGenerer(n, 0) = code;
    etat_.TableauAGenerer(n, 1) = p1;
    etat_.TableauAGenerer(n, 2) = p2;
    etat_.nb_a_generer = n + 1;
}

void Console::action_finie() {
    if (!std::exchange(joue_, false))
        return;
    etapes_.back().fin = etat_.TempsEcoule;
    if (phase_ == Phase::action)
        phase_ = Phase::repos;
}

bool Console::recommencera() const {
    return phase_ == Phase::repos && !etat_.en_course && !etapes_.empty();
}

std::string Console::annonce_du_precedent() const {
    if (precedents_.empty())
        return {};
    return precedents_.back().garde ? "(le trajet précédent est dans Sauvegardes ; Annuler le rend)"
                                    : "(Annuler rend le trajet précédent)";
}

std::int32_t Console::temps_du_match() const {
    if (joue_)
        return etat_.TempsEcoule;
    return etapes_.empty() ? 0 : etapes_.back().fin;
}

void Console::oublier() {
    phase_ = Phase::arret;
    joue_ = debut_sans_action_ = false;
    etapes_.clear();
    precedents_.clear();
}
