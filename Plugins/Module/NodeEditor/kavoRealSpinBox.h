#pragma once

#include "kavoRowSpinBox.h"

#include <QDoubleSpinBox>

#include <limits>

/// Spin box for real numbers of any magnitude. Keeps every normal double exactly and shows its
/// shortest text (kavoRealText). Accepts exponents, and both point and comma as decimal point.
class kavoRealSpinBox : public kavoRowSpinBox<QDoubleSpinBox>
{
    Q_OBJECT

public:
    explicit kavoRealSpinBox(QWidget *parent = nullptr);

    void stepBy(int steps) override;
    QString textFromValue(double value) const override;
    double valueFromText(const QString &text) const override;
    QValidator::State validate(QString &text, int &position) const override;

private:
    double m_reached = std::numeric_limits<double>::quiet_NaN();
};
