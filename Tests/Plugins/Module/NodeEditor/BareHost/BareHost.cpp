#include "BareHost.h"

#include <QKAVOColorManipulator.h>
#include <QKAVODockWindowManager.h>
#include <kavoController.h>
#include <kavoIconManager.h>
#include <kavoLog.h>
#include <kavoModuleBase.h>
#include <kavoNodeUtils.h>
#include <kavoScenegraph.h>

#include <QPixmap>

namespace BareHost {

Calls &calls()
{
    static Calls calls;
    return calls;
}

// Neither of the two may outlive the application object, so neither is destroyed.
QWidget &mainWindow()
{
    static auto *const window = new QWidget;
    return *window;
}

QIcon icon()
{
    static const auto *const icon = new QIcon(QPixmap(1, 1));
    return *icon;
}

} // namespace BareHost

using namespace BareHost;

kavoModuleBase::kavoModuleBase(
    const char *name, const char *group, unsigned int messageMask, QPixmap *icon)
{
    calls().modules.append(
        QStringLiteral("%1, %2, 0x%3, %4")
            .arg(name, group, QString::number(messageMask, 16), icon ? "icon" : "no icon"));
}

kavoModuleBase::~kavoModuleBase()
{
    calls().modules.removeLast();
}

QWidget *kavoModuleBase::getWidget() const
{
    return nullptr;
}

void kavoModuleBase::init()
{
}

void kavoModuleBase::update()
{
}

void kavoModuleBase::loop()
{
}

bool kavoModuleBase::receivedMessage(kavoMessage &)
{
    return false;
}

int kavoMessage::id() const
{
    return 0;
}

const boost::any &kavoMessage::get(const std::string &) const
{
    static const boost::any none;
    return none;
}

void kavoMessage::printBT()
{
}

QWidget *kavoController::getMainWindow()
{
    return &mainWindow();
}

QKAVODockWindowManager *kavoController::getDockWindowManager()
{
    static QKAVODockWindowManager docks;
    return &docks;
}

void kavoController::addCB(const char *name, void (*)(kavoMessage &))
{
    calls().callbacks.append(name);
}

void kavoController::subCB(const char *name, void (*)(kavoMessage &))
{
    calls().callbacks.removeOne(name);
}

void kavoController::call(const char *, kavoMessage &, int)
{
}

void QKAVODockWindowManager::add(const char *key, const QString &group, QWidget *widget,
    const QString &hintKey, const QIcon &icon, const QString &title, Qt::DockWidgetArea area,
    bool visible, QMenu *menu)
{
    calls().docks.append({ key, group, widget, hintKey, icon, title, area, visible, menu });
}

QIcon kavoIconManager::getIcon(const std::string &key, const std::string &sub)
{
    return key == "ModuleNodeEditor" && sub.empty() ? icon() : QIcon();
}

void kavoLog::error(const char *, ...)
{
}

kavoNodePtr::operator osg::NodePtr() const
{
    return osg::NullFC;
}

bool kavoNodePtr::operator==(const osg::NullFieldContainerPtr &) const
{
    return true;
}

kavoNodePtr kavoScenegraph::getSelectedNode()
{
    return {};
}

const char *kavoScenegraph::getNodeName(const osg::NodePtr &)
{
    return nullptr;
}

const char *kavoNodeUtils::getName(const osg::NodePtr &)
{
    return nullptr;
}

bool kavoNodeUtils::hasName(const osg::NodePtr &)
{
    return false;
}

QKAVOColorManipulator::QKAVOColorManipulator(QWidget *parent, const char *)
    : QWidget(parent)
{
}

void QKAVOColorManipulator::setColor(float, float, float)
{
}

std::array<float, 4> QKAVOColorManipulator::getColor()
{
    return {};
}
