#include "seance/annonces.h"

#include <algorithm>

void Ecouteur::ecouter(Annonces& annonces) {
    annonces.ecouteurs_.push_back(this);
    annonces_ = &annonces;
}

Ecouteur::~Ecouteur() {
    if (annonces_ != nullptr)
        std::replace(annonces_->ecouteurs_.begin(), annonces_->ecouteurs_.end(), this,
                     static_cast<Ecouteur*>(nullptr));
}

Annonces::~Annonces() {
    for (Ecouteur* ecouteur : ecouteurs_)
        if (ecouteur != nullptr)
            ecouteur->annonces_ = nullptr;
}
