#pragma once

#include <QString>
#include <assimp/material.h>

/// The one texture of a material that the scene graph shows: its base colour.
struct kavoTextureSlot
{
    QString path; ///< as the file spells it, empty without a texture
    aiTextureMapMode wrapS = aiTextureMapMode_Wrap;
    aiTextureMapMode wrapT = aiTextureMapMode_Wrap;

    static kavoTextureSlot of(const aiMaterial &material);
};
