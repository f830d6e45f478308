#pragma once

#include <OpenSG/OSGNode.h>

#include <string>
#include <unordered_map>
#include <vector>

/// Visits a node and all below it, parents before children, and knows the path of each.
///
/// A path is made of the names from the scene's root down, each after a slash: "/Car/Wheel[2]". The
/// second and further siblings of one name have their number among these; the characters / % [ ] of
/// a name, and bytes that are no UTF-8, are written as % and two hexadecimal digits. So paths are
/// UTF-8, and no two nodes of a scene have the same.
class kavoPathWalk
{
public:
    explicit kavoPathWalk(const osg::NodePtr &root);

    /// Goes on to the next node, at first to the root. Null nodes are passed over.
    /// \returns false if there is none
    bool next();

    const osg::NodePtr &node() const { return m_node; }
    const std::string &path() const { return m_path; }
    /// The node's display name, empty if it has none.
    const char *name() const { return m_name; }

    /// A path without the numbers of siblings.
    static std::string withoutNumbers(const std::string &path);

private:
    struct Level
    {
        osg::NodePtr node;
        osg::UInt32 nextChild;
        std::size_t pathLength;
        std::unordered_map<std::string, int> names; ///< how many children had it so far
    };

    void visit(const osg::NodePtr &node, int number);

    osg::NodePtr m_root;
    osg::NodePtr m_node;
    const char *m_name = "";
    std::string m_path;
    std::vector<Level> m_levels;
};
