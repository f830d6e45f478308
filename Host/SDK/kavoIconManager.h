#pragma once

#include <kavoSDKExport.h>

#include <QIcon>

#include <string>

/// Icons by key: "ModuleNodeEditor", "Node", "Group", "Transform", "Geometry", "Material", "Light",
/// "Camera", "Scene", "Log", "Open", "Cancel", "Eyedropper".
class KAVO_SDK_EXPORT kavoIconManager
{
public:
    /// The icon of the key, or of the key's variant where sub is not empty ("Node", "Hidden" is
    /// the icon "Node-Hidden"). Our own icons take the text colour of the application's palette
    /// each time they are painted. Keys that are not ours are looked up in the desktop's icon
    /// theme; an unknown one gives a null icon.
    static QIcon getIcon(const std::string &key, const std::string &sub = std::string());
};
