#pragma once

#include "kavoGetFromMessage.h"

#include <kavoModuleBase.h>

#include <OpenSG/OSGNodePtr.h>

class kavoFCEditorWidget;
class kavoNodeEditorGUIW;

/// The editor module: docks the window, follows the host's selection and shows materials that the
/// host hands over. While its window is hidden it shows nothing.
class kavoNodeEditor : public kavoModuleBase
{
    Q_OBJECT

public:
    kavoNodeEditor();
    ~kavoNodeEditor() override;

    QWidget *getWidget() const override;
    void init() override;
    /// Follows kavoMessageIds::sceneCleared, nodeShown and selectionChanged; always false.
    bool receivedMessage(kavoMessage &message) override;

    /// The callback "updateNodeEditorByMaterial": shows the attribute "material", an
    /// osg::MaterialPtr. Ignored while the window is hidden.
    static void updateByMaterial(kavoMessage &message);

    /// Shows a node and names it in the window's title; null empties the editor.
    void setNode(osg::NodePtr node);

    /// The last module made. Deliberate: never reset, for the module dies at process exit only.
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
