#include <OpenSG/OSGGraphOpFactory.h>

OSG_BEGIN_NAMESPACE

GraphOpFactory &GraphOpFactory::the()
{
    static GraphOpFactory factory;
    return factory;
}

void GraphOpFactory::registerOp(GraphOp *prototype)
{
    if (prototype) {
        _prototypes[prototype->getName()] = prototype;
    }
}

void GraphOpFactory::unRegisterOp(GraphOp *prototype)
{
    if (prototype) {
        unRegisterOp(prototype->getName().c_str());
    }
}

void GraphOpFactory::unRegisterOp(const char *name)
{
    if (name) {
        _prototypes.erase(name);
    }
}

// Deliberate: an unknown name is entered in the list with NULL. Clients rely on it.
GraphOp *GraphOpFactory::create(const char *name)
{
    GraphOp *prototype = name ? _prototypes[name] : nullptr;
    return prototype ? prototype->create() : nullptr;
}

OSG_END_NAMESPACE
