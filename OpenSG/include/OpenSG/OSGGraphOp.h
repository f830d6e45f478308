#pragma once

#include <OpenSG/OSGAction.h>

#include <list>
#include <map>
#include <string>

OSG_BEGIN_NAMESPACE

/// An operation on a tree: callbacks for each node, parameters as a text, and a list of nodes to
/// leave alone. The derived class has to check this list.
class GraphOp
{
public:
    static const char *getClassname() { return "GraphOp"; }

    GraphOp(const char *name = "");
    virtual GraphOp *create() = 0;
    virtual ~GraphOp() = default;

    virtual void setParams(const std::string params) = 0;
    virtual std::string usage() = 0;

    /// Returns false if a callback ended the traversal. A null root counts as an empty tree.
    virtual bool traverse(NodePtr &root);

    const std::string &getName() const { return _name; }
    void setName(const char *name) { _name = name ? name : ""; }

    void addToExcludeList(NodePtr &node) { _excludeListNodes.push_back(node); }
    void addToExcludeList(const std::string &name) { _excludeListNames.push_back(name); }
    void removeFromExcludeList(NodePtr &node) { _excludeListNodes.remove(node); }
    void removeFromExcludeList(const std::string &name) { _excludeListNames.remove(name); }
    void clearExcludeList();

    bool isInExcludeListNodes(const NodePtr &node) const;
    bool isInExcludeListNames(const std::string &name) const;
    /// Returns true if the node or its name is in the lists.
    bool isInExcludeList(const NodePtr &node) const;

protected:
    /// The parameters in a text such as `key=value flag key2=x`. Keys are not case-sensitive. A
    /// flag is a key with the value true.
    class ParamSet
    {
    public:
        explicit ParamSet(const std::string &params);

        /// Returns false and leaves `value` alone if there is no such key.
        bool operator()(const char *name, std::string &value);
        bool operator()(const char *name, Real32 &value);
        bool operator()(const char *name, UInt16 &value);
        bool operator()(const char *name, UInt32 &value);
        bool operator()(const char *name, bool &value);

        void markUsed(const char *name);
        /// Returns the keys that were not used, separated by blanks.
        std::string getUnusedParams() const;

    private:
        const std::string *use(const char *name);

        struct Value
        {
            std::string text;
            bool used = false;
        };
        std::map<std::string, Value> _values;
    };

    /// Derived classes override one overload of each. Traversals call only the first overload.
    virtual Action::ResultE traverseEnter(NodePtr &node);
    virtual Action::ResultE traverseEnter(const NodePtr &node);
    virtual Action::ResultE traverseLeave(NodePtr &node, Action::ResultE res);
    virtual Action::ResultE traverseLeave(const NodePtr &node, Action::ResultE res);

    std::list<NodePtr> _excludeListNodes;
    std::list<std::string> _excludeListNames;

private:
    std::string _name;
};

OSG_END_NAMESPACE
