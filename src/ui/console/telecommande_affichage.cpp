// What the console shows of its recording: the list, the time of the match, where the typed
// position lies, the fields that an action reads.
#include "ui/console/telecommande.h"

#include "record/lignes_du_trajet.h"
#include "seance/seance.h"
#include "sim/textes_actions.h"
#include "ui/commun/boites.h"
#include "ui/commun/lisible.h"

#include <QEvent>

void Télécommande::actualiser_liste() {
    liste_.clear();
    if (const std::string annonce = console_.annonce_du_precedent(); !annonce.empty()) {
        auto* ligne = new QListWidgetItem(texte_qt(annonce), &liste_);
        ligne->setFlags(Qt::NoItemFlags);
    }
    std::size_t rang = 0;
    for (const Etape& etape : console_.etapes()) {
        const LigneListe ligne = ligne_de_liste(etape);
        auto* element = new QListWidgetItem(
            texte_qt(ligne.numero + ".  " + ligne.action + "  ·  " + ligne.duree), &liste_);
        element->setData(Qt::UserRole, static_cast<qulonglong>(rang++));
        if (ligne.marquee) {
            element->setIcon(style()->standardIcon(QStyle::SP_MessageBoxWarning));
            element->setToolTip("Jouée et gardée dans le trajet, mais le code généré n'aura pas "
                                "tout : ses valeurs y vont de 0 à 255");
        }
    }
    liste_.scrollToBottom();
    ecrire_le_temps();
}

void Télécommande::suivre_le_temps() {
    if (isVisible() && console_.temps_du_match() / 100 != seconde_)
        ecrire_le_temps();
}

void Télécommande::ecrire_le_temps() {
    constexpr std::int32_t alerte = 8000;
    const std::int32_t duree = console_.temps_du_match();
    seconde_ = duree / 100;
    std::string texte = "Temps du match : " + texte_duree(duree);
    if (console_.recommencera())
        texte += ". La course est finie : la prochaine action recommence le trajet à l'action 1, "
                 "depuis la position initiale. Le trajet présent ira dans Sauvegardes ; Annuler le "
                 "rendra.";
    else if (duree >= alerte)
        texte += " sur 90 s : après, le trajet recommence à l'action 1";
    total_.setText(texte_qt(texte));
    QPalette p = palette();
    if (duree >= alerte || console_.recommencera())
        p.setColor(QPalette::WindowText, couleur_d_alerte(p));
    total_.setPalette(p);
}

void Télécommande::indiquer_position() {
    const LimitesPose limites = limites_de_position(seance_.etat());
    const auto dehors = [this](QLineEdit& champ, int limite) {
        bool nombre = false;
        const double valeur = champ.text().toDouble(&nombre);
        const bool hors = nombre && (valeur < 0 || valeur > limite);
        QPalette p = palette();
        if (hors) {
            QColor teinte = couleur_d_alerte(p);
            teinte.setAlphaF(0.3F);
            p.setColor(QPalette::Base, teinte);
        }
        champ.setPalette(p);
        return hors;
    };
    const bool X_dehors = dehors(TextX, limites.X);
    const bool Y_dehors = dehors(TextY, limites.Y);
    const QString etendue = QString("%1 × %2 cm").arg(int{limites.X}).arg(int{limites.Y});
    QStringList textes;
    if (const int ecart = ecart_de_relecture(seance_.etat()); ecart != 0)
        textes << QString("Table tournée : tapez X et Y de la table droite\n(%1). Le X que le "
                          "programme relit\na %2 cm de %3.")
                      .arg(etendue)
                      .arg(std::abs(ecart))
                      .arg(ecart > 0 ? "trop" : "moins");
    if (X_dehors || Y_dehors)
        textes << QString("Hors de la table (%1).").arg(etendue);
    indication_.setText(textes.join('\n'));
    indication_.setVisible(!textes.isEmpty());
}

// Colours of its own follow those of the desktop.
void Télécommande::changeEvent(QEvent* evenement) {
    QWidget::changeEvent(evenement);
    if (evenement->type() != QEvent::PaletteChange)
        return;
    ecrire_le_temps();
    indiquer_position();
    surligner(nullptr);
}

// Shows which fields the action under the pointer or the keyboard reads.
void Télécommande::surligner(const actions::Action* action) {
    const auto teinter = [this](QLineEdit& champ, bool utile) {
        QPalette p = palette();
        if (utile && champ.isEnabled()) {
            QColor teinte = p.color(QPalette::Highlight);
            teinte.setAlphaF(0.25F);
            p.setColor(QPalette::Base, teinte);
        }
        champ.setPalette(p);
    };
    teinter(Text1, action != nullptr && action->a_une_longueur());
    teinter(Text4, action != nullptr && action->a_un_angle());
}
