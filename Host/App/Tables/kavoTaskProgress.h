#pragma once

#include <OpenSG/OSGNodePtr.h>

#include <functional>

/// Hears from a long task how far it is, 0 to 100 percent. \returns whether to go on
using kavoMonitor = std::function<bool(int percent)>;

/// Counts the nodes that a task has done and tells its monitor now and then.
class kavoTaskProgress
{
public:
    /// \param passes how often the task visits each node at or below the root
    /// \param monitor may be empty
    kavoTaskProgress(const osg::NodePtr &root, int passes, kavoMonitor monitor);

    /// \returns false once the monitor has canceled the task
    bool advance(unsigned nodes = 1);

private:
    kavoMonitor m_monitor;
    unsigned m_total = 0;
    unsigned m_done = 0;
    unsigned m_reported = 0;
    bool m_isCanceled = false;
};
