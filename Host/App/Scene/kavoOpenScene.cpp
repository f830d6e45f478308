#include "Scene/kavoOpenScene.h"

// The index was connected before, so it is up to date when these signals arrive.
kavoOpenScene::kavoOpenScene(QObject *parent)
    : QObject(parent)
{
    connect(&m_monitor, &kavoChangeMonitor::changed, this, &kavoOpenScene::changed);
    connect(&m_events, &kavoSceneEvents::sceneReset, this, &kavoOpenScene::replaced);
    connect(&m_events, &kavoSceneEvents::selectionChanged, this, &kavoOpenScene::selectionChanged);
    connect(&m_events, &kavoSceneEvents::materialRenderingRequested, this,
        &kavoOpenScene::materialRenderingRequested);
    connect(&m_index, &kavoSceneIndex::structureChanged, this, &kavoOpenScene::structureChanged);
    connect(&m_index, &kavoSceneIndex::materialsChanged, this, &kavoOpenScene::materialsChanged);
    connect(&m_index, &kavoSceneIndex::lightsChanged, this, &kavoOpenScene::lightsChanged);
}
