#pragma once

#include "kavoRowSpinBox.h"

#include <QSpinBox>

/// Spin box for whole numbers that takes a typed number whole or not at all: digits past the range
/// are not swallowed, the old value comes back instead.
class kavoIntSpinBox : public kavoRowSpinBox<QSpinBox>
{
    Q_OBJECT

public:
    using kavoRowSpinBox::kavoRowSpinBox;

    /// Numbers from 2^31 to 2^32 - 1 can be typed as well, for the negative ones of the same bits.
    void takeUnsigned();

    QString textFromValue(int value) const override;
    int valueFromText(const QString &text) const override;
    QValidator::State validate(QString &text, int &position) const override;

private:
    bool m_takesUnsigned = false;
};
