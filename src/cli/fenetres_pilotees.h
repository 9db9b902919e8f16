#pragma once

#include "cli/fenetres_terminal.h"
#include "record/console.h"

/// The outlet of a console without a window: passes on what the engine asks of it.
class FenetresPilotees : public FenetresTerminal {
public:
    using FenetresTerminal::FenetresTerminal;

    void suivre(Console& console) { console_ = &console; }

    void Active_Desactive(bool Status) override {
        if (Status && console_ != nullptr)
            console_->action_finie();
    }
    void montrer_course(bool en_cours) override {
        FenetresTerminal::montrer_course(en_cours);
        if (!en_cours && console_ != nullptr)
            console_->action_finie();
    }

private:
    Console* console_ = nullptr;
};
