#pragma once

#include <kavoSDKExport.h>

#include <QIcon>

#include <string>

/// Finds icons by key: "ModuleNodeEditor", "Node", "Group", "Transform", "Geometry", "Material",
/// "Light", "Camera", "Scene", "Log", "Open", "Cancel", "Eyedropper".
class KAVO_SDK_EXPORT kavoIconManager
{
public:
    /// Returns the icon of the key, or of its variant if `sub` is not empty: "Node" with "Hidden"
    /// is the icon "Node-Hidden". The icons of the host follow the text colour of the application's
    /// palette. Other keys are looked up in the desktop's icon theme. Returns a null icon for an
    /// unknown key.
    static QIcon getIcon(const std::string &key, const std::string &sub = std::string());
};
