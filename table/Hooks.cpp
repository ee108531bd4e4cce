#include "table/Hooks.h"

GameHooks hooks;
