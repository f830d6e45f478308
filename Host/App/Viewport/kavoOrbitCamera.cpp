#include "Viewport/kavoOrbitCamera.h"

#include <QtMath>
#include <algorithm>

namespace {

constexpr float degreesPerPixel = 0.4f;
constexpr float fitFov = 40;
constexpr float nearToFar = 1e-4f; // what a depth buffer of 24 bits resolves

} // namespace

void kavoOrbitCamera::fit(const QVector3D &center, float radius)
{
    m_center = m_target = center;
    m_radius = radius > 0 ? radius : 1;
    m_fov = fitFov;
    m_distance = m_radius / std::sin(qDegreesToRadians(m_fov) / 2);
}

void kavoOrbitCamera::place(const QMatrix4x4 &toWorld, float fov)
{
    const QVector3D eye = toWorld.map(QVector3D());
    const QVector3D back = toWorld.mapVector(QVector3D(0, 0, 1)).normalized();
    const QVector3D up = toWorld.mapVector(QVector3D(0, 1, 0)).normalized();
    m_rotation = QQuaternion::fromDirection(back, up);
    m_fov = std::clamp(fov, 1.0f, 150.0f);
    m_distance = std::max(QVector3D::dotProduct(eye - m_center, back), m_radius * 0.1f);
    m_target = eye - back * m_distance;
}

void kavoOrbitCamera::orbit(const QPoint &pixels)
{
    const auto yaw = QQuaternion::fromAxisAndAngle(0, 1, 0, -pixels.x() * degreesPerPixel);
    const auto pitch = QQuaternion::fromAxisAndAngle(1, 0, 0, -pixels.y() * degreesPerPixel);
    m_rotation = (yaw * m_rotation * pitch).normalized();
}

void kavoOrbitCamera::pan(const QPoint &pixels, const QSize &window)
{
    const float unitsPerPixel = 2 * m_distance * std::tan(qDegreesToRadians(m_fov) / 2)
        / float(std::max(1, window.height()));
    m_target += m_rotation.rotatedVector(QVector3D(-pixels.x(), pixels.y(), 0) * unitsPerPixel);
}

void kavoOrbitCamera::zoom(float factor)
{
    m_distance = std::clamp(m_distance * factor, m_radius * 1e-3f, m_radius * 1e3f);
}

QMatrix4x4 kavoOrbitCamera::view() const
{
    QMatrix4x4 matrix;
    matrix.translate(0, 0, -m_distance);
    matrix.rotate(m_rotation.conjugated());
    matrix.translate(-m_target);
    return matrix;
}

QMatrix4x4 kavoOrbitCamera::projection(const QSize &window) const
{
    const float far = (eye() - m_center).length() + 2 * m_radius;
    const float near = std::max(far * nearToFar, (eye() - m_center).length() - 2 * m_radius);
    const float aspect = float(window.width()) / float(std::max(1, window.height()));
    const float halfHeight = std::tan(qDegreesToRadians(m_fov) / 2) / std::min(1.0f, aspect);
    QMatrix4x4 matrix;
    matrix.perspective(2 * qRadiansToDegrees(std::atan(halfHeight)), aspect, near, far);
    return matrix;
}

QVector3D kavoOrbitCamera::eye() const
{
    return m_target + m_rotation.rotatedVector(QVector3D(0, 0, m_distance));
}
