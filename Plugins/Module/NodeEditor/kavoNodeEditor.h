#pragma once

#include "kavoGetFromMessage.h"

#include <kavoModuleBase.h>

#include <OpenSG/OSGNodePtr.h>

class kavoFCEditorWidget;
class kavoNodeEditorGUIW;

/// The editor module: docks the window, follows the host's selection and shows materials that the
/// host passes to it. Shows nothing while its window is hidden.
class kavoNodeEditor : public kavoModuleBase
{
    Q_OBJECT

public:
    kavoNodeEditor();
    ~kavoNodeEditor() override;

    QWidget *getWidget() const override;
    void init() override;
    /// Handles kavoMessageIds::sceneCleared, nodeShown and selectionChanged.
    /// \returns false
    bool receivedMessage(kavoMessage &message) override;

    /// Callback "updateNodeEditorByMaterial": shows the attribute "material", an osg::MaterialPtr.
    /// Does nothing while the window is hidden.
    static void updateByMaterial(kavoMessage &message);

    /// Shows a node and its name in the window's title; null empties the editor.
    void setNode(osg::NodePtr node);

    /// The module that was created last. Deliberate: never reset, because the module is destroyed
    /// at process exit only.
    static kavoNodeEditor *_the;

private slots:
    void show();
    void editedField();

private:
    void dispatch(const kavoMessage &message);
    void showAttributeNode(const kavoMessage &message);

    kavoFCEditorWidget *m_editor = nullptr;
    kavoNodeEditorGUIW *m_window = nullptr;
};
