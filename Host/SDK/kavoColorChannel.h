#pragma once

#include "kavoColorSpace.h"

#include <QObject>

namespace color_widgets {
class GradientSlider;
}
class QDoubleSpinBox;
class QGridLayout;

/// One component of a colour as a row of a form: its letter, a slider that shows where it leads to,
/// and a number field.
class kavoColorChannel : public QObject
{
    Q_OBJECT
public:
    /// Which component, of one colour space or the other, and how the row shows it.
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

    /// The widgets become children of \a parent in the last row of \a grid.
    kavoColorChannel(const Part &part, QGridLayout *grid, QWidget *parent);

    /// The number field is left alone where the change comes from this row, for the user may be
    /// typing in it.
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
