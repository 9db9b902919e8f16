#pragma once

#include <CLI/CLI.hpp>

#include <string>

/// French headings in the help of a command and of its verbs, declared before.
void parler_francais(CLI::App& app);

/// What the argument parser complains of, in French.
/// @param app  the parser that has just stopped: it keeps the words that it did not expect
std::string en_francais(const CLI::ParseError& erreur, const CLI::App& app);

/// A complaint of a verb about its own command line, in French already.
class ErreurUsage final : public CLI::ParseError {
public:
    explicit ErreurUsage(const std::string& message)
        : ParseError("Usage", message, CLI::ExitCodes::BaseClass) {}
};
