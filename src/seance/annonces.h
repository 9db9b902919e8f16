#pragma once

#include <filesystem>
#include <vector>

class Annonces;

/// What was read in place of what was in the state.
enum class Lecture {
    projet,   ///< a project that was chosen, or the same one again
    fichiers, ///< the project's files, changed from outside
    table     ///< its table alone; robots and trajectories are as they were
};

/// Hears of what happens to a session, from ecouter() until it or the session ends. It overrides
/// what concerns it.
class Ecouteur {
public:
    Ecouteur() = default;
    Ecouteur(const Ecouteur&) = delete;
    Ecouteur& operator=(const Ecouteur&) = delete;

    void ecouter(Annonces& annonces);

    /// The project has its name; its files are about to be read. Never announced after a box, under
    /// which they may have changed.
    virtual void projet_va_etre_lu() {}
    virtual void projet_change(Lecture) {}
    /// The recorded path changed: the console drove or took back an action, a recording came back.
    virtual void trajet_change() {}
    /// The number of robots, the table's orientation, the time step or the use of the chequerboard
    /// changed.
    virtual void reglages_changes() {}
    /// The program itself has just written that file, of the project or not.
    virtual void fichier_ecrit(const std::filesystem::path&) {}

protected:
    virtual ~Ecouteur();

private:
    friend Annonces;
    Annonces* annonces_ = nullptr;
};

/// The listeners of a session, in the order in which they came. One may come or go during an
/// announcement.
class Annonces {
public:
    Annonces() = default;
    Annonces(const Annonces&) = delete;
    Annonces& operator=(const Annonces&) = delete;
    ~Annonces();

    /// Tells every listener.
    template <typename... Parametres, typename... Valeurs>
    void annoncer(void (Ecouteur::*quoi)(Parametres...), const Valeurs&... valeurs) {
        for (std::size_t i = 0; i < ecouteurs_.size(); ++i)
            if (ecouteurs_[i] != nullptr)
                (ecouteurs_[i]->*quoi)(valeurs...);
    }

private:
    friend Ecouteur;
    std::vector<Ecouteur*> ecouteurs_; ///< null: one that has gone
};
