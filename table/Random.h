#pragma once

#include <cstdint>

/// Starts the random sequence from a seed. Equal seeds give equal sequences on every machine.
void prcSeedRandom(std::uint64_t seed);

/// The next value, uniform over the 2^24 single-precision steps of [0, 1).
float fncRandom();
