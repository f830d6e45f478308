#include "BenchHost.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGChangeList.h>

#include <QApplication>
#include <QWindow>

#include <clocale>
#include <fstream>
#include <unistd.h>

namespace {

int argumentCount = 0;
QApplication *application = nullptr;

}

void BenchHost::start(int argc, char **argv)
{
    argumentCount = argc;
    application = new QApplication(argumentCount, argv);
    std::setlocale(LC_NUMERIC, "C");
    osg::ChangeList::setReadWriteDefault(true);
    osg::osgInit(argc, argv);
}

void BenchHost::show(QWidget &widget)
{
    widget.resize(420, 800);
    widget.show();
    while (!widget.windowHandle()->isExposed())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    settle();
}

QTreeWidget &BenchHost::treeOf(const QWidget &browser)
{
    return *browser.findChild<QTreeWidget *>();
}

double BenchHost::residentMemory()
{
    std::ifstream file("/proc/self/statm");
    double size = 0, resident = 0;
    file >> size >> resident;
    return resident * double(sysconf(_SC_PAGESIZE)) / (1 << 20);
}

void BenchHost::settle()
{
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
    QApplication::processEvents();
}
