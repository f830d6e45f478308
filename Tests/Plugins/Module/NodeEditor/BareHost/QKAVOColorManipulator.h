#pragma once

#include <QWidget>

#include <array>

class QKAVOColorManipulator : public QWidget
{
    Q_OBJECT

public:
    QKAVOColorManipulator(QWidget *parent, const char *name);

    void setColor(float red, float green, float blue);
    std::array<float, 4> getColor();

signals:
    void colorChanged();
};
