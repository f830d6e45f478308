#pragma once

#include <OpenSG/OSGNode.h>

#include <QObject>
#include <vector>

class kavoChangeMonitor;
class kavoSceneEvents;
struct kavoChanges;

/// The materials and lights of the open scene, found by one walk for all views that list them.
class kavoSceneIndex : public QObject
{
    Q_OBJECT

public:
    /// A node and what its core brings into the scene, as container ids.
    struct Entry
    {
        osg::UInt32 node;
        osg::UInt32 core;
        osg::UInt32 content; ///< of a material group its material or 0, of a light the core again

        bool operator==(const Entry &other) const;
    };
    using Entries = std::vector<Entry>;

    kavoSceneIndex(kavoSceneEvents &events, kavoChangeMonitor &monitor, QObject *parent = nullptr);

    /// Nodes whose core is a MaterialGroup, in the order of a walk of the scene.
    const Entries &materials() const { return m_materials; }

    /// Nodes whose core is a light.
    const Entries &lights() const { return m_lights; }

signals:
    void materialsChanged();
    void lightsChanged();

    /// Nodes of the open scene were added, removed or moved, or got another core.
    void structureChanged();

private:
    void rebuild();
    void collect(const osg::NodePtr &node, Entries &materials, Entries &lights) const;
    void update(const kavoChanges &changes);
    bool materialWasReplaced(const kavoChanges &changes) const;

    osg::UInt32 m_root = 0;
    Entries m_materials, m_lights;
};
