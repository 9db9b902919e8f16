#pragma once

#include "config/erreur_lecture.h"

#include <QPlainTextEdit>
#include <QPushButton>
#include <QWidget>

#include <functional>
#include <vector>

/// All that the readers complained about, once their boxes are closed: to be read, copied and
/// corrected one after the other.
class ErreursLecture final : public QWidget {
public:
    ErreursLecture(QWidget* parent, std::function<void()> ouvrir_le_dossier);

    /// Hides when there are none any more.
    void montrer(const std::vector<ErreurDeLecture>& erreurs);

private:
    QPlainTextEdit liste_;
    QPushButton copier_, dossier_, fermer_;
};
