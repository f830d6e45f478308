#pragma once

#include "Views/kavoListKind.h"

/// The lists of the host. The scene must outlive the lists.
namespace kavoListKinds {

/// Nodes that hold a material (their core is a MaterialGroup). Activation shows the material in the
/// node editor.
kavoListKind materials(const kavoOpenScene &scene);

/// Lights, with a check box that switches the light. Activation selects the light's node.
kavoListKind lights(const kavoOpenScene &scene);

/// Cameras, each with the node that places it. Activation makes the camera the active one.
kavoListKind cameras();

} // namespace kavoListKinds
