#include "tests/conformance/Adapter.h"

namespace user {

/// The steps that come out otherwise on the real screen.
const std::vector<Difference>& Differences() {
  static const std::vector<Difference> rows{
      {"marks", "boot small", "the offscreen display cannot become smaller"},
      {"marks", "put close-card 1", "fault: the input is nobody's when its window unloads"},
      {"marks", "put open-card 1", "fault: and comes back with the next window that is shown"},
  };
  return rows;
}

}  // namespace user
