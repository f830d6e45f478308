#pragma once

#include "Scene/kavoOpenScene.h"

#include <QVector3D>
#include <QVector4D>
#include <vector>

/// A light in the form that the shader needs.
struct kavoRenderLight
{
    QVector4D position; ///< in world space; if w is 0, the direction to the light
    QVector3D color;
};

/// Lists the lights that are on. Files mean their lights for the whole scene, so each light shines
/// everywhere and not only on the nodes below it.
namespace kavoRenderLights {

/// The size of the shader's arrays.
constexpr int maximum = 4;

/// At most `maximum` lights. If no light is on, one light at the eye.
std::vector<kavoRenderLight> of(const kavoOpenScene::Entries &lights, const QVector3D &eye);

} // namespace kavoRenderLights
