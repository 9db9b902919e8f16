#pragma once

#include "edition/miroir.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>

#include <optional>

/// "Copier vers un robot": which one, turned in which way, with its generation input or without.
class CopieTrajet final : public QDialog {
public:
    /// @param de  the robot whose trajectory it is, 1..9
    CopieTrajet(QWidget* parent, int de);

    int vers() const { return robot_.currentIndex() + 1; }
    /// None: as it is.
    std::optional<Retournement> retournement() const;
    bool generation() const { return generation_.isChecked(); }

private:
    QComboBox robot_, cote_;
    QCheckBox generation_;
};
