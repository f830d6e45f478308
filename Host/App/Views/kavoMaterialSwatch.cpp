#include "Views/kavoMaterialSwatch.h"

#include "Scene/kavoImageConverter.h"

#include <QtMath>
#include <algorithm>

namespace {

constexpr int maxTextureSize = 64; // pixels; a swatch cannot show more
const QVector3D toEye(0, 0, 1);
const QVector3D toLamp = QVector3D(-0.5f, 0.7f, 0.8f).normalized();

QRgb toRgb(const QVector3D &color, float coverage)
{
    const auto channel = [](float value) { return qRound(std::clamp(value, 0.0f, 1.0f) * 255); };
    return qRgba(channel(color.x()), channel(color.y()), channel(color.z()), channel(coverage));
}

QImage shrunk(const QImage &image)
{
    if (image.isNull())
        return image;
    const QImage small = image.width() <= maxTextureSize && image.height() <= maxTextureSize
        ? image
        : image.scaled(
            maxTextureSize, maxTextureSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return small.convertToFormat(QImage::Format_RGB32);
}

} // namespace

kavoMaterialSwatch::kavoMaterialSwatch(const kavoMaterialLook &look, int size)
    : m_look(look)
    , m_texture(shrunk(kavoImageConverter::toImage(look.texture)))
    , m_size(size)
{
}

QImage kavoMaterialSwatch::render() const
{
    QImage image(m_size, m_size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    const float radius = m_size / 2.0f;
    for (int y = 0; y < m_size; ++y) {
        auto *row = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < m_size; ++x) {
            const QVector3D across((x + 0.5f - radius) / radius, (radius - y - 0.5f) / radius, 0);
            const float distance = across.length();
            const float coverage = std::min(1.0f, (1 - distance) * radius + 0.5f);
            if (coverage <= 0)
                continue;
            const QVector3D normal
                = across + toEye * std::sqrt(std::max(0.0f, 1 - distance * distance));
            const QVector3D lit = color(normal);
            row[x] = toRgb(lit * m_look.opacity + ground(x, y) * (1 - m_look.opacity), coverage);
        }
    }
    return image;
}

QVector3D kavoMaterialSwatch::color(const QVector3D &normal) const
{
    const QVector3D base = m_look.diffuse * texel(normal);
    if (!m_look.lit)
        return base;
    const float lambert = std::max(0.0f, QVector3D::dotProduct(normal, toLamp));
    const QVector3D half = (toLamp + toEye).normalized();
    const float gloss = std::pow(
        std::max(0.0f, QVector3D::dotProduct(normal, half)), std::max(1.0f, m_look.shininess));
    return m_look.emission + m_look.ambient * texel(normal) * 0.3f + base * lambert
        + m_look.specular * gloss;
}

/// The colour of the texture, which is wrapped once round the sphere. White without a texture.
QVector3D kavoMaterialSwatch::texel(const QVector3D &normal) const
{
    if (m_texture.isNull())
        return QVector3D(1, 1, 1);
    const float u = 0.5f + std::atan2(normal.x(), normal.z()) / float(M_PI) / 2;
    const float v = std::acos(std::clamp(normal.y(), -1.0f, 1.0f)) / float(M_PI);
    const QRgb pixel = m_texture.pixel(std::min(int(u * m_texture.width()), m_texture.width() - 1),
        std::min(int(v * m_texture.height()), m_texture.height() - 1));
    return QVector3D(qRed(pixel), qGreen(pixel), qBlue(pixel)) / 255;
}

QVector3D kavoMaterialSwatch::ground(int x, int y) const
{
    const int square = std::max(1, m_size / 6);
    const float grey = (x / square + y / square) % 2 ? 0.6f : 0.9f;
    return QVector3D(grey, grey, grey);
}
