#pragma once

#include <kavoModuleBase.h>

/// The host's own ear for the messages and calls that reach modules, turned into signals.
class kavoSceneEvents : public kavoModuleBase
{
    Q_OBJECT

public:
    kavoSceneEvents();
    ~kavoSceneEvents() override;

    bool receivedMessage(kavoMessage &message) override;

signals:
    /// Another scene is in place: kavoScenegraph::getRoot() tells.
    void sceneReset();

    /// kavoScenegraph::getSelectedNode() has a new answer.
    void selectionChanged();

    /// A module asked for new pictures of the materials. Never emitted within the call itself.
    void materialRenderingRequested();
};
