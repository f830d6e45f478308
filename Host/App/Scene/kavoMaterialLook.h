#pragma once

#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGMaterial.h>

#include <QVector3D>
#include <QVector>

/// What a material looks like, as far as a small picture or a simple viewport can show it: colours
/// and shininess of a ChunkMaterial's material chunk or of a SimpleMaterial, and its texture.
struct kavoMaterialLook
{
    QVector3D diffuse { 0.8f, 0.8f, 0.8f }; ///< red, green, blue from 0 to 1
    QVector3D ambient { 0.2f, 0.2f, 0.2f };
    QVector3D specular;
    QVector3D emission;
    float shininess = 1;
    float opacity = 1;
    bool lit = true;
    bool cullsBack = false;
    osg::ImagePtr texture; ///< null for none

    /// Ids of all containers that the look depends on.
    QVector<osg::UInt32> sources;

    static kavoMaterialLook of(const osg::MaterialPtr &material);

private:
    void read(const osg::FieldContainerPtr &container);
};
