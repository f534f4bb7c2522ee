#include "cli/Command.h"

Command::~Command() = default;

void Command::add_to(CLI::App& program, Choices& choices) {
    command_ = add_command(program);
    add_options(*command_, choices);
}

void Command::add_options(CLI::App& /*command*/, Choices& /*choices*/) {}
