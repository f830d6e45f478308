#pragma once

#include "kavoColorSpace.h"

#include <QObject>

namespace color_widgets {
class GradientSlider;
} // namespace color_widgets
class QDoubleSpinBox;
class QGridLayout;

/// Form row for one component of a colour: a letter, a slider on a gradient of the colours it leads
/// to, and a number field.
class kavoColorChannel : public QObject
{
    Q_OBJECT
public:
    /// Selects a component of one of the colour spaces and describes its row.
    struct Part
    {
        const char *name;
        double kavoHsvColor::*ofHsv;
        double kavoRgbColor::*ofRgb;
        double maximum;
        int decimals;
        double step;
        const char *suffix;

        double value(const kavoHsvColor &color) const;
        kavoHsvColor withValue(kavoHsvColor color, double value) const;
    };

    /// Adds the widgets, as children of `parent`, to the last row of `grid`.
    kavoColorChannel(const Part &part, QGridLayout *grid, QWidget *parent);

    /// Leaves the number field alone if the change comes from this row, because the user may be
    /// typing.
    void show(const kavoHsvColor &color, bool fromHere);

Q_SIGNALS:
    void edited(const kavoHsvColor &color);

private:
    void createSlider(QWidget *parent);
    void createField(QWidget *parent);
    void edit(double value);
    void showGradient();

    Part m_part;
    kavoHsvColor m_color;
    color_widgets::GradientSlider *m_slider = nullptr;
    QDoubleSpinBox *m_field = nullptr;
};
