#pragma once

#include "Scene/kavoMaterialLook.h"

#include <QImage>

/// Renders a small picture of a material: a sphere lit by one lamp. A chequered ground shows
/// through a transparent material.
class kavoMaterialSwatch
{
public:
    /// \param size width and height in pixels, above 0
    kavoMaterialSwatch(const kavoMaterialLook &look, int size);

    QImage render() const;

private:
    QVector3D color(const QVector3D &normal) const;
    QVector3D texel(const QVector3D &normal) const;
    QVector3D ground(int x, int y) const;

    kavoMaterialLook m_look;
    QImage m_texture;
    int m_size;
};
