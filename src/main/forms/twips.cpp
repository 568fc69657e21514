#include "main/forms/twips.h"

#include <QGuiApplication>
#include <QScreen>
#include <cmath>

namespace {
double DpiX() {
    QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->logicalDotsPerInchX() : 96.0;
}
double DpiY() {
    QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->logicalDotsPerInchY() : 96.0;
}
}  // namespace

int TwipsToPixelsX(double twips) { return int(std::lround(twips * DpiX() / 1440.0)); }
int TwipsToPixelsY(double twips) { return int(std::lround(twips * DpiY() / 1440.0)); }
int PixelsToTwipsX(int pixels) { return int(std::lround(pixels * 1440.0 / DpiX())); }
int PixelsToTwipsY(int pixels) { return int(std::lround(pixels * 1440.0 / DpiY())); }
