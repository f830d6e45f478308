#pragma once

/// Names for kavoController::addCB and kavoController::call that host and modules share.
namespace kavoCallNames {

/// Called by a module after it changed a material: the host renders its material views anew.
/// No attributes.
constexpr char updateMatRender[] = "updateMatRender";
/// Called by the host to show a material. Attribute "material": exactly an osg::MaterialPtr.
constexpr char updateNodeEditorByMaterial[] = "updateNodeEditorByMaterial";

} // namespace kavoCallNames
