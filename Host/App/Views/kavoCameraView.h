#pragma once

#include <QTreeView>

class kavoCameraModel;
class kavoOpenScene;

/// The Cameras window. Cameras can be dragged away, several at once; a double click or Enter makes
/// one the active camera.
class kavoCameraView : public QTreeView
{
    Q_OBJECT

public:
    explicit kavoCameraView(kavoOpenScene &scene, QWidget *parent = nullptr);

signals:
    void activeCameraChanged();

private:
    kavoCameraModel *m_model;
};
