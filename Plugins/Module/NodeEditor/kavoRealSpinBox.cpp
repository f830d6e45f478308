#include "kavoRealSpinBox.h"

#include "kavoRealText.h"

#include <QDoubleValidator>

#include <cmath>

namespace {

// QDoubleSpinBox rounds to its decimals. With as many as a normal double may need it rounds nothing
// away.
constexpr int allDecimals
    = std::numeric_limits<double>::max_exponent10 + std::numeric_limits<double>::digits10;

// The digits that survive adding a step, so that 0.1 + 0.2 is shown as 0.3.
double withoutRoundingNoise(double value)
{
    return QString::number(value, 'g', std::numeric_limits<double>::digits10).toDouble();
}

// A tenth of the value's magnitude.
double stepFor(double value)
{
    return value == 0 ? 0.1 : std::pow(10, std::floor(std::log10(std::abs(value))) - 1);
}

}

kavoRealSpinBox::kavoRealSpinBox(QWidget *parent)
    : kavoRowSpinBox(parent)
{
    setDecimals(allDecimals);
}

// Steps from what is typed. A run of steps keeps the size of its first one: down from 1 it goes in
// tenths to 0 and beyond.
void kavoRealSpinBox::stepBy(int steps)
{
    const double from = hasAcceptableInput() ? locale().toDouble(text()) : value();
    if (from != m_reached)
        setSingleStep(stepFor(from));
    setValue(withoutRoundingNoise(from + steps * singleStep()));
    m_reached = locale().toDouble(text());
    selectAll();
}

QString kavoRealSpinBox::textFromValue(double value) const
{
    return kavoRealText(value, locale());
}

// Text that the user left alone stands for the value that it was made from.
double kavoRealSpinBox::valueFromText(const QString &text) const
{
    return text == textFromValue(value()) ? value() : locale().toDouble(text);
}

// Point and comma both are the decimal point here. Taken for a group separator, one of them would
// turn 0,5 into 5.
QValidator::State kavoRealSpinBox::validate(QString &text, int &position) const
{
    text.replace('.', locale().decimalPoint());
    text.replace(',', locale().decimalPoint());
    QDoubleValidator validator(minimum(), maximum(), allDecimals);
    validator.setLocale(locale());
    return validator.validate(text, position);
}
