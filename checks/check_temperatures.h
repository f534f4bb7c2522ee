#pragma once

class CheckedEntry;

/// Temperatures of the cell, the measurement and melting: their units, and whether they agree.
void check_temperatures(CheckedEntry& entry);
