#pragma once
// The screen's mouse pointer: 11 is the hourglass, 0 the default.
void SetScreenPointer(int shape);
int ScreenPointer();
