#pragma once

/// Names of the callbacks that host and modules share.
namespace kavoCallNames {

/// Called by modules after they change a material; the host renders its material views again. No
/// attributes.
constexpr char updateMatRender[] = "updateMatRender";
/// Called by the host to show a material. Attribute "material": an osg::MaterialPtr.
constexpr char updateNodeEditorByMaterial[] = "updateNodeEditorByMaterial";

} // namespace kavoCallNames
