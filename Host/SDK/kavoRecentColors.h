#pragma once

#include <QColor>
#include <QVector>

/// The colours that the user chose last, newest first, kept in the application's settings.
class kavoRecentColors
{
public:
    static constexpr int maxColors = 14;

    static QVector<QColor> load();

    /// Puts the colour in front, where it had been elsewhere too.
    static void add(const QColor &color);
};
