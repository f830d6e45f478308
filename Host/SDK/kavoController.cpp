#include <kavoController.h>

#include <kavoGuarded.h>
#include <kavoMessage.h>
#include <kavoModuleBase.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

namespace {

using Callbacks = std::vector<kavoController::Callback>;

struct Host
{
    QWidget *mainWindow = nullptr;
    QKAVODockWindowManager *dockWindowManager = nullptr;
    std::map<std::string, Callbacks> callbacks;
};

// Never destroyed: modules unregister their callbacks during static destruction.
Host &host()
{
    static auto *const instance = new Host;
    return *instance;
}

template <class Container, class Value> bool contains(const Container &container, Value value)
{
    return std::find(container.begin(), container.end(), value) != container.end();
}

bool isRegistered(const std::string &name, kavoController::Callback callback)
{
    const auto found = host().callbacks.find(name);
    return found != host().callbacks.end() && contains(found->second, callback);
}

template <class Function> void forEachModule(Function function)
{
    const std::vector<kavoModuleBase *> snapshot = kavoModuleBase::modules();
    for (kavoModuleBase *module : snapshot) {
        if (contains(kavoModuleBase::modules(), module))
            kavoGuarded("Module '" + module->name() + "'", [&] { function(*module); });
    }
}

} // namespace

QWidget *kavoController::getMainWindow()
{
    return host().mainWindow;
}

QKAVODockWindowManager *kavoController::getDockWindowManager()
{
    return host().dockWindowManager;
}

void kavoController::addCB(const char *name, Callback callback)
{
    if (callback && !isRegistered(name, callback))
        host().callbacks[name].push_back(callback);
}

void kavoController::subCB(const char *name, Callback callback)
{
    const auto found = host().callbacks.find(name);
    if (found == host().callbacks.end())
        return;
    Callbacks &callbacks = found->second;
    if (callback)
        callbacks.erase(std::remove(callbacks.begin(), callbacks.end(), callback), callbacks.end());
    if (!callback || callbacks.empty())
        host().callbacks.erase(found);
}

int kavoController::call(const char *name, kavoMessage &message, int)
{
    const auto found = host().callbacks.find(name);
    if (found == host().callbacks.end())
        return 0;
    int run = 0;
    const std::string key = name;
    const Callbacks snapshot = found->second;
    for (const Callback callback : snapshot) {
        if (!isRegistered(key, callback))
            continue;
        kavoGuarded("Callback '" + key + "'", [&] { callback(message); });
        ++run;
    }
    return run;
}

void kavoController::sendMessage(kavoMessage &message)
{
    const auto id = static_cast<unsigned int>(message.id());
    forEachModule([&](kavoModuleBase &module) {
        if (module.messageMask() & id)
            module.receivedMessage(message);
    });
}

void kavoController::notifyModules(void (kavoModuleBase::*operation)())
{
    forEachModule([&](kavoModuleBase &module) { (module.*operation)(); });
}

void kavoController::setMainWindow(QWidget *window)
{
    host().mainWindow = window;
}

void kavoController::setDockWindowManager(QKAVODockWindowManager *manager)
{
    host().dockWindowManager = manager;
}
