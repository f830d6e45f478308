#pragma once

#include <OpenSG/OSGNodePtr.h>

#include <QGroupBox>

class QCheckBox;
class QRadioButton;

/// Asks which nodes an export takes: the scene or the selected part of it, all or visible ones.
class kavoExportScopeBox : public QGroupBox
{
    Q_OBJECT

public:
    explicit kavoExportScopeBox(QWidget *parent = nullptr);

    /// The root of the scene, or the selected node; null without a scene.
    osg::NodePtr root() const;
    /// Also nodes that are not fully visible.
    bool takesAllNodes() const;

private:
    QRadioButton *m_wholeScene;
    QRadioButton *m_selection;
    QCheckBox *m_allNodes;
};
