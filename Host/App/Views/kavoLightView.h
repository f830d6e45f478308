#pragma once

#include <QTreeView>

class kavoLightModel;
class kavoOpenScene;

/// The Lights window. Lights can be switched with their check box and dragged away, several at
/// once; a double click or Enter selects the light's node.
class kavoLightView : public QTreeView
{
    Q_OBJECT

public:
    explicit kavoLightView(kavoOpenScene &scene, QWidget *parent = nullptr);

private:
    kavoLightModel *m_model;
};
