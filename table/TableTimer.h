#pragma once

/// A tick of the table timer: four flash the labels of the result, the fifth reopens the table.
void Timer1_Timer();
