#include "Scene/kavoOpenScene.h"

// The index was connected before, so it is up to date when these signals arrive.
kavoOpenScene::kavoOpenScene(QObject *parent)
    : QObject(parent)
{
    connect(&m_monitor, &kavoChangeMonitor::changed, this, &kavoOpenScene::changed);
    connect(&m_messages, &kavoHostMessages::sceneReset, this, &kavoOpenScene::replaced);
    connect(
        &m_messages, &kavoHostMessages::selectionChanged, this, &kavoOpenScene::selectionChanged);
    connect(&m_messages, &kavoHostMessages::materialRenderingRequested, this,
        &kavoOpenScene::materialRenderingRequested);
    connect(&m_index, &kavoCoreIndex::structureChanged, this, &kavoOpenScene::structureChanged);
    connect(&m_index, &kavoCoreIndex::materialsChanged, this, &kavoOpenScene::materialsChanged);
    connect(&m_index, &kavoCoreIndex::lightsChanged, this, &kavoOpenScene::lightsChanged);
}
