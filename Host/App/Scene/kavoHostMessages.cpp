#include "Scene/kavoHostMessages.h"

#include <kavoCallNames.h>
#include <kavoController.h>
#include <kavoMessageIds.h>

namespace {

kavoHostMessages *listener = nullptr;

void requestMaterialRendering(kavoMessage &)
{
    // Queued, because the caller may be within an edit.
    QMetaObject::invokeMethod(
        listener, &kavoHostMessages::materialRenderingRequested, Qt::QueuedConnection);
}

} // namespace

kavoHostMessages::kavoHostMessages()
    : kavoModuleBase(
        "Scene Views", "Host", kavoMessageIds::sceneLoaded | kavoMessageIds::selectionChanged)
{
    listener = this;
    kavoController::addCB(kavoCallNames::updateMatRender, requestMaterialRendering);
}

kavoHostMessages::~kavoHostMessages()
{
    kavoController::subCB(kavoCallNames::updateMatRender, requestMaterialRendering);
    listener = nullptr;
}

bool kavoHostMessages::receivedMessage(kavoMessage &message)
{
    if (message.id() == kavoMessageIds::selectionChanged)
        emit selectionChanged();
    else
        emit sceneReset();
    return true;
}
