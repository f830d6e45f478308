#include <kavoModuleBase.h>

#include <algorithm>

namespace {

// Never destroyed: modules are static objects of plug-ins and leave during static destruction.
std::vector<kavoModuleBase *> &registry()
{
    static auto *const modules = new std::vector<kavoModuleBase *>;
    return *modules;
}

} // namespace

kavoModuleBase::kavoModuleBase(
    const char *name, const char *group, unsigned int messageMask, QPixmap *icon)
    : m_name(name)
    , m_group(group)
    , m_messageMask(messageMask)
    , m_icon(icon)
{
    registry().push_back(this);
}

kavoModuleBase::~kavoModuleBase()
{
    auto &modules = registry();
    modules.erase(std::remove(modules.begin(), modules.end(), this), modules.end());
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

const std::vector<kavoModuleBase *> &kavoModuleBase::modules()
{
    return registry();
}
