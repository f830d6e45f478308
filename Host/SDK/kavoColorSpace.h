#pragma once

#include <QColor>

/// A screen displays components from 0 to 1; others are kept.
struct kavoRgbColor
{
    double red = 0;
    double green = 0;
    double blue = 0;
};

/// Hue in degrees, 0 to 360. Saturation and value are 0 to 1 for colours that a screen displays.
struct kavoHsvColor
{
    double hue = 0;
    double saturation = 0;
    double value = 0;
};

/// Conversions between the components of a colour.
namespace kavoColorSpace {

/// \param hueOfGrey the hue of the result if the colour is a grey
kavoHsvColor toHsv(const kavoRgbColor &color, double hueOfGrey = 0);
kavoRgbColor toRgb(const kavoHsvColor &color);

/// Returns the nearest colour that a screen displays.
QColor toScreen(const kavoRgbColor &color);
QColor toScreen(const kavoHsvColor &color);
kavoRgbColor fromScreen(const QColor &color);

} // namespace kavoColorSpace
