#include "kavoNodeEditorGUI.h"

// Named before the form names it: hosts find the windows of modules by this name.
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
