#include "table/BaccTable.h"

BaccTableWindow BaccTable;
