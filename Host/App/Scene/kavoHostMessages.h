#pragma once

#include <kavoModuleBase.h>

/// Receives messages and calls like a module and emits them as signals.
class kavoHostMessages : public kavoModuleBase
{
    Q_OBJECT

public:
    kavoHostMessages();
    ~kavoHostMessages() override;

    bool receivedMessage(kavoMessage &message) override;

signals:
    /// Another scene is open.
    void sceneReset();

    void selectionChanged();

    /// A module asked for new pictures of the materials. Emitted after its call has returned.
    void materialRenderingRequested();
};
