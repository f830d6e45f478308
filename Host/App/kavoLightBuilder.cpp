#include "kavoLightBuilder.h"

#include <OpenSG/OSGDirectionalLight.h>
#include <OpenSG/OSGPointLight.h>
#include <OpenSG/OSGSpotLight.h>
#include <assimp/light.h>

namespace {

osg::Vec3f toVector(const aiVector3D &v)
{
    return osg::Vec3f(v.x, v.y, v.z);
}

osg::LightPtr buildDirectional(const aiLight &light)
{
    auto result = osg::DirectionalLight::create();
    result->setDirection(toVector(-light.mDirection)); // OpenSG's direction leads to the light
    return result;
}

osg::LightPtr buildSpot(const aiLight &light)
{
    auto result = osg::SpotLight::create();
    result->setPosition(osg::Pnt3f(light.mPosition.x, light.mPosition.y, light.mPosition.z));
    result->setDirection(toVector(light.mDirection));
    result->setSpotCutOff(light.mAngleOuterCone / 2); // from the axis, not across the cone
    return result;
}

osg::LightPtr buildPoint(const aiLight &light)
{
    auto result = osg::PointLight::create();
    result->setPosition(osg::Pnt3f(light.mPosition.x, light.mPosition.y, light.mPosition.z));
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
    osg::beginEditCP(result);
    result->setAmbient(light.mColorAmbient.r, light.mColorAmbient.g, light.mColorAmbient.b, 1);
    result->setDiffuse(light.mColorDiffuse.r, light.mColorDiffuse.g, light.mColorDiffuse.b, 1);
    result->setSpecular(light.mColorSpecular.r, light.mColorSpecular.g, light.mColorSpecular.b, 1);
    result->setConstantAttenuation(light.mAttenuationConstant);
    result->setLinearAttenuation(light.mAttenuationLinear);
    result->setQuadraticAttenuation(light.mAttenuationQuadratic);
    osg::endEditCP(result);
    return result;
}
