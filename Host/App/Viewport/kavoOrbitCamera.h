#pragma once

#include <QMatrix4x4>
#include <QQuaternion>
#include <QSize>
#include <QVector3D>

/// A camera that looks at a target and turns round it.
class kavoOrbitCamera
{
public:
    /// Looks at the whole of a sphere, from where it is seen from now.
    void fit(const QVector3D &center, float radius);

    /// Looks from a place as a camera does that looks along its negative z axis.
    /// \param fov across the shorter side of the window, in degrees
    void place(const QMatrix4x4 &toWorld, float fov);

    /// Movements of the pointer in pixels.
    void orbit(const QPoint &pixels);
    void pan(const QPoint &pixels, const QSize &window);

    /// \param factor of the distance, below 1 to come closer
    void zoom(float factor);

    QMatrix4x4 view() const;
    QMatrix4x4 projection(const QSize &window) const;
    QVector3D eye() const;

private:
    QVector3D m_target;
    QQuaternion m_rotation = QQuaternion::fromEulerAngles(-25, 35, 0);
    float m_distance = 5;
    float m_radius = 1; // of the scene, round m_center
    QVector3D m_center;
    float m_fov = 40;
};
