#include "kavoTaskProgress.h"

#include <OpenSG/OSGNode.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

constexpr unsigned reportInterval = 1024;

unsigned countNodes(const osg::NodePtr &root)
{
    unsigned count = 0;
    std::vector<osg::NodePtr> open { root };
    while (!open.empty()) {
        const osg::NodePtr node = open.back();
        open.pop_back();
        if (node == osg::NullFC)
            continue;
        ++count;
        for (osg::UInt32 i = 0; i < node->getNChildren(); ++i)
            open.push_back(node->getChild(i));
    }
    return count;
}

}

kavoTaskProgress::kavoTaskProgress(const osg::NodePtr &root, int passes, kavoMonitor monitor)
    : m_monitor(std::move(monitor))
{
    if (m_monitor)
        m_total = countNodes(root) * unsigned(passes);
}

bool kavoTaskProgress::advance(unsigned nodes)
{
    m_done += nodes;
    if (!m_monitor || m_isCanceled || m_done - m_reported < reportInterval)
        return !m_isCanceled;
    m_reported = m_done;
    const double share = double(m_done) / std::max(m_done, m_total);
    m_isCanceled = !m_monitor(int(100 * share));
    return !m_isCanceled;
}
