#pragma once

namespace bench {

/// Ten thousand hands of both seats in one evening: how fast the list and the course of the money
/// open on them, how long the chart takes to draw, and what memory they hold. Names end with the
/// scale in use.
void prcLongEvening();

}  // namespace bench
