#include "Scene/kavoSceneEvents.h"

#include <kavoCallNames.h>
#include <kavoController.h>
#include <kavoMessageIds.h>

namespace {

kavoSceneEvents *listener = nullptr;

void requestMaterialRendering(kavoMessage &)
{
    // Queued, because the caller may be within an edit.
    QMetaObject::invokeMethod(
        listener, &kavoSceneEvents::materialRenderingRequested, Qt::QueuedConnection);
}

} // namespace

kavoSceneEvents::kavoSceneEvents()
    : kavoModuleBase(
        "Scene Views", "Host", kavoMessageIds::sceneLoaded | kavoMessageIds::selectionChanged)
{
    listener = this;
    kavoController::addCB(kavoCallNames::updateMatRender, requestMaterialRendering);
}

kavoSceneEvents::~kavoSceneEvents()
{
    kavoController::subCB(kavoCallNames::updateMatRender, requestMaterialRendering);
    listener = nullptr;
}

bool kavoSceneEvents::receivedMessage(kavoMessage &message)
{
    if (message.id() == kavoMessageIds::selectionChanged)
        emit selectionChanged();
    else
        emit sceneReset();
    return true;
}
