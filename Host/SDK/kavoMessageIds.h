#pragma once

/// Identifiers of messages from the host to its modules. Each is one bit of the modules' message
/// masks.
namespace kavoMessageIds {

/// The open scene will be closed. No attributes.
constexpr int sceneCleared = 0x10;
/// A new scene was opened. No attributes.
constexpr int sceneLoaded = 0x20;
/// A node should be shown. Attribute "node": an osg::NodePtr.
constexpr int nodeShown = 0x100;
/// Nodes were added, removed or moved, or their cores were replaced. No attributes.
constexpr int sceneGraphChanged = 0x1000;
/// The result of kavoScenegraph::getSelectedNode() has changed. No attributes.
constexpr int selectionChanged = 0x80000;

} // namespace kavoMessageIds
