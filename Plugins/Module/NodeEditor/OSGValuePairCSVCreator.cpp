#include "OSGValuePairCSVCreator.h"

#include <OSGValuePairBase.h>
#include <kavoNodeQueries.h>
#include <kavoNodeUtils.h>

#include <cerrno>
#include <fstream>
#include <iostream>
#include <utility>

OSG_BEGIN_NAMESPACE

namespace {

ValuePairBase *valuePairsOf(const NodePtr &node)
{
    const AttachmentPtr found
        = kavoNodeQueries::findAttachment(node, ValuePairBase::getClassType());
    return found == NullFC ? nullptr : static_cast<ValuePairBase *>(found.getCPtr());
}

} // namespace

ValuePairCSVCreator::ValuePairCSVCreator(const char *name)
    : SingleTypeGraphOp<NodeCore>(name)
{
    std::cout << "ValuePairCSVCreator::ValuePairCSVCreator" << std::endl;
}

// Deliberate: prints the destructor's line.
GraphOp *ValuePairCSVCreator::create()
{
    std::cout << "ValuePairCSVCreator::~ValuePairCSVCreator" << std::endl;
    return new ValuePairCSVCreator("ValuePairCSVCreator");
}

ValuePairCSVCreator::~ValuePairCSVCreator()
{
    std::cout << "ValuePairCSVCreator::~ValuePairCSVCreator" << std::endl;
}

void ValuePairCSVCreator::setParams(const std::string)
{
}

std::string ValuePairCSVCreator::usage()
{
    return std::string();
}

void ValuePairCSVCreator::setCsvType(bool takesAllNodes)
{
    m_takesAllNodes = takesAllNodes;
}

void ValuePairCSVCreator::setMonitor(std::function<bool()> monitor)
{
    m_monitor = std::move(monitor);
    m_entered = 0;
    m_isStopped = false;
}

bool ValuePairCSVCreator::travNodeEnter(const NodePtr &node)
{
    gather(node);
    return false;
}

bool ValuePairCSVCreator::travNodeEnter(NodePtr node)
{
    return (this->*ByReference(&ValuePairCSVCreator::travNodeEnter))(node);
}

bool ValuePairCSVCreator::travNodeLeave(const NodePtr &)
{
    return true;
}

bool ValuePairCSVCreator::travNodeLeave(NodePtr node)
{
    return (this->*ByReference(&ValuePairCSVCreator::travNodeLeave))(node);
}

Action::ResultE ValuePairCSVCreator::traverseEnter(const NodePtr &node)
{
    askMonitor();
    return call(&ValuePairCSVCreator::travNodeEnter, node);
}

Action::ResultE ValuePairCSVCreator::traverseEnter(NodePtr &node)
{
    return traverseEnter(std::as_const(node));
}

Action::ResultE ValuePairCSVCreator::traverseLeave(const NodePtr &node, Action::ResultE)
{
    return call(&ValuePairCSVCreator::travNodeLeave, node);
}

Action::ResultE ValuePairCSVCreator::traverseLeave(NodePtr &node, Action::ResultE result)
{
    return traverseLeave(std::as_const(node), result);
}

void ValuePairCSVCreator::askMonitor()
{
    if (m_monitor && ++m_entered % monitorInterval == 0)
        m_isStopped = m_isStopped || !m_monitor();
}

// Some OpenSG libraries pass nodes without a core.
Action::ResultE ValuePairCSVCreator::call(ByValue callback, const NodePtr &node)
{
    if (m_isStopped)
        return Action::Quit;
    if (node != NullFC && node->getCore() != NullFC)
        (this->*callback)(node);
    return Action::Continue;
}

void ValuePairCSVCreator::gather(const NodePtr &node)
{
    if (!m_takesAllNodes && !kavoNodeQueries::isFullyVisible(node))
        return;
    const char *name = kavoNodeUtils::getName(node);
    m_table.addName(name ? name : "");
    const ValuePairBase *pairs = valuePairsOf(node);
    if (pairs && !pairs->getKeys().isEmpty())
        m_table.setPairs(UInt32(m_rowCount), pairs->getKeys(), pairs->getValues());
    ++m_rowCount;
    m_rowTotal = Int32(m_table.extend(UInt32(m_rowTotal)));
}

bool ValuePairCSVCreator::save(const std::string &fileName)
{
    errno = 0;
    std::ofstream file(fileName);
    const bool isOpen = file.good();
    if (isOpen)
        m_table.write(file, UInt32(m_rowTotal));
    file.close();
    m_saveError = file.good() ? 0 : (errno ? errno : EIO);
    if (!isOpen)
        std::cout << "File could not be opened" << std::endl;
    m_rowCount = 0;
    m_rowTotal = 0;
    return true;
}

OSG_END_NAMESPACE
