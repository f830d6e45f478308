#pragma once

#include <OpenSG/OSGNode.h>

#include <string>
#include <unordered_map>
#include <vector>

/// Visits a node and all nodes below it, parents before children, and computes the path of each.
///
/// A path lists the names from the root of the scene down to the node, as in "/Car/Wheel[2]". The
/// second Wheel below Car has the number 2, the first has none. In a name, the characters / % [ ]
/// and bytes that are not UTF-8 are written as % and two hexadecimal digits. Every path is valid
/// UTF-8 and unique in its scene.
class kavoPathWalk
{
public:
    explicit kavoPathWalk(const osg::NodePtr &root);

    /// Moves to the next node; the first call moves to the root. Skips null nodes.
    /// \returns false at the end
    bool next();

    const osg::NodePtr &node() const { return m_node; }
    const std::string &path() const { return m_path; }
    /// Returns the node's name, empty if it has none.
    const char *name() const { return m_name; }

    /// Returns the path without the numbers of siblings.
    static std::string withoutNumbers(const std::string &path);

private:
    struct Level
    {
        osg::NodePtr node;
        osg::UInt32 nextChild;
        std::size_t pathLength;
        std::unordered_map<std::string, int> names; ///< number of visited children by name
    };

    void visit(const osg::NodePtr &node, int number);

    osg::NodePtr m_root;
    osg::NodePtr m_node;
    const char *m_name = "";
    std::string m_path;
    std::vector<Level> m_levels;
};
