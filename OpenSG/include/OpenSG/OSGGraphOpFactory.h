#pragma once

#include <OpenSG/OSGGraphOp.h>

#include <map>
#include <string>

OSG_BEGIN_NAMESPACE

/// Creates graph operations by name. The caller of registerOp owns the prototype and has to
/// unregister it before its destruction.
class GraphOpFactory
{
    typedef std::map<std::string, GraphOp *> Prototypes;

public:
    typedef Prototypes::const_iterator iterator;

    static GraphOpFactory &the();

    /// Registers the prototype under its name. It replaces an earlier one of the same name.
    void registerOp(GraphOp *prototype);
    void unRegisterOp(GraphOp *prototype);
    void unRegisterOp(const char *name);

    /// Creates an operation. The caller deletes it. Returns NULL if the name is unknown.
    GraphOp *create(const char *name);

    /// Pairs of name and prototype. Unknown names that were passed to create() have NULL.
    iterator begin() const { return _prototypes.begin(); }
    iterator end() const { return _prototypes.end(); }

private:
    GraphOpFactory() = default;

    Prototypes _prototypes;
};

OSG_END_NAMESPACE
