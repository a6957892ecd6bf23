// The subcommands. Each adds itself to the program, and leaves the exit status of its run in
// status.
#pragma once

#include <CLI/CLI.hpp>

void addBuild(CLI::App* program, int* status);
void addCheck(CLI::App* program, int* status);
void addDiff(CLI::App* program, int* status);
void addLayout(CLI::App* program, int* status);
void addPack(CLI::App* program, int* status);
void addPlot(CLI::App* program, int* status);
void addRoundtrip(CLI::App* program, int* status);
void addShow(CLI::App* program, int* status);
void addUnpack(CLI::App* program, int* status);
