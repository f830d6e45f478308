#include "kavoIntSpinBox.h"

#include <limits>

void kavoIntSpinBox::takeUnsigned()
{
    m_takesUnsigned = true;
}

// QSpinBox does not remove the group separators of the lowest int.
QString kavoIntSpinBox::textFromValue(int value) const
{
    QLocale ungrouped = locale();
    ungrouped.setNumberOptions(locale().numberOptions() | QLocale::OmitGroupSeparator);
    return ungrouped.toString(value);
}

int kavoIntSpinBox::valueFromText(const QString &text) const
{
    return static_cast<int>(locale().toLongLong(text));
}

QValidator::State kavoIntSpinBox::validate(QString &text, int &) const
{
    const bool isSign = text == '-' || text == locale().negativeSign();
    if (text.isEmpty() || (isSign && minimum() < 0))
        return QValidator::Intermediate;
    bool isNumber = false;
    const qint64 number = locale().toLongLong(text, &isNumber);
    if (!isNumber)
        return QValidator::Invalid;
    const qint64 largest = m_takesUnsigned ? std::numeric_limits<quint32>::max() : maximum();
    const bool isInRange = number >= minimum() && number <= largest;
    return isInRange ? QValidator::Acceptable : QValidator::Intermediate;
}
