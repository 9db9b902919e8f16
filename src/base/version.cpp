#include "base/version.h"

std::string version_du_programme() {
    return TAVOLMEX_VERSION;
}
