#pragma once

#include <QUndoStack>

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// Records chosen in an editor, by their index in the document, in increasing order.
using Selection = std::vector<std::size_t>;

/// A document under edit as its window sees it, whatever it describes.
class DocumentOuvert {
public:
    virtual void commencer() = 0; ///< a new one
    /// @returns lines not understood
    virtual std::vector<int> lire(const std::string& octets) = 0;
    virtual std::string octets() const = 0;          ///< @throws ErreurExecution
    virtual std::string figer() const = 0;           ///< as a recovery file keeps it
    virtual void degeler(std::string_view fige) = 0; ///< @throws ErreurExecution

    QUndoStack pile;

protected:
    ~DocumentOuvert() = default;
};

/// A document under edit with its named steps, as many as there are. A step keeps the whole
/// document before and after it: undoing gives back the very bytes.
template <typename Doc>
class Historique final : public DocumentOuvert {
public:
    /// @param au_changement  called after every change of the document or the selection
    explicit Historique(std::function<void()> au_changement)
        : au_changement_(std::move(au_changement)) {}

    const Doc& doc() const { return *etat_.doc; }
    const Selection& selection() const { return etat_.selection; }

    /// Another document: its steps start anew.
    void repartir(Doc doc) {
        etat_ = {std::make_shared<const Doc>(std::move(doc)), {}};
        pile.clear();
        pile.setClean(); // an empty one may have been marked as changed
        au_changement_();
    }
    /// One more step. @param fusion  steps of the same number (above 0) in a row, with the same
    ///                                selection, are one step
    void changer(const QString& nom, Doc doc, const Selection& selection, int fusion = -1) {
        pile.push(
            new Pas(*this, nom, {std::make_shared<const Doc>(std::move(doc)), selection}, fusion));
    }
    void choisir(const Selection& selection) {
        etat_.selection = selection;
        au_changement_();
    }

    void commencer() override { repartir(Doc::nouveau()); }
    std::vector<int> lire(const std::string& octets) override {
        repartir(Doc::depuis(octets));
        return doc().incomprises();
    }
    std::string octets() const override { return doc().ecrire(); }
    std::string figer() const override { return doc().figer(); }
    void degeler(std::string_view fige) override { repartir(Doc::depuis_fige(fige)); }

private:
    struct Etat {
        std::shared_ptr<const Doc> doc = std::make_shared<const Doc>(); ///< shared by its steps
        Selection selection;
    };

    class Pas final : public QUndoCommand {
    public:
        Pas(Historique& h, const QString& nom, Etat apres, int fusion)
            : QUndoCommand(nom),
              h_(h),
              avant_(h.etat_),
              apres_(std::move(apres)),
              fusion_(fusion) {}
        void undo() override { h_.montrer(avant_); }
        void redo() override { h_.montrer(apres_); }
        int id() const override { return fusion_; }
        bool mergeWith(const QUndoCommand* autre) override {
            const auto& suite = static_cast<const Pas&>(*autre); // same id: a step of ours
            if (suite.avant_.selection != apres_.selection)
                return false;
            apres_ = suite.apres_;
            return true;
        }

    private:
        Historique& h_;
        Etat avant_, apres_;
        int fusion_;
    };

    void montrer(const Etat& etat) {
        etat_ = etat;
        au_changement_();
    }

    Etat etat_;
    std::function<void()> au_changement_;
};
