#pragma once

#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGSceneFileHandler.h>

#include <string>

/// Scenes to and from text, with what the library logs on the way.
class SceneText
{
public:
    /// Takes over the log until it dies.
    SceneText();
    ~SceneText();

    /// The scene as it is in the text; null if there is none. It lives until the next is read.
    osg::NodePtr read(const std::string &text);
    /// The first thing in the text that is no comment.
    osg::NodePtr readFirst(const std::string &text);
    std::string write(const osg::NodePtr &node);
    std::string writeCore(const osg::NodeCorePtr &core);

    /// All lines of the log since the last call.
    std::string takeLog();

private:
    std::string m_log;
    osg::NodeRefPtr m_scene;
};

/// The text of a node with a core of the type.
std::string nodeWithCore(const std::string &type, const std::string &body);
