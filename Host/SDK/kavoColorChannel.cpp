#include "kavoColorChannel.h"

#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QtColorWidgets/GradientSlider>

#include <algorithm>

namespace {

constexpr int sliderSteps = 1000;
constexpr int sliderPage = 50;
// Six linear sections reproduce every hue exactly, and every other component.
constexpr int gradientStretches = 6;

} // namespace

double kavoColorChannel::Part::value(const kavoHsvColor &color) const
{
    return ofHsv ? color.*ofHsv : kavoColorSpace::toRgb(color).*ofRgb;
}

kavoHsvColor kavoColorChannel::Part::withValue(kavoHsvColor color, double value) const
{
    if (ofHsv) {
        color.*ofHsv = value;
        return color;
    }
    kavoRgbColor rgb = kavoColorSpace::toRgb(color);
    rgb.*ofRgb = value;
    return kavoColorSpace::toHsv(rgb, color.hue);
}

kavoColorChannel::kavoColorChannel(const Part &part, QGridLayout *grid, QWidget *parent)
    : QObject(parent)
    , m_part(part)
{
    createSlider(parent);
    createField(parent);
    auto *label = new QLabel(QString(tr(part.name).at(0)), parent);
    label->setToolTip(tr(part.name));
    const int row = grid->rowCount();
    grid->addWidget(label, row, 0);
    grid->addWidget(m_slider, row, 1);
    grid->addWidget(m_field, row, 2);
}

void kavoColorChannel::createSlider(QWidget *parent)
{
    m_slider = new color_widgets::GradientSlider(Qt::Horizontal, parent);
    m_slider->setObjectName(QLatin1String(m_part.name) + QStringLiteral("Slider"));
    m_slider->setRange(0, sliderSteps);
    m_slider->setPageStep(sliderPage);
    m_slider->setFocusPolicy(Qt::ClickFocus);
    m_slider->setToolTip(tr(m_part.name));
    m_slider->setAccessibleName(tr(m_part.name));
    connect(m_slider, &QSlider::valueChanged, this,
        [this](int position) { edit(position * m_part.maximum / sliderSteps); });
}

void kavoColorChannel::createField(QWidget *parent)
{
    m_field = new QDoubleSpinBox(parent);
    m_field->setObjectName(QLatin1String(m_part.name) + QStringLiteral("Field"));
    m_field->setDecimals(m_part.decimals);
    m_field->setSingleStep(m_part.step);
    m_field->setSuffix(QString::fromUtf8(m_part.suffix));
    m_field->setRange(0, m_part.maximum);
    m_field->setToolTip(tr(m_part.name));
    m_field->setAccessibleName(tr(m_part.name));
    connect(m_field, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
        &kavoColorChannel::edit);
}

void kavoColorChannel::edit(double value)
{
    emit edited(m_part.withValue(m_color, value));
}

void kavoColorChannel::show(const kavoHsvColor &color, bool fromHere)
{
    m_color = color;
    const double value = m_part.value(color);
    const QSignalBlocker sliderBlocker(m_slider);
    const QSignalBlocker fieldBlocker(m_field);
    showGradient();
    if (!fromHere || !m_slider->hasFocus())
        m_slider->setValue(qRound(value * sliderSteps / m_part.maximum));
    if (fromHere && m_field->hasFocus())
        return;
    // Shows components beyond the range of a screen too.
    m_field->setRange(std::min(0.0, value), std::max(m_part.maximum, value));
    m_field->setValue(value);
}

void kavoColorChannel::showGradient()
{
    QVector<QColor> colors;
    for (int i = 0; i <= gradientStretches; ++i)
        colors.append(kavoColorSpace::toScreen(
            m_part.withValue(m_color, i * m_part.maximum / gradientStretches)));
    m_slider->setColors(colors);
}
