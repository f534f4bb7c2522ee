#pragma once

/// The least number of positions by which the numbers of equal atoms in a cell go up: the greatest
/// common divisor of the multiplicities of all positions, for a group by its number, from 1 to 230,
/// with so many operations.
int step_of_multiplicities(int number, int operations);
