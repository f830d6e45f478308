#pragma once

#include <QString>
#include <assimp/material.h>

/// The texture of a material's base colour, the only one that the scene graph shows.
struct kavoTextureSlot
{
    QString path; ///< as in the file; empty if there is no texture
    aiTextureMapMode wrapS = aiTextureMapMode_Wrap;
    aiTextureMapMode wrapT = aiTextureMapMode_Wrap;

    static kavoTextureSlot of(const aiMaterial &material);
};
