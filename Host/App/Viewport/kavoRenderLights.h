#pragma once

#include "Scene/kavoOpenScene.h"

#include <QVector3D>
#include <QVector4D>
#include <vector>

/// A light as a shader takes it.
struct kavoRenderLight
{
    QVector4D position; ///< in the world; a direction to the light where w is 0
    QVector3D color;
};

/// The lights that are on. A file's lights are meant for all of its scene, so the viewport lets
/// each shine everywhere and not only below its node.
namespace kavoRenderLights {

/// What the shader has room for.
constexpr int maximum = 4;

/// At most `maximum` lights; a lamp at the eye where none is on.
std::vector<kavoRenderLight> of(
    const kavoOpenScene::Entries &lights, const QVector3D &eye);

} // namespace kavoRenderLights
