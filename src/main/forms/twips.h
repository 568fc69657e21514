#pragma once
// Measures of the main window are kept in twips, as setting.ini holds them:
// 1440 twips an inch, at the screen's logical resolution.
int TwipsToPixelsX(double twips);
int TwipsToPixelsY(double twips);
int PixelsToTwipsX(int pixels);
int PixelsToTwipsY(int pixels);
