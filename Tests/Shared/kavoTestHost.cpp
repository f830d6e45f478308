#include "kavoTestHost.h"

#include <QKAVODockWindowManager.h>
#include <kavoController.h>

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGChangeList.h>

#include <QApplication>
#include <QLocale>
#include <QTest>

#include <clocale>

namespace {

// Never deleted, because static objects of plug-ins are destroyed later and use them.
int argumentCount = 0;
QApplication *application = nullptr;
QMainWindow *window = nullptr;
QKAVODockWindowManager *docks = nullptr;

} // namespace

QMainWindow &kavoTestHost::mainWindow()
{
    return *::window;
}

QKAVODockWindowManager &kavoTestHost::docks()
{
    return *::docks;
}

bool kavoTestHost::show()
{
    mainWindow().resize(900, 700);
    mainWindow().show();
    return QTest::qWaitForWindowExposed(::window);
}

void kavoTestHost::start(int argc, char **argv)
{
    argumentCount = argc;
    application = new QApplication(argumentCount, argv);
    std::setlocale(LC_NUMERIC, "C");
    QLocale::setDefault(QLocale::c());
    osg::ChangeList::setReadWriteDefault(true);
    osg::osgInit(argc, argv);
    ::window = new QMainWindow;
    ::docks = new QKAVODockWindowManager(::window);
    kavoController::setMainWindow(::window);
    kavoController::setDockWindowManager(::docks);
}

// The application object has removed its own options from the arguments.
int kavoTestHost::execute(QObject &test, char **argv)
{
    return QTest::qExec(&test, argumentCount, argv);
}

int kavoTestHost::finish(int result)
{
    ::docks->hideAll();
    ::window->hide();
    return result;
}
