#pragma once

#include <QTreeView>

class kavoMaterialModel;
class kavoOpenScene;

/// The Materials window. Materials can be dragged away, several at once; a double click or Enter
/// shows one in the node editor.
class kavoMaterialView : public QTreeView
{
    Q_OBJECT

public:
    explicit kavoMaterialView(kavoOpenScene &scene, QWidget *parent = nullptr);

private:
    void showInEditor(const QModelIndex &index);

    kavoMaterialModel *m_model;
};
