#pragma once

#include "Scene/kavoChanges.h"

#include <QObject>

/// Empties OpenSG's change list in each round of the event loop and reports what it held.
///
/// OpenSG only appends to the list, so the host must empty it. The list holds every edit, so views
/// learn of edits here instead of comparing values. One monitor a process.
class kavoChangeMonitor : public QObject
{
    Q_OBJECT

public:
    /// Needs change lists that were writable at osgInit (ChangeList::setReadWriteDefault).
    explicit kavoChangeMonitor(QObject *parent = nullptr);

    /// Empties the list now. The event loop calls this in each round.
    void drain();

signals:
    /// Never empty, and never emitted within the edit itself.
    void changed(const kavoChanges &changes);
};
