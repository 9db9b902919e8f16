#pragma once

#include "analyse/analyse.h"

#include <QString>

#include <functional>
#include <string>

class QWidget;
class Seance;

/// What the main window writes about a match: asks where, then writes or prints. Giving up writes
/// nothing.
class Exports {
public:
    /// @param analyse  the match as it would be played now
    Exports(QWidget& fenetre, Seance& seance, std::function<Analyse()> analyse);

    void feuille();
    void imprimer();
    void image();
    void trace();

private:
    QString destination(const QString& titre, const QString& fin, const QString& filtres);
    void ecrire(const QString& chemin, const std::string& octets);

    QWidget& fenetre_;
    Seance& seance_;
    std::function<Analyse()> analyse_;
};
