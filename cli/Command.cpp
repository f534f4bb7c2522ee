#include "cli/Command.h"

Command::~Command() = default;

void Command::add_to(CLI::App& program) { command_ = add_command(program); }

void Command::add_options(Choices& choices) { add_options(*command_, choices); }

void Command::add_options(CLI::App& /*command*/, Choices& /*choices*/) {}
