#pragma once

#include "kavoRecordedRow.h"

#include <QTreeWidget>

/// Shows rows in a bare tree widget of two columns. Each group is filled before it enters the tree.
/// We know no cheaper tree of the same rows in Qt.
class BenchFloor : public QTreeWidget
{
public:
    BenchFloor();

    void build(const kavoRecordedRow &top);
};
