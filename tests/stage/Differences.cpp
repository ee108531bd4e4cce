#include "tests/conformance/Adapter.h"

namespace user {

/// The steps that come out otherwise on the real screen.
const std::vector<Difference>& Differences() {
  static const std::vector<Difference> rows{
      {"marks", "boot small", "the offscreen display cannot become smaller"},
      {"marks", "put close-card 1", "fault: the input is nobody's when its window unloads"},
      {"marks", "put open-card 1", "fault: and comes back with the next window that is shown"},
      {"marks", "put card-hidden 1", "fault: the same when it is hidden"},
      {"bets", "click duokkortos(0)", "fault: a refused press eats the next click"},
      {"bets", "click lblPBetInc5(0)", "fault: the same"},
      {"statistics", "", "fault: the stake boxes cannot be reached by mouse"},
  };
  return rows;
}

}  // namespace user
