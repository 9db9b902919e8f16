#pragma once

#include "ui/banc_editeur.h"

inline constexpr std::string_view fichier = "# essai\r\nM,,Table\r\nU,0,0,100,100 # sol\r\n"
                                            "\r\nPB,50,50,5\r\npas compris 1\r\nLN,10,80,90,80\r\n";

/// The table editor on a file of its own, driven by the mouse. The name dialog is answered
/// from `noms` ("Annuler" when it is empty).
class EditeurTable : public BancEditeur<dessinTable, VueTable> {
protected:
    EditeurTable() : BancEditeur("dessinTable", "vueTable", "listeObjets") {
        dialogues["nouveauProjet"] = [this](QDialog& dialogue) {
            while (dialogue.isVisible()) // it stays after a refusal: the name may be changed
                repondre_nom(dialogue);
        };
    }

    bool ouvrir(std::string_view octets = fichier) {
        const auto chemin = dossier.ecrire("Configuration/Essai Table.ini", octets);
        const bool ouvert = editeur().ouvrir(chemin);
        vue().resize(600, 500);
        vue().ajuster();
        return ouvert;
    }
    std::string sur_le_disque() { return dossier.lire("Configuration/Essai Table.ini"); }
    /// Chooses what is there and moves it.
    void deplacer(QPointF a, QPointF b, Qt::KeyboardModifiers touches = {}) {
        clic(a.x(), a.y());
        tirer(a, b, touches);
    }
    /// "PB 50 50 5" for the last record of the document with that key.
    std::string dernier(std::string_view cle) {
        for (std::size_t i = doc().nombre(); i-- > 0;)
            if (doc()[i].cle == cle)
                return texte(doc()[i]);
        return "";
    }
    static std::string texte(const Fiche& f) {
        std::string t = f.cle;
        for (std::size_t i = 0; i < nombre_de_champs(f.cle); ++i)
            t += " " + std::to_string(f.entier(i));
        return t;
    }

    std::deque<QString> noms;
    std::string avis;

private:
    void repondre_nom(QWidget& dialogue) {
        auto& ok = *dialogue.findChild<QPushButton*>("OKButton");
        if (noms.empty())
            return dialogue.findChild<QPushButton*>("CancelButton")->click();
        dialogue.findChild<QLineEdit*>("nomProjet")->setText(noms.front());
        noms.pop_front();
        avis = dialogue.findChild<QLabel*>("avis")->text().toStdString();
        if (!ok.isEnabled())
            dialogue.findChild<QPushButton*>("corriger")->click();
        ok.click();
    }
};
