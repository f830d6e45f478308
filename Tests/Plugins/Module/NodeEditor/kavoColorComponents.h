#pragma once

#include <kavoCustomPropertyColor.h>

#include <QMetaType>
#include <QVector>

Q_DECLARE_METATYPE(colorVal)

/// Copies a colour into a form that tests can compare and print.
inline QVector<float> components(const colorVal &color)
{
    return { color.r, color.g, color.b, color.a };
}
