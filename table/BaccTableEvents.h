#pragma once

// What the table's controls do: the one place that ties each to its handler, whoever has that.

/// Gives the table window its name, kind and events.
void prcPrepareBaccTable();
