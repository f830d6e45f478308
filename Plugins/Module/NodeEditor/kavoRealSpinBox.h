#pragma once

#include <QDoubleSpinBox>

/// Spin box for real numbers of any magnitude: holds a value to its last bit, shows it by its
/// shortest text (kavoRealText), takes exponents, takes point and comma for the decimal point, and
/// tells of a change when the typing is done.
class kavoRealSpinBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    explicit kavoRealSpinBox(QWidget *parent = nullptr);

    void stepBy(int steps) override;
    QString textFromValue(double value) const override;
    double valueFromText(const QString &text) const override;
    QValidator::State validate(QString &text, int &position) const override;
};
