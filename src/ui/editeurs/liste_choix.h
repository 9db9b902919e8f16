#pragma once

#include "ui/commun/historique.h"

#include <QIcon>
#include <QListWidget>

#include <functional>
#include <vector>

/// The list of an editor's records: what is chosen there is chosen in the drawing and the reverse.
/// Its rows stay while the choice changes, so that the keys walk on from where they are.
class ListeChoix final : public QListWidget {
public:
    struct Rangee {
        std::size_t indice; ///< in the document
        QString texte;
        std::function<QIcon()> image = {}; ///< asked for when the text changes
    };

    explicit ListeChoix(QWidget* parent = nullptr);

    std::function<void(const Selection&)> au_choix; ///< by the user

    void montrer(const std::vector<Rangee>& rangees, const Selection& choisis);

protected:
    void resizeEvent(QResizeEvent* evenement) override;

private:
    Selection choisis() const;

    bool en_cours_ = false; ///< being filled
};
