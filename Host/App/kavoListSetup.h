#pragma once

class QAbstractItemModel;
class QTreeView;

/// What the windows that list parts of the scene have in common.
class kavoListSetup
{
public:
    /// Whole rows, several at once, that can be dragged away but not dropped. The columns are name,
    /// type and id; names take the room.
    static void apply(QTreeView &view, QAbstractItemModel &model);
};
