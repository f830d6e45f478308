#pragma once

#include "Tables/kavoTaskProgress.h"

#include <OpenSG/OSGNodePtr.h>

#include <QCoreApplication>
#include <QString>

/// Writes the value pairs of a scene by means of the graph operation "ValuePairCSVCreator".
class kavoValuePairExport
{
    Q_DECLARE_TR_FUNCTIONS(kavoValuePairExport)

public:
    /// \param root the scene or a part of it; null is an empty scene
    /// \param takesAllNodes also those that are not fully visible
    /// \returns false if the monitor canceled it; no file is left then
    /// \throws kavoTaskError if the file cannot be written; no part of it is left then
    static bool run(const osg::NodePtr &root, const QString &fileName, bool takesAllNodes,
        const kavoMonitor &monitor = {});
};
