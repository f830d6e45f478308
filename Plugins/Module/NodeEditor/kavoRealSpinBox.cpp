#include "kavoRealSpinBox.h"

#include "kavoRealText.h"

#include <QDoubleValidator>

#include <cmath>

namespace {

// QDoubleSpinBox rounds to its number of decimals. This many are enough for every normal double.
constexpr int allDecimals
    = std::numeric_limits<double>::max_exponent10 + std::numeric_limits<double>::digits10;

// Drops the last digits, so that 0.1 + 0.2 is shown as 0.3.
double withoutRoundingNoise(double value)
{
    return QString::number(value, 'g', std::numeric_limits<double>::digits10).toDouble();
}

// Returns a tenth of the value's power of ten.
double stepFor(double value)
{
    return value == 0 ? 0.1 : std::pow(10, std::floor(std::log10(std::abs(value))) - 1);
}

} // namespace

kavoRealSpinBox::kavoRealSpinBox(QWidget *parent)
    : kavoRowSpinBox(parent)
{
    setDecimals(allDecimals);
}

// Steps from the typed number. Consecutive steps have the size of the first one, so stepping down
// from 1 passes 0 in tenths.
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

// Unedited text stands for the exact value, of which it may show fewer digits.
double kavoRealSpinBox::valueFromText(const QString &text) const
{
    return text == textFromValue(value()) ? value() : locale().toDouble(text);
}

// Both point and comma are decimal points here. As group separator, one of them would turn 0,5 into
// 5.
QValidator::State kavoRealSpinBox::validate(QString &text, int &position) const
{
    text.replace('.', locale().decimalPoint());
    text.replace(',', locale().decimalPoint());
    QDoubleValidator validator(minimum(), maximum(), allDecimals);
    validator.setLocale(locale());
    return validator.validate(text, position);
}
