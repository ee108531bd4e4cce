#pragma once

#include "platform/Numbers.h"

/// A Deal button 0..3 is clicked: one run of hands, from the checks to the reopened table, the
/// flashing result or the end of the shoe. Another Index is faultSubscript.
void duokkortos_Click(Integer Index);
