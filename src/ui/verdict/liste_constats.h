#pragma once

#include "analyse/analyse.h"
#include "ui/verdict/genres_masques.h"

#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTreeWidget>
#include <QWidget>

#include <functional>

/// The findings of the computed match by robot, and how near each robot came to another one. A
/// click or Enter goes to what is chosen.
class ListeConstats final : public QWidget {
public:
    /// @param au_choix  the user has switched a kind of findings off or on
    ListeConstats(QWidget* parent, std::function<void(Genre, bool masque)> au_choix);

    std::function<void(std::size_t rang)> au_constat; ///< its rank among the analysis's findings
    std::function<void(int robot, std::int32_t temps)> au_rapprochement;

    void remplir(const QString& verdict, const Analyse& a, const GenresMasques& masques);

private:
    void nommer();
    void placer();
    void connecter();
    void remplir_genres(const Analyse& a, const GenresMasques& masques);
    void remplir_robot(const Analyse& a, const GenresMasques& masques, int robot);
    void aller(const QTreeWidgetItem& rangee) const;
    void ajouter_ecart(QTreeWidgetItem& groupe, const Analyse& a, int robot);

    std::function<void(Genre, bool)> au_choix_;
    QLabel verdict_, titre_texte_, texte_, masques_;
    QTreeWidget liste_;
    QPushButton genres_;
    QMenu menu_{this};
};
