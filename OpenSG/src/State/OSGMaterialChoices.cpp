#include <OpenSG/OSGMultiPassMaterial.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <set>
#include <utility>
#include <vector>

OSG_BEGIN_NAMESPACE

namespace {

MaterialPtr at(const MFMaterialPtr &materials, UInt32 index)
{
    return index < materials.size() ? materials[index] : MaterialPtr();
}

MaterialPtr chosenBy(const SwitchMaterial &choice)
{
    return at(choice.getMaterials(), choice.getChoice());
}

// Returns NULL for a material of another class, including derived classes. A derived class may
// choose its parts differently and has to avoid endless loops itself.
template <class MaterialT> const MaterialT *exactly(const MaterialPtr &material)
{
    const bool isOfType = material->getType() == MaterialT::getClassType();
    return isOfType ? dynamic_cast<const MaterialT *>(material.getCPtr()) : nullptr;
}

// A loop, because materials can be nested deeper than the stack allows, and in circles.
StatePtr stateOf(MaterialPtr material, UInt32 index)
{
    std::set<std::pair<UInt32, UInt32>> visited;
    while (material && visited.emplace(material.getFieldContainerId(), index).second) {
        if (const auto *choice = exactly<SwitchMaterial>(material)) {
            material = chosenBy(*choice);
        } else if (const auto *passes = exactly<MultiPassMaterial>(material)) {
            material = at(passes->getMaterials(), std::exchange(index, 0));
        } else {
            return material->getState(index);
        }
    }
    return NullFC;
}

bool isAnyTransparent(std::vector<MaterialPtr> materials)
{
    std::set<UInt32> visited;
    while (!materials.empty()) {
        const MaterialPtr material = materials.back();
        materials.pop_back();
        if (!material || !visited.insert(material.getFieldContainerId()).second) {
            continue;
        }
        const bool followsParts
            = material->getTransparencyMode() == Material::TransparencyAutoDetection;
        const auto *choice = followsParts ? exactly<SwitchMaterial>(material) : nullptr;
        const auto *passes = followsParts ? exactly<MultiPassMaterial>(material) : nullptr;
        if (choice) {
            materials.push_back(chosenBy(*choice));
        } else if (passes) {
            const MFMaterialPtr &parts = passes->getMaterials();
            materials.insert(materials.end(), parts.begin(), parts.end());
        } else if (material->isTransparent()) {
            return true;
        }
    }
    return false;
}

} // namespace

StatePtr MultiPassMaterial::getState(UInt32 index)
{
    return stateOf(at(_mfMaterials, index), 0);
}

bool MultiPassMaterial::hasTransparentPart() const
{
    return isAnyTransparent({ _mfMaterials.begin(), _mfMaterials.end() });
}

StatePtr SwitchMaterial::getState(UInt32 index)
{
    return stateOf(chosenBy(*this), index);
}

bool SwitchMaterial::hasTransparentPart() const
{
    return isAnyTransparent({ chosenBy(*this) });
}

OSG_END_NAMESPACE
