#include "Import/kavoLightBuilder.h"

#include "Import/kavoAssimpTypes.h"

#include <OpenSG/OSGDirectionalLight.h>
#include <OpenSG/OSGPointLight.h>
#include <OpenSG/OSGSpotLight.h>
#include <assimp/light.h>

using namespace kavoAssimpTypes;

namespace {

osg::LightPtr buildDirectional(const aiLight &light)
{
    auto result = osg::DirectionalLight::create();
    result->setDirection(toVector(-light.mDirection)); // OpenSG's direction points to the light
    return result;
}

osg::LightPtr buildSpot(const aiLight &light)
{
    auto result = osg::SpotLight::create();
    result->setPosition(toPoint(light.mPosition));
    result->setDirection(toVector(light.mDirection));
    result->setSpotCutOff(light.mAngleOuterCone / 2); // OpenSG measures from the axis
    return result;
}

osg::LightPtr buildPoint(const aiLight &light)
{
    auto result = osg::PointLight::create();
    result->setPosition(toPoint(light.mPosition));
    return result;
}

osg::LightPtr buildKind(const aiLight &light)
{
    switch (light.mType) {
    case aiLightSource_DIRECTIONAL:
        return buildDirectional(light);
    case aiLightSource_SPOT:
        return buildSpot(light);
    default:
        return buildPoint(light);
    }
}

} // namespace

osg::LightPtr kavoLightBuilder::build(const aiLight &light)
{
    osg::LightPtr result = buildKind(light);
    const osg::CPEditor edit(result);
    result->setAmbient(toColor(light.mColorAmbient));
    result->setDiffuse(toColor(light.mColorDiffuse));
    result->setSpecular(toColor(light.mColorSpecular));
    result->setConstantAttenuation(light.mAttenuationConstant);
    result->setLinearAttenuation(light.mAttenuationLinear);
    result->setQuadraticAttenuation(light.mAttenuationQuadratic);
    return result;
}
