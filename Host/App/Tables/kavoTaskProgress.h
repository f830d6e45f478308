#pragma once

#include <OpenSG/OSGNodePtr.h>

#include <functional>

/// Receives the progress of a long task, from 0 to 100 percent. \returns false to cancel the task
using kavoMonitor = std::function<bool(int percent)>;

/// Counts the nodes that a task has visited, and reports to a monitor every 1024 nodes.
class kavoTaskProgress
{
public:
    /// \param passes how often the task visits each node
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
