#pragma once

#include <string>
#include <vector>

#include "evening/Record.h"

/// One line for each decision of a hand, in their order, from the draw rules of the table: "Player
/// 5 draws", "Banker 4 draws against 6", "Player 6 stands", "Banker 9 is a natural".
std::vector<std::string> fncReasons(const EveningHand& hand);
