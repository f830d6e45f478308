#pragma once

#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGMaterial.h>

#include <QVector3D>
#include <QVector>

/// The part of a material that pictures and viewport show: colours, shininess, opacity and texture.
/// Read from the chunks of a ChunkMaterial or from a SimpleMaterial.
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
