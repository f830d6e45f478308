#pragma once

#include <OpenSG/OSGNode.h>

#include <QObject>
#include <vector>

class kavoChangeMonitor;
class kavoHostMessages;
struct kavoChanges;

/// Lists the nodes of the open scene that hold a material or a light, found in one walk.
class kavoCoreIndex : public QObject
{
    Q_OBJECT

public:
    /// Container ids of a node and of what its core brings into the scene.
    struct Entry
    {
        osg::UInt32 node;
        osg::UInt32 core;
        osg::UInt32 content; ///< the material of a material group or 0; for a light the core

        bool operator==(const Entry &other) const;
    };
    using Entries = std::vector<Entry>;

    kavoCoreIndex(kavoHostMessages &events, kavoChangeMonitor &monitor, QObject *parent = nullptr);

    /// Nodes whose core is a MaterialGroup, parents before children.
    const Entries &materials() const { return m_materials; }

    /// Nodes whose core is a light.
    const Entries &lights() const { return m_lights; }

signals:
    void materialsChanged();
    void lightsChanged();

    /// Nodes of the scene were added, removed or moved, or have another core.
    void structureChanged();

private:
    void rebuild();
    void collect(const osg::NodePtr &node, Entries &materials, Entries &lights) const;
    void update(const kavoChanges &changes);
    bool materialWasReplaced(const kavoChanges &changes) const;

    osg::UInt32 m_root = 0;
    Entries m_materials, m_lights;
};
