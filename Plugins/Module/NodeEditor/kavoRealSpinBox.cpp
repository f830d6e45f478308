#include "kavoRealSpinBox.h"

#include "kavoRealText.h"

#include <QDoubleValidator>

#include <limits>

namespace {

// QDoubleSpinBox rounds to its decimals. With as many as a double may need it rounds nothing away.
constexpr int allDecimals
    = std::numeric_limits<double>::max_exponent10 + std::numeric_limits<double>::digits10;

// The digits that survive adding a step, so that 0.1 + 0.2 is shown as 0.3.
double withoutRoundingNoise(double value)
{
    return QString::number(value, 'g', std::numeric_limits<double>::digits10).toDouble();
}

}

kavoRealSpinBox::kavoRealSpinBox(QWidget *parent)
    : QDoubleSpinBox(parent)
{
    setDecimals(allDecimals);
    setKeyboardTracking(false);
}

void kavoRealSpinBox::stepBy(int steps)
{
    setValue(withoutRoundingNoise(value() + steps * singleStep()));
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
