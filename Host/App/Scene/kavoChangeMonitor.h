#pragma once

#include "Scene/kavoChanges.h"

#include <QObject>

/// Empties OpenSG's change list once in each round of the event loop and tells what it held.
///
/// OpenSG only appends to the list, so somebody has to empty it; and it knows every edit, whoever
/// made it, so views learn of edits here instead of comparing values. One monitor a process.
class kavoChangeMonitor : public QObject
{
    Q_OBJECT

public:
    /// Change lists must have been made writable before osgInit (ChangeList::setReadWriteDefault).
    explicit kavoChangeMonitor(QObject *parent = nullptr);

    /// Empties the list now. Called by the event loop; tests may call it themselves.
    void drain();

signals:
    /// Never empty, and never emitted within the edit itself.
    void changed(const kavoChanges &changes);
};
