#pragma once

#include "kavoRecordedRow.h"

#include <QTreeWidget>

/// The least that any tree of these rows costs in Qt: a bare tree widget of two columns, each
/// group filled before it enters the tree.
class BenchFloor : public QTreeWidget
{
public:
    BenchFloor();

    void build(const kavoRecordedRow &top);
};
