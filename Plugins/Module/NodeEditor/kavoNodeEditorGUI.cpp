#include "kavoNodeEditorGUI.h"

// Sets the name first: the form names only windows without a name.
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
