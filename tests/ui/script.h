#pragma once

#include "ui/commun/boites.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

/// Reads and answers every box and dialog of the program as it opens.
class Script : public QObject {
public:
    Script() {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        qApp->installEventFilter(this);
    }

    std::deque<bool> reponses;           ///< "Oui" or "Non"; "Non" when it is empty
    std::deque<Sauvegarde> sauvegardes;  ///< "Annuler" when it is empty
    std::deque<QString> chemins_choisis; ///< for the file dialogs; given up when it is empty
    /// What to do in a dialog of that objectName; without it the dialog is given up.
    std::map<QString, std::function<void(QDialog&)>> dialogues;
    std::function<void(QDialog&)> avant_de_repondre; ///< sees each one before its answer; may wait
    std::vector<std::string> messages;               ///< "message: text" or "question: text"
    std::vector<std::string> explications;           ///< beneath each of them

protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override {
        if (evenement->type() == QEvent::Show)
            if (auto* dialogue = dynamic_cast<QDialog*>(objet))
                QMetaObject::invokeMethod(
                    dialogue, [this, dialogue] { repondre(*dialogue); }, Qt::QueuedConnection);
        return false;
    }

private:
    void repondre(QDialog& dialogue) {
        if (avant_de_repondre)
            avant_de_repondre(dialogue);
        if (auto* boite = dynamic_cast<QMessageBox*>(&dialogue))
            repondre_boite(*boite);
        else if (const auto prevu = dialogues.find(dialogue.objectName()); prevu != dialogues.end())
            prevu->second(dialogue);
        else if (auto* fichier = dynamic_cast<QFileDialog*>(&dialogue);
                 fichier && !chemins_choisis.empty())
            choisir(*fichier);
        else
            dialogue.reject();
    }

    template <typename Valeur>
    static Valeur suivante(std::deque<Valeur>& valeurs, Valeur sinon) {
        if (valeurs.empty())
            return sinon;
        Valeur valeur = valeurs.front();
        valeurs.pop_front();
        return valeur;
    }

    void repondre_boite(QMessageBox& boite) {
        explications.push_back(boite.informativeText().toStdString());
        if (boite.objectName() == "enregistrer") {
            messages.emplace_back("enregistrer");
            const Sauvegarde reponse = suivante(sauvegardes, Sauvegarde::annuler);
            return boite
                .button(reponse == Sauvegarde::enregistrer          ? QMessageBox::Save
                        : reponse == Sauvegarde::ne_pas_enregistrer ? QMessageBox::Discard
                                                                    : QMessageBox::Cancel)
                ->click();
        }
        messages.push_back((boite.objectName() + ": " + boite.text()).toStdString());
        const bool oui = suivante(reponses, false);
        QAbstractButton* bouton = boite.button(oui ? QMessageBox::Yes : QMessageBox::No);
        (bouton != nullptr ? bouton : boite.button(QMessageBox::Ok))->click();
    }

    void choisir(QFileDialog& dialogue) {
        dialogue.selectFile(suivante(chemins_choisis, QString()));
        static_cast<QDialog&>(dialogue).accept(); // QFileDialog's own is protected
    }
};
