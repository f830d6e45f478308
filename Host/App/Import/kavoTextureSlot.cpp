#include "Import/kavoTextureSlot.h"

kavoTextureSlot kavoTextureSlot::of(const aiMaterial &material)
{
    for (aiTextureType type : { aiTextureType_DIFFUSE, aiTextureType_BASE_COLOR }) {
        aiString path;
        aiTextureMapMode modes[3] = { aiTextureMapMode_Wrap, aiTextureMapMode_Wrap };
        if (material.GetTexture(type, 0, &path, nullptr, nullptr, nullptr, nullptr, modes)
            == aiReturn_SUCCESS) {
            return { QString::fromUtf8(path.C_Str()), modes[0], modes[1] };
        }
    }
    return {};
}
