#pragma once

#include <QColor>
#include <QVector>

/// The colours that the user chose last, stored in the application's settings.
namespace kavoRecentColors {

constexpr int maxColors = 14;

/// Returns the newest colour first.
QVector<QColor> load();

/// Adds the colour as the newest one and removes an earlier occurrence.
void add(const QColor &color);

} // namespace kavoRecentColors
