#pragma once

#include "Scene/kavoChangeMonitor.h"
#include "Scene/kavoCoreIndex.h"
#include "Scene/kavoHostMessages.h"

#include <QObject>

/// What is open and what happens to it: the one object that views of the scene depend on.
///
/// The root node itself is kavoScenegraph::getRoot(), the selection
/// kavoScenegraph::getSelectedNode().
class kavoOpenScene : public QObject
{
    Q_OBJECT

public:
    using Entry = kavoCoreIndex::Entry;
    using Entries = kavoCoreIndex::Entries;

    /// Needs osgInit with writable change lists. One object a process.
    explicit kavoOpenScene(QObject *parent = nullptr);

    /// Nodes whose core is a MaterialGroup, parents before children.
    const Entries &materials() const { return m_index.materials(); }
    /// Nodes whose core is a light, parents before children.
    const Entries &lights() const { return m_index.lights(); }

    /// Emits `changed` for the edits made so far instead of in the next round of the event loop.
    void drainChanges() { m_monitor.drain(); }

signals:
    /// Another scene is open.
    void replaced();
    void selectionChanged();
    /// What changed in one round of the event loop. Never empty; never emitted within an edit.
    void changed(const kavoChanges &changes);
    /// Nodes of the scene were added, removed or moved, or have another core.
    void structureChanged();
    void materialsChanged();
    void lightsChanged();
    /// A module asked for new pictures of the materials. Emitted after its call has returned.
    void materialRenderingRequested();

private:
    kavoChangeMonitor m_monitor;
    kavoHostMessages m_messages;
    kavoCoreIndex m_index { m_messages, m_monitor };
};
