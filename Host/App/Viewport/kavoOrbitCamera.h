#pragma once

#include <QMatrix4x4>
#include <QQuaternion>
#include <QSize>
#include <QVector3D>

/// A camera that turns round the target that it looks at.
class kavoOrbitCamera
{
public:
    /// Shows the whole sphere without a change of direction.
    void fit(const QVector3D &center, float radius);

    /// Takes the place of a camera that looks along its negative z axis.
    /// \param fov field of view across the shorter side of the window, in degrees
    void place(const QMatrix4x4 &toWorld, float fov);

    /// \param pixels movement of the pointer
    void orbit(const QPoint &pixels);
    void pan(const QPoint &pixels, const QSize &window);

    /// Multiplies the distance to the target by the factor.
    void zoom(float factor);

    QMatrix4x4 view() const;
    QMatrix4x4 projection(const QSize &window) const;
    QVector3D eye() const;

private:
    QVector3D m_target;
    QQuaternion m_rotation = QQuaternion::fromEulerAngles(-25, 35, 0);
    float m_distance = 5;
    float m_radius = 1; // the scene fits into this sphere round m_center
    QVector3D m_center;
    float m_fov = 40;
};
