#pragma once

#include <QTreeView>

class kavoChangeMonitor;
class kavoLightModel;
class kavoSceneIndex;

/// The Lights window. Lights can be switched with their check box and dragged away, several at
/// once; a double click or Enter selects the light's node.
class kavoLightView : public QTreeView
{
    Q_OBJECT

public:
    kavoLightView(
        kavoChangeMonitor &monitor, const kavoSceneIndex &index, QWidget *parent = nullptr);

private:
    kavoLightModel *m_model;
};
