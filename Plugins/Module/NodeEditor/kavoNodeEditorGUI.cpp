#include "kavoNodeEditorGUI.h"

// Named first: the form names only a nameless window.
kavoNodeEditorGUIW::kavoNodeEditorGUIW(QWidget *parent)
    : QMainWindow(parent)
{
    setObjectName("Module");
    setupUi(this);
}

void kavoNodeEditorGUIW::showEvent(QShowEvent *event)
{
    emit show();
    QMainWindow::showEvent(event);
}
