#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// A list of byte strings as one text, each behind its length: whatever bytes they hold.
class EcritureFigee {
public:
    void mettre(std::string_view octets) {
        texte_.append(std::to_string(octets.size())).append(1, ':').append(octets);
    }
    const std::string& texte() const { return texte_; }

private:
    std::string texte_;
};

/// Reads them back. @throws ErreurExecution at whatever EcritureFigee has not written
class LectureFigee {
public:
    explicit LectureFigee(std::string_view texte) : reste_(texte) {}

    std::string_view suivant();
    /// A count that can be true of what is left to be read.
    std::size_t nombre();
    float simple();
    bool finie() const { return reste_.empty(); }
    void finir() const {
        if (!finie())
            refuser();
    }
    [[noreturn]] static void refuser();

private:
    std::string_view reste_;
};
