#pragma once

#include <QColor>

/// Red, green and blue; 0 to 1 is what a screen shows, other values are kept.
struct kavoRgbColor
{
    double red = 0;
    double green = 0;
    double blue = 0;
};

/// Hue in degrees, 0 to 360; saturation and value 0 to 1 for colours that a screen shows.
struct kavoHsvColor
{
    double hue = 0;
    double saturation = 0;
    double value = 0;
};

/// A grey has no hue of its own: it takes the one given.
kavoHsvColor toHsv(const kavoRgbColor &color, double hueOfGrey = 0);
kavoRgbColor toRgb(const kavoHsvColor &color);

/// The nearest colour that a screen shows.
QColor toScreen(const kavoRgbColor &color);
QColor toScreen(const kavoHsvColor &color);
kavoRgbColor fromScreen(const QColor &color);
