#include "BenchHost.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGChangeList.h>

#include <QApplication>
#include <QWindow>

#include <clocale>

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

void BenchHost::settle()
{
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
    QApplication::processEvents();
}
