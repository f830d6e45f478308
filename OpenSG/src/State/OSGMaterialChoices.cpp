#include <OpenSG/OSGMultiPassMaterial.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <algorithm>

OSG_BEGIN_NAMESPACE

StatePtr MultiPassMaterial::getState(UInt32 index)
{
    const bool present = index < _mfMaterials.size() && _mfMaterials[index];
    return present ? _mfMaterials[index]->getState() : StatePtr();
}

bool MultiPassMaterial::hasTransparentPart() const
{
    return std::any_of(_mfMaterials.begin(), _mfMaterials.end(),
        [](const MaterialPtr &material) { return material && material->isTransparent(); });
}

StatePtr SwitchMaterial::getState(UInt32 index)
{
    const MaterialPtr material = chosen();
    return material ? material->getState(index) : StatePtr();
}

bool SwitchMaterial::hasTransparentPart() const
{
    const MaterialPtr material = chosen();
    return material && material->isTransparent();
}

MaterialPtr SwitchMaterial::chosen() const
{
    return getChoice() < _mfMaterials.size() ? _mfMaterials[getChoice()] : MaterialPtr();
}

OSG_END_NAMESPACE
