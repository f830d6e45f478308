#include "Viewport/kavoRenderLights.h"

#include "Scene/kavoContainers.h"
#include "Viewport/kavoRenderItems.h"

#include <OpenSG/OSGDirectionalLight.h>
#include <OpenSG/OSGPointLight.h>
#include <algorithm>

namespace {

QVector4D localPosition(const osg::LightPtr &light)
{
    if (const auto sun = osg::DirectionalLightPtr::dcast(light); sun != osg::NullFC) {
        const osg::Vec3f direction = sun->getDirection();
        return QVector4D(direction[0], direction[1], direction[2], 0);
    }
    const auto lamp = osg::PointLightPtr::dcast(light);
    const osg::Pnt3f position = lamp == osg::NullFC ? osg::Pnt3f() : lamp->getPosition();
    return QVector4D(position[0], position[1], position[2], 1);
}

kavoRenderLight convert(const osg::LightPtr &light)
{
    const osg::NodePtr beacon = light->getBeacon();
    const QMatrix4x4 toWorld
        = beacon == osg::NullFC ? QMatrix4x4() : kavoRenderItems::toMatrix(beacon->getToWorld());
    const osg::Color4f color = light->getDiffuse();
    // Files use different units of strength, so a strong light only keeps its hue.
    const float strongest = std::max({ 1.0f, color.red(), color.green(), color.blue() });
    return { toWorld * localPosition(light),
        QVector3D(color.red(), color.green(), color.blue()) / strongest };
}

} // namespace

std::vector<kavoRenderLight> kavoRenderLights::of(
    const kavoOpenScene::Entries &lights, const QVector3D &eye)
{
    std::vector<kavoRenderLight> result;
    for (const kavoOpenScene::Entry &entry : lights) {
        const auto light = osg::LightPtr::dcast(kavoContainers::find(entry.core));
        if (light != osg::NullFC && light->getOn() && int(result.size()) < maximum)
            result.push_back(convert(light));
    }
    if (result.empty())
        result.push_back({ QVector4D(eye, 1), QVector3D(1, 1, 1) });
    return result;
}
