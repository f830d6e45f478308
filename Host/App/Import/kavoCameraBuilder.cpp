#include "Import/kavoCameraBuilder.h"

#include <OpenSG/OSGSimpleAttachments.h>
#include <assimp/camera.h>
#include <cmath>

namespace {

constexpr float defaultAspect = 4.0f / 3.0f;

// Assimp has the horizontal field of view, OpenSG the vertical one.
float verticalFov(const aiCamera &camera)
{
    const float aspect = camera.mAspect > 0 ? camera.mAspect : defaultAspect;
    return 2 * std::atan(std::tan(camera.mHorizontalFOV / 2) / aspect);
}

} // namespace

osg::PerspectiveCameraPtr kavoCameraBuilder::build(const aiCamera &camera)
{
    auto result = osg::PerspectiveCamera::create();
    const osg::CPEditor edit(result);
    osg::setName(result, camera.mName.C_Str());
    result->setNear(camera.mClipPlaneNear);
    result->setFar(camera.mClipPlaneFar);
    result->setFov(verticalFov(camera));
    return result;
}

osg::Matrix kavoCameraBuilder::placement(const aiCamera &camera)
{
    const aiVector3D back = (-camera.mLookAt).NormalizeSafe();
    const aiVector3D right = (aiVector3D(camera.mUp) ^ back).NormalizeSafe();
    const aiVector3D up = back ^ right;
    const aiVector3D &at = camera.mPosition;
    if (right.SquareLength() == 0) { // looks along its own up vector
        osg::Matrix matrix;
        matrix.setTranslate(at.x, at.y, at.z);
        return matrix;
    }
    return osg::Matrix(right.x, up.x, back.x, at.x, right.y, up.y, back.y, at.y, right.z, up.z,
        back.z, at.z, 0, 0, 0, 1);
}
