#pragma once

#include <OpenSG/OSGGraphOp.h>

#include <map>
#include <string>

OSG_BEGIN_NAMESPACE

/// Makes graph operations by name. Prototypes belong to whoever registers them and have to be
/// unregistered before they go.
class GraphOpFactory
{
    typedef std::map<std::string, GraphOp *> Prototypes;

public:
    typedef Prototypes::const_iterator iterator;

    static GraphOpFactory &the();

    /// Under the prototype's name, in place of an earlier one of that name.
    void registerOp(GraphOp *prototype);
    void unRegisterOp(GraphOp *prototype);
    void unRegisterOp(const char *name);

    /// A new operation that the caller deletes; NULL if the name is unknown.
    GraphOp *create(const char *name);

    /// Pairs of name and prototype. Names that were asked for in vain have NULL.
    iterator begin() const { return _prototypes.begin(); }
    iterator end() const { return _prototypes.end(); }

private:
    GraphOpFactory() = default;

    Prototypes _prototypes;
};

OSG_END_NAMESPACE
