#include "SceneText.h"

#include <OpenSG/OSGLog.h>

#include <sstream>

using namespace osg;

namespace {

void collect(const Char8 *data, Int32 size, void *log)
{
    static_cast<std::string *>(log)->append(data, size_t(size));
}

} // namespace

SceneText::SceneText()
{
    osgLog().setLogType(LOG_BUFFER, true);
    osgLog().getLogBuf().setCallback(collect, &m_log);
}

SceneText::~SceneText()
{
    osgLog().getLogBuf().setCallback(nullptr);
    osgLog().setLogType(LOG_STDERR, true);
}

NodePtr SceneText::read(const std::string &text)
{
    std::istringstream stream(text);
    m_scene = NodeRefPtr(SceneFileHandler::the().read(stream, "osg", nullptr));
    return m_scene.get();
}

NodePtr SceneText::readFirst(const std::string &text)
{
    const NodePtr root = read(text);
    return root ? root->getChild(0) : NodePtr();
}

std::string SceneText::write(const NodePtr &node)
{
    std::ostringstream stream;
    const bool ok = SceneFileHandler::the().write(node, stream, "osg");
    return ok ? stream.str() : std::string();
}

std::string SceneText::writeCore(const NodeCorePtr &core)
{
    const NodeRefPtr node(makeNodeFor(core));
    return write(node.get());
}

std::string SceneText::takeLog()
{
    std::string log;
    log.swap(m_log);
    return log;
}

std::string nodeWithCore(const std::string &type, const std::string &body)
{
    return "#OSG V1.0 \nNode { core " + type + " {\n" + body + "\n} }\n";
}
