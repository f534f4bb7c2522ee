#pragma once

#include <CLI/CLI.hpp>
#include <memory>
#include <vector>

#include "cli/Choices.h"

// Exit statuses.
constexpr int exit_success = 0;
constexpr int exit_failure = 1;  // something was reported
constexpr int exit_trouble = 2;  // wrong usage, and failures of searches, as with grep and diff

/// One command of the program: its options with their defaults and checks, and what it does.
class Command {
public:
    Command() = default;
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;
    virtual ~Command();

    /// Adds the command to the program, without options.
    void add_to(CLI::App& program);
    /// Adds its options, with what they may be to `choices`.
    void add_options(Choices& choices);
    /// Its name.
    std::string name() const { return command_->get_name(); }
    /// Whether it tells of the options of all.
    virtual bool tells_of_all() const { return false; }
    /// Whether the arguments that were parsed ask for it.
    bool is_chosen() const { return command_->parsed(); }
    /// Does it; returns the exit status. Throws what it cannot go on after.
    virtual int run() = 0;
    /// The exit status when it cannot go on.
    virtual int trouble() const { return exit_failure; }

protected:
    /// Adds the command without options.
    virtual CLI::App* add_command(CLI::App& program) = 0;
    virtual void add_options(CLI::App& command, Choices& choices);

private:
    CLI::App* command_ = nullptr;
};

// The commands, in the order in which help and manual tell of them; a file each.

std::unique_ptr<Command> make_convert_command();
std::unique_ptr<Command> make_show_command();
std::unique_ptr<Command> make_find_command();
std::unique_ptr<Command> make_fields_command();
std::unique_ptr<Command> make_search_command();
std::unique_ptr<Command> make_compare_command();
std::unique_ptr<Command> make_set_command();
std::unique_ptr<Command> make_check_command();
std::unique_ptr<Command> make_targets_command();
std::unique_ptr<Command> make_manual_command();
std::unique_ptr<Command> make_completion_command();
