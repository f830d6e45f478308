#pragma once

#include "kavoRowSpinBox.h"

#include <QSpinBox>

/// Spin box for whole numbers. Rejects a typed number as a whole if it is out of range, where
/// QSpinBox would ignore single digits.
class kavoIntSpinBox : public kavoRowSpinBox<QSpinBox>
{
    Q_OBJECT

public:
    using kavoRowSpinBox::kavoRowSpinBox;

    /// Also accepts numbers from 2^31 to 2^32 - 1 and stores them as the negative numbers with the
    /// same bits.
    void takeUnsigned();

    QString textFromValue(int value) const override;
    int valueFromText(const QString &text) const override;
    QValidator::State validate(QString &text, int &position) const override;

private:
    bool m_takesUnsigned = false;
};
