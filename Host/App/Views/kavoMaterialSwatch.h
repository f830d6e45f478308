#pragma once

#include "Scene/kavoMaterialLook.h"

#include <QImage>

/// A small picture of a material: a sphere in the light of one lamp, before a chequered ground
/// where it lets light through.
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
