#include "record/enregistrement.h"

#include <algorithm>
#include <numeric>

namespace {

constexpr int version = 1;

// One record: its keyword and up to three values, separated by commas.
class Article {
public:
    explicit Article(std::string_view ligne) {
        while (nombre_ < champs_.size()) {
            const std::size_t virgule = ligne.find(',');
            champs_[nombre_++] = ligne.substr(0, virgule);
            if (virgule == std::string_view::npos)
                return;
            ligne.remove_prefix(virgule + 1);
        }
        throw ErreurLecture("trop de valeurs");
    }

    std::string_view mot() const { return champs_[0]; }
    void exiger(std::size_t valeurs) const {
        if (nombre_ != valeurs + 1)
            throw ErreurLecture("il faut " + std::to_string(valeurs) + " valeurs");
    }
    std::string_view texte(std::size_t i) const { return champs_[i]; }
    int entier(std::size_t i, int minimum, int maximum) const {
        const Entier16 valeur = lire_entier16(champs_[i]);
        if (valeur < minimum || valeur > maximum)
            throw ErreurConversion(champs_[i], "un nombre de " + std::to_string(minimum) + " à " +
                                                   std::to_string(maximum));
        return valeur;
    }

private:
    std::array<std::string_view, 5> champs_;
    std::size_t nombre_ = 0;
};

class Lecteur {
public:
    // @returns true at the end mark
    bool lire(const Article& article) {
        if (article.mot() == "Robot")
            ouvrir_robot(article);
        else if (article.mot() == "Init")
            lire_pose(article);
        else if (article.mot() == "Action")
            lire_action(article);
        else if (article.mot() == "Generer")
            lire_ligne(article);
        else if (article.mot() == "Fin")
            return finir(article);
        else
            throw ErreurLecture("« " + std::string(article.mot()) + " » est inconnu");
        return false;
    }

    Enregistrement lu() && { return std::move(lu_); }

private:
    void ouvrir_robot(const Article& article) {
        article.exiger(1);
        const int numero = article.entier(1, 0, robots_max);
        for (const Enregistrement::Robot& robot : lu_.robots) {
            if (robot.numero == numero)
                throw ErreurLecture("le robot " + std::to_string(numero) + " y est deux fois");
        }
        lu_.robots.push_back({numero, {}, {}});
    }

    Enregistrement::Robot& robot() {
        if (lu_.robots.empty())
            throw ErreurLecture("il manque le robot");
        return lu_.robots.back();
    }

    void lire_pose(const Article& article) {
        article.exiger(3);
        robot().init = {lire_simple(article.texte(1)), lire_simple(article.texte(2)),
                        lire_simple(article.texte(3))};
    }

    void lire_action(const Article& article) {
        article.exiger(3);
        const std::string_view nom = article.texte(1);
        if (nom.size() != Nom10().vue().size() ||
            !std::all_of(nom.begin(), nom.end(), [](char c) { return c >= ' ' && c <= '~'; }))
            throw ErreurLecture("« " + std::string(nom) + " » n'est pas un nom d'action");
        if (robot().actions.size() == actions_max)
            throw ErreurLecture("trop d'actions");
        robot().actions.push_back(
            {Nom10(nom), lire_entier16(article.texte(2)), lire_entier16(article.texte(3))});
    }

    void lire_ligne(const Article& article) {
        article.exiger(3);
        if (lu_.lignes.size() == actions_max + 1)
            throw ErreurLecture("trop de lignes à générer");
        const auto octet = [&](std::size_t i, int minimum) {
            return static_cast<std::uint8_t>(article.entier(i, minimum, 255));
        };
        lu_.lignes.push_back({octet(1, 1), octet(2, 0), octet(3, 0)});
    }

    // The counts tell a file that was cut short.
    bool finir(const Article& article) const {
        article.exiger(2);
        if (std::to_string(lu_.nb_actions()) != article.texte(1) ||
            std::to_string(lu_.lignes.size()) != article.texte(2))
            throw ErreurLecture("il n'est pas complet");
        return true;
    }

    Enregistrement lu_;
};

} // namespace

std::size_t Enregistrement::nb_actions() const {
    return std::accumulate(robots.begin(), robots.end(), std::size_t{0},
                           [](std::size_t n, const Robot& r) { return n + r.actions.size(); });
}

Enregistrement prendre_enregistrement(const Etat& e, const Robots& robots) {
    Enregistrement pris;
    for (int i = 0; i <= robots_max; ++i) {
        if (!robots.test(static_cast<std::size_t>(i)))
            continue;
        Enregistrement::Robot robot{i, pose_des_fichiers(e, i), {}};
        for (int k = 1; k <= e.TrajNbActions(i); ++k)
            robot.actions.push_back({e.TrajAction(i, k), e.TrajParam1(i, k), e.TrajParam2(i, k)});
        pris.robots.push_back(std::move(robot));
    }
    for (int n = 0; n < e.nb_a_generer; ++n)
        pris.lignes.push_back(
            {e.TableauAGenerer(n, 0), e.TableauAGenerer(n, 1), e.TableauAGenerer(n, 2)});
    return pris;
}

void restaurer_enregistrement(Etat& e, const Enregistrement& enregistrement) {
    for (const Enregistrement::Robot& robot : enregistrement.robots) {
        const int i = robot.numero;
        poser_depuis_fichier(e, i, robot.init);
        int k = 0;
        for (const Enregistrement::Action& action : robot.actions) {
            ++k;
            e.TrajAction(i, k) = action.nom;
            e.TrajParam1(i, k) = action.param1;
            e.TrajParam2(i, k) = action.param2;
        }
        e.TrajNbActions(i) = k;
        e.TrajetModifie(i) = true;
    }
    e.TableauAGenerer = {};
    e.nb_a_generer = 0;
    for (const auto& ligne : enregistrement.lignes) {
        for (int colonne = 0; colonne < 3; ++colonne)
            e.TableauAGenerer(e.nb_a_generer, colonne) =
                ligne.at(static_cast<std::size_t>(colonne));
        e.nb_a_generer = e.nb_a_generer + 1;
    }
}

std::string texte_enregistrement(const Enregistrement& enregistrement) {
    std::string texte;
    const auto ajouter = [&texte](std::string_view mot, const auto&... valeurs) {
        texte.append(mot);
        (texte.append(",").append(std::string_view(valeurs)), ...);
        texte.append(RetourLigne);
    };
    ajouter("# Trajet enregistré et pas encore sauvegardé : repris au prochain démarrage");
    ajouter("Reprise", texte_entier(version));
    for (const Enregistrement::Robot& robot : enregistrement.robots) {
        ajouter("Robot", texte_entier(robot.numero));
        ajouter("Init", texte_simple(robot.init.x), texte_simple(robot.init.y),
                texte_simple(robot.init.cap));
        for (const Enregistrement::Action& action : robot.actions)
            ajouter("Action", action.nom.vue(), texte_entier(action.param1),
                    texte_entier(action.param2));
    }
    for (const auto& [code, param1, param2] : enregistrement.lignes)
        ajouter("Generer", texte_entier(code), texte_entier(param1), texte_entier(param2));
    ajouter("Fin", std::to_string(enregistrement.nb_actions()),
            std::to_string(enregistrement.lignes.size()));
    return texte;
}

Enregistrement lire_enregistrement(std::string_view texte, int& ligne) {
    ligne = 0;
    Lecteur lecteur;
    Lignes lignes(texte);
    bool reconnu = false;
    while (const auto suivante = lignes.suivante()) {
        ++ligne;
        if (suivante->empty() || suivante->starts_with('#'))
            continue;
        const Article article(*suivante);
        if (!reconnu) {
            if (article.mot() != "Reprise")
                throw ErreurLecture("ce n'est pas un fichier de reprise");
            article.exiger(1);
            article.entier(1, version, version);
            reconnu = true;
        } else if (lecteur.lire(article)) {
            return std::move(lecteur).lu();
        }
    }
    throw ErreurLecture("il n'est pas complet");
}
