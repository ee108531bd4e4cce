#include <cstdio>
#include <cstdlib>

#include "judges/EveningProof.h"
#include "judges/ShuffleStatistics.h"

// Plays evenings at the running table and holds them against the law of luck: velmora_evening
// [EVENINGS [SEED]], by default 1100 evenings, of a hundred hands each where no shoe ends.

int main(int argc, char** argv) {
  const int evenings = argc > 1 ? std::atoi(argv[1]) : 1100;
  const std::uint64_t seed = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 1;
  const EveningProof proof = fncProveEvenings(evenings, seed);
  std::printf("%d evenings, %d hands; the law of %d evenings on a grid\n", proof.Evenings,
              proof.Hands, proof.Gridded);
  std::printf("  ends within the band of 50 %%: %.1f %% of seats, within that of 90 %%: %.1f %%\n",
              50.0 * proof.InHalf / proof.Evenings, 50.0 * proof.InNine / proof.Evenings);
  ChiSquare places;
  places.prcAddAlike(proof.Tenths);
  std::printf("  places in tenths: chi-square %.1f of 9 degrees\n", places.Sum);
  std::printf("  mean luck in its errors: seat 1 %+.2f, seat 2 %+.2f, both %+.2f\n",
              proof.Deviation[0], proof.Deviation[1], proof.Deviation[2]);
  std::printf(proof.fncHolds() ? "All that is told holds.\n" : "What is told does not hold.\n");
  return proof.fncHolds() ? EXIT_SUCCESS : EXIT_FAILURE;
}
