#pragma once

#include "Views/kavoListDescription.h"

/// The lists of the host. The scene must outlive the lists.
namespace kavoHostLists {

/// Nodes that hold a material (their core is a MaterialGroup). Activation shows the material in the
/// node editor.
kavoListDescription materials(const kavoOpenScene &scene);

/// Lights, with a check box that switches the light. Activation selects the light's node.
kavoListDescription lights(const kavoOpenScene &scene);

/// Cameras, each with the node that places it. Activation makes the camera the active one.
kavoListDescription cameras();

} // namespace kavoHostLists
