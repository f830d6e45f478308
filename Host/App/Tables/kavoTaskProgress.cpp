#include "Tables/kavoTaskProgress.h"

#include "Scene/kavoNodeWalk.h"

#include <algorithm>
#include <utility>

namespace {

constexpr unsigned reportInterval = 1024;

unsigned countNodes(const osg::NodePtr &root)
{
    unsigned count = 0;
    kavoNodeWalk::forEachNode(root, [&count](const osg::NodePtr &) {
        ++count;
        return true;
    });
    return count;
}

} // namespace

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
