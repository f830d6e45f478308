#pragma once

#include <QTreeView>

class kavoCameraModel;
class kavoChangeMonitor;
class kavoSceneEvents;

/// The Cameras window. Cameras can be dragged away, several at once; a double click or Enter makes
/// one the active camera.
class kavoCameraView : public QTreeView
{
    Q_OBJECT

public:
    kavoCameraView(kavoSceneEvents &events, kavoChangeMonitor &monitor, QWidget *parent = nullptr);

signals:
    void activeCameraChanged();

private:
    kavoCameraModel *m_model;
};
