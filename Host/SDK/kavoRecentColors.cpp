#include "kavoRecentColors.h"

#include <QSettings>

#include <algorithm>

namespace kavoRecentColors {

namespace {

const QString settingsKey = QStringLiteral("ColorPicker/recent");

} // namespace

QVector<QColor> load()
{
    QVector<QColor> colors;
    for (const QVariant &color : QSettings().value(settingsKey).toList())
        colors.append(color.value<QColor>());
    colors.erase(std::remove_if(colors.begin(), colors.end(),
                     [](const QColor &color) { return !color.isValid(); }),
        colors.end());
    return colors.mid(0, maxColors);
}

void add(const QColor &color)
{
    QVector<QColor> colors = load();
    colors.removeAll(color);
    colors.prepend(color);
    QVariantList list;
    for (const QColor &recent : colors.mid(0, maxColors))
        list.append(recent);
    QSettings().setValue(settingsKey, list);
}

} // namespace kavoRecentColors
