#pragma once

/// Identifiers of the messages that the host sends to its modules. Each is one bit: a module's
/// message mask is the union of the identifiers that it wants to receive.
namespace kavoMessageIds {

/// The open scene is about to go away. No attributes.
constexpr int sceneCleared = 0x10;
/// A new scene is in place. No attributes.
constexpr int sceneLoaded = 0x20;
/// A node is to be shown. Attribute "node": the node, an osg::NodePtr.
constexpr int nodeShown = 0x100;
/// Nodes were added, removed or moved, or got another core. No attributes.
constexpr int sceneGraphChanged = 0x1000;
/// kavoScenegraph::getSelectedNode() gives a new answer. No attributes.
constexpr int selectionChanged = 0x80000;

} // namespace kavoMessageIds
