#pragma once

#include <kavoModuleBase.h>

/// Receives messages and calls like a module and emits them as signals.
class kavoSceneEvents : public kavoModuleBase
{
    Q_OBJECT

public:
    kavoSceneEvents();
    ~kavoSceneEvents() override;

    bool receivedMessage(kavoMessage &message) override;

signals:
    /// Another scene is open.
    void sceneReset();

    void selectionChanged();

    /// A module asked for new pictures of the materials. Emitted after its call has returned.
    void materialRenderingRequested();
};
