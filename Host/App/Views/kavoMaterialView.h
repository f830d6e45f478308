#pragma once

#include <QTreeView>

class kavoChangeMonitor;
class kavoMaterialModel;
class kavoSceneEvents;
class kavoSceneIndex;

/// The Materials window. Materials can be dragged away, several at once; a double click or Enter
/// shows one in the node editor.
class kavoMaterialView : public QTreeView
{
    Q_OBJECT

public:
    kavoMaterialView(kavoSceneEvents &events, kavoChangeMonitor &monitor,
        const kavoSceneIndex &index, QWidget *parent = nullptr);

private:
    void showInEditor(const QModelIndex &index);

    kavoMaterialModel *m_model;
};
